/* A library without code, so everything in its file comes from the compiler's start-up files. */
extern char nothing;
