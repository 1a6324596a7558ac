/*
 * Checks for the management server, guest access and the HNAP core.
 *
 * The value is a NUL-terminated byte string of any length; no check changes it. A check that prints writes
 * its line to standard output when it refuses a value, and then flushes all output streams. The first %s in
 * the line is the name of the check unless stated otherwise.
 *
 * Where a NULL value is documented to fail an assertion, the C library's assertion hook reports it and ends
 * the process, in every build type. The report contains the condition "value_p != ((void *)0)", the module
 * "mgtserver_check" and the stated line. For all other checks, the value must not be NULL.
 */
#ifndef OSTREL_MGTSERVER_CHECK_H
#define OSTREL_MGTSERVER_CHECK_H

#include <ostrel/mgtserver_check/guest_access.h>
#include <ostrel/mgtserver_check/hnap_core.h>
#include <ostrel/mgtserver_check/management_server.h>

#endif
