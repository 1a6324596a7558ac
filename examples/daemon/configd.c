/*
 * configd judges settings as SECURITY.md requires of a host.
 *
 * It reads lines of the form "NAME VALUE" from standard input, and writes "NAME: accepted as VALUE" or
 * "NAME: refused, CODE" to standard output. It writes the library's reports about refusals to standard error.
 *
 *     cc configd.c -o configd -lostrel_check
 *     echo "lan.address 192.168.1.256" | ./configd
 */
#define _POSIX_C_SOURCE 200809L
#include <ostrel/check.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <unistd.h>

#define LONGEST_VALUE 255
/* HNAPCORE_check_timezone writes at most 7 bytes, or the part after "UTC". No other check writes more. */
#define ROOM (LONGEST_VALUE + 7)

struct setting {
    const char* name;
    int (*check)(char* value);
    int is_secret;
};

static int mtu(char* value) { return L3FORWARDING_check_MTU(value); }
static int address(char* value) { return PARAM_check_ip_addr(value); }
static int wpa_key(char* value) { return WLAN_check_preshared_key(value); }
static int password(char* value) { return GUESTACCESS_check_password(value); }

/* The check changes the SSID in place, so value must be a buffer, not a literal. */
static int ssid(char* value) { return WLAN_check_ssid(value); }

/* The check writes the offset into a buffer of the size that the header requires. */
static int timezone_offset(char* value)
{
    char offset[ROOM];
    const int code = HNAPCORE_check_timezone(value, offset);
    if (code == OSTREL_VALID) strcpy(value, offset);
    return code;
}

/* PARAM_check_ui2_value and PARAM_check_ui4_value are not used, because they do not return for a value that
   begins with a digit. This check tests the limits of the number, and also its characters, because atoi reads
   "30;x" as 30. */
static int interval(char* value) { return ValidateNum(1, 86400, "0123456789", value); }

static const struct setting kSettings[] = {
    {"lan.address", address, 0},
    {"wan.mtu", mtu, 0},
    {"wlan.ssid", ssid, 0},
    {"wlan.key", wpa_key, 1},
    {"guest.password", password, 1},
    {"acs.interval", interval, 0},
    {"time.zone", timezone_offset, 0},
    {NULL, NULL, 0},
};

/* The original standard output and standard error. */
static FILE *answers, *report_log;

static void give_up(const char* what)
{
    perror(what);
    exit(1);
}

/* take_the_streams redirects standard output and standard error, to which the library writes, to an unnamed
   file. Only WLAN_check_keys writes to standard error. Unlike a full pipe, a file does not block, and the
   daemon can decide what to log. */
static void take_the_streams(void)
{
    FILE* file = tmpfile();
    answers = fdopen(dup(STDOUT_FILENO), "w");
    report_log = fdopen(dup(STDERR_FILENO), "w");
    if (file == NULL || answers == NULL || report_log == NULL) give_up("configd");
    if (dup2(fileno(file), STDOUT_FILENO) < 0 || dup2(fileno(file), STDERR_FILENO) < 0) give_up("configd");
}

/* print_escaped escapes all bytes that are not printable ASCII, because control bytes could do harm in a log
   or on a terminal. */
static void print_escaped(FILE* stream, const char* bytes, size_t size)
{
    size_t i;
    for (i = 0; i < size; ++i) {
        const unsigned char byte = (unsigned char)bytes[i];
        fprintf(stream, byte >= ' ' && byte <= '~' && byte != '\\' ? "%c" : "\\x%02X", byte);
    }
}

/* log_report logs the report that a check has printed, and empties the file. A report contains the refused
   value, so only the code is logged for a secret. */
static void log_report(const struct setting* setting, int code)
{
    char report[1024];
    ssize_t size;
    fflush(stdout); /* some primitives print without flushing */
    size = pread(STDOUT_FILENO, report, sizeof report, 0);
    if (ftruncate(STDOUT_FILENO, 0) != 0 || lseek(STDOUT_FILENO, 0, SEEK_SET) != 0) give_up("configd");
    if (code == OSTREL_VALID) return;
    fprintf(report_log, "configd: %s: %d: ", setting->name, code);
    print_escaped(report_log, report, setting->is_secret || size < 0 ? 0 : (size_t)size);
    fputc('\n', report_log);
    fflush(report_log);
}

static void judge(const struct setting* setting, const char* given)
{
    char value[ROOM];
    int code = OSTREL_TOO_LONG;
    if (strlen(given) <= LONGEST_VALUE) {
        strcpy(value, given);
        code = setting->check(value);
    }
    log_report(setting, code);
    if (code != OSTREL_VALID) {
        fprintf(answers, "%s: refused, %d\n", setting->name, code);
        return;
    }
    fprintf(answers, "%s: accepted%s", setting->name, setting->is_secret ? "" : " as ");
    print_escaped(answers, value, setting->is_secret ? 0 : strlen(value));
    fputc('\n', answers);
}

/* read_line truncates an overlong line. The remaining value is still too long to be accepted. */
static int read_line(char* line, size_t room)
{
    size_t length = 0;
    int next;
    while ((next = getchar()) != '\n' && next != EOF) {
        if (length + 1 < room) line[length++] = (char)next;
    }
    line[length] = '\0';
    return length > 0 || next != EOF;
}

int main(void)
{
    char line[1024];
    take_the_streams();
    while (read_line(line, sizeof line)) {
        char* value = line + strcspn(line, " ");
        const struct setting* setting = kSettings;
        if (*value != '\0') *value++ = '\0';
        while (setting->name != NULL && strcmp(setting->name, line) != 0) ++setting;
        if (setting->name == NULL) fputs("no such setting\n", answers);
        if (setting->name != NULL) judge(setting, value);
        fflush(answers);
    }
    return 0;
}
