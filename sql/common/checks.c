#include "sql/common/checks.h"

#include <ostrel/check.h>
#include <string.h>

/* Made by sql/generate.py, in the order of the bytes of the names. */
#include "sql/common/checks.inc"

const size_t ostrel_check_count = sizeof ostrel_checks / sizeof ostrel_checks[0];

const OstrelCheck* ostrel_find_check(const char* name, size_t size)
{
    size_t low = 0;
    size_t high = ostrel_check_count;
    while (low < high) {
        const size_t middle = (low + high) / 2;
        const char* const other = ostrel_checks[middle].name;
        int order = strncmp(name, other, size);
        if (order == 0 && other[size] != '\0') order = -1;
        if (order == 0) return &ostrel_checks[middle];
        if (order < 0) {
            high = middle;
        } else {
            low = middle + 1;
        }
    }
    return NULL;
}

bool ostrel_has_secret(const OstrelCheck* check)
{
    for (unsigned i = 0; i < check->count; ++i) {
        if (check->arguments[i].is_secret) return true;
    }
    return false;
}
