/* A library without code, so everything in the linked file comes from the compiler's start-up files. */
extern char nothing;
