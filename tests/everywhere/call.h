/* Calls a library function according to the kinds of its arguments. */
#ifndef OSTREL_TESTS_EVERYWHERE_CALL_H
#define OSTREL_TESTS_EVERYWHERE_CALL_H

/* Value is an argument of a call. Only one of its members is used. */
struct value {
    char* pointer;
    int integer;
    unsigned natural;
};

/* call passes integer for the kind i, natural for u, and pointer for any other kind. It returns 0 if no function
   type is defined for these kinds. */
int call(void* function, const char* kinds, const struct value* values, int* code);

#endif
