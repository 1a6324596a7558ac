/* A C90 host that is linked with the library and calls some of its functions. */
#include <ostrel/check.h>
#include <stdio.h>
#include <string.h>

static int failures = 0;

static void expect(int expected, int actual, const char* what)
{
    if (expected == actual) return;
    printf("%s: %d instead of %d\n", what, actual, expected);
    ++failures;
}

int main(void)
{
    int type = -1;
    expect(OSTREL_VALID, PARAM_check_ip_addr("192.168.1.1"), "PARAM_check_ip_addr");
    expect(OSTREL_INVALID_VALUE, PARAM_check_ip_addr("192.168.1.256"), "PARAM_check_ip_addr");
    expect(OSTREL_OUT_OF_RANGE, PARAM_check_port("65536"), "PARAM_check_port");
    expect(OSTREL_FORBIDDEN_CHARACTER, ValidateString(1, 9, CHARSET_DIGITS, "x"), "ValidateString");
    expect(OSTREL_VALID, ValidateNum(1, 9, CHARSET_DIGITS, "9"), "ValidateNum");
    expect(2, countChar("a#b#c", '#'), "countChar");
    expect(OSTREL_VALID, TcmValidatePPPUsername("someone", &type), "TcmValidatePPPUsername");
    expect(0, type, "the account type");
    expect(CT_DIGIT, ostrel_ctype[(unsigned char)'7'], "ostrel_ctype");
    expect(CT_SPACE | CT_BLANK, ostrel_ctype[0xA0], "ostrel_ctype");
    expect(190, (int)strlen(CHARSET_LATIN1_PRINTABLE), "CHARSET_LATIN1_PRINTABLE");
    return failures;
}
