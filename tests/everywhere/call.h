/* Calls a library function according to the kinds of its arguments. */
#ifndef OSTREL_TESTS_EVERYWHERE_CALL_H
#define OSTREL_TESTS_EVERYWHERE_CALL_H

/* Value is an argument of a call. The kind of the argument determines which member is used. */
struct value {
    char* pointer;
    int integer;
    unsigned natural;
};

/* call calls the function and stores its result in code. For the kind i, it passes the value's integer; for
   u, its natural; for any other kind, its pointer. It returns 0 if it does not support this combination of
   kinds. */
int call(void* function, const char* kinds, const struct value* values, int* code);

#endif
