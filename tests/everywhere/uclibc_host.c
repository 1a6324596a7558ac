/* A host that defines uClibc's assertion hook. A failed assertion must call the hook with the documented
   arguments, and must end the process even if the hook returns.

   usage: uclibc_host LIBRARY */
#define _GNU_SOURCE
#include <dlfcn.h>
#include <signal.h>
#include <stdio.h>
#include <string.h>
#include <unistd.h>

#include "uclibc_assert.h"

static int reports;

void __assert(const char* assertion, const char* filename, int linenumber, const char* function)
{
    const int is_right = strcmp(assertion, "value_p != ((void *)0)") == 0 &&
                         strcmp(filename, "parameter_check") == 0 && linenumber > 0 &&
                         strcmp(function, "PARAM_check_port") == 0;
    printf("%s:%d: %s: %s\n", filename, linenumber, function, assertion);
    fflush(stdout);
    if (!is_right) _exit(1);
    ++reports;
}

static void on_abort(int signal_number)
{
    (void)signal_number;
    _exit(reports == 1 ? 0 : 2);
}

int main(int argc, char** argv)
{
    union {
        void* address;
        int (*check)(const char*);
    } port;
    void* library = argc == 2 ? dlopen(argv[1], RTLD_NOW) : NULL;
    if (library == NULL) {
        fprintf(stderr, "usage: uclibc_host LIBRARY: %s\n", dlerror());
        return 1;
    }
    port.address = dlsym(library, "PARAM_check_port");
    if (port.address == NULL || port.check("80") != 0) return 1;
    signal(SIGABRT, on_abort);
    port.check(NULL);
    return 3;
}
