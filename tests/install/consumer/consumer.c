#include <ostrel/check.h>

/* The build defines the version of the package that it found. */
#if OSTREL_CHECK_VERSION_MAJOR != FOUND_MAJOR || OSTREL_CHECK_VERSION_MINOR != FOUND_MINOR || \
    OSTREL_CHECK_VERSION_PATCH != FOUND_PATCH
#error "the headers are of another version than the one found"
#endif
#if !OSTREL_CHECK_VERSION_AT_LEAST(FOUND_MAJOR, FOUND_MINOR, FOUND_PATCH) ||             \
    !OSTREL_CHECK_VERSION_AT_LEAST(FOUND_MAJOR, FOUND_MINOR - 1, FOUND_PATCH + 1) ||     \
    !OSTREL_CHECK_VERSION_AT_LEAST(FOUND_MAJOR - 1, FOUND_MINOR + 1, FOUND_PATCH + 1) || \
    OSTREL_CHECK_VERSION_AT_LEAST(FOUND_MAJOR, FOUND_MINOR, FOUND_PATCH + 1) ||          \
    OSTREL_CHECK_VERSION_AT_LEAST(FOUND_MAJOR, FOUND_MINOR + 1, 0) ||                    \
    OSTREL_CHECK_VERSION_AT_LEAST(FOUND_MAJOR + 1, 0, 0)
#error "versions are compared wrongly"
#endif

int main(void)
{
    return PARAM_check_port("80") == OSTREL_VALID && PARAM_check_port("65536") == OSTREL_OUT_OF_RANGE ? 0 : 1;
}
