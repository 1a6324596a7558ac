#include <ostrel/check.h>

int main(void)
{
    return PARAM_check_port("80") == OSTREL_VALID && PARAM_check_port("65536") == OSTREL_OUT_OF_RANGE ? 0 : 1;
}
