#include "call.h"

#include <string.h>

/* function converts an object pointer to a function pointer, for which C90 has no cast. */
union function {
    void* address;
    int (*p)(char*);
    int (*pp)(char*, char*);
    int (*ppp)(char*, char*, char*);
    int (*pppp)(char*, char*, char*, char*);
    int (*pi)(char*, int);
    int (*pii)(char*, int, int);
    int (*puu)(char*, unsigned, unsigned);
    int (*iipp)(int, int, char*, char*);
    int (*iui)(int, unsigned, int);
};

/* plain_kinds copies the kinds, with p in place of every kind that is passed as a pointer. */
static void plain_kinds(const char* kinds, char* plain)
{
    for (; *kinds != '\0'; ++kinds) *plain++ = *kinds == 'i' || *kinds == 'u' ? *kinds : 'p';
    *plain = '\0';
}

int call(void* function, const char* kinds, const struct value* v, int* code)
{
    union function f;
    char plain[8];
    if (strlen(kinds) >= sizeof plain) return 0;
    plain_kinds(kinds, plain);
    f.address = function;
    if (strcmp(plain, "p") == 0) {
        *code = f.p(v[0].pointer);
    } else if (strcmp(plain, "pp") == 0) {
        *code = f.pp(v[0].pointer, v[1].pointer);
    } else if (strcmp(plain, "ppp") == 0) {
        *code = f.ppp(v[0].pointer, v[1].pointer, v[2].pointer);
    } else if (strcmp(plain, "pppp") == 0) {
        *code = f.pppp(v[0].pointer, v[1].pointer, v[2].pointer, v[3].pointer);
    } else if (strcmp(plain, "pi") == 0) {
        *code = f.pi(v[0].pointer, v[1].integer);
    } else if (strcmp(plain, "pii") == 0) {
        *code = f.pii(v[0].pointer, v[1].integer, v[2].integer);
    } else if (strcmp(plain, "puu") == 0) {
        *code = f.puu(v[0].pointer, v[1].natural, v[2].natural);
    } else if (strcmp(plain, "iipp") == 0) {
        *code = f.iipp(v[0].integer, v[1].integer, v[2].pointer, v[3].pointer);
    } else if (strcmp(plain, "iui") == 0) {
        *code = f.iui(v[0].integer, v[1].natural, v[2].integer);
    } else {
        return 0;
    }
    return 1;
}
