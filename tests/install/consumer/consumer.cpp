#include <ostrel/check.h>

#include <string>

int main()
{
    const std::string port = "65536";
    return PARAM_check_port("80") == OSTREL_VALID && PARAM_check_port(port.c_str()) == OSTREL_OUT_OF_RANGE
               ? 0
               : 1;
}
