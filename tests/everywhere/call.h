/* Calls a function of the library by the kinds of its arguments. */
#ifndef OSTREL_TESTS_EVERYWHERE_CALL_H
#define OSTREL_TESTS_EVERYWHERE_CALL_H

/* Value is an argument as a call passes it: one of the three. */
struct value {
    char* pointer;
    int integer;
    unsigned natural;
};

/* call passes integer for the kind i, natural for u, and pointer for any other kind. It gives 0 when it knows no
   function type with arguments of these kinds. */
int call(void* function, const char* kinds, const struct value* values, int* code);

#endif
