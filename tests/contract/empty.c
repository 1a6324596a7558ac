/* A library that holds nothing of its own: what is in its file comes from the compiler's start-up files. */
extern char nothing;
