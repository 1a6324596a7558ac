/* A library without code: everything in its file comes from the compiler's start-up files. */
extern char nothing;
