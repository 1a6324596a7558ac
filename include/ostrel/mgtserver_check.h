/*
 * Management server, guest access, HNAP core.
 *
 * The value is a NUL-terminated byte string of any length; no check changes it. A check that prints writes
 * its line to standard output when it refuses a value, in which the first %s is its own name unless stated,
 * and then flushes all output streams. "Asserts" means that in every build type the C library's assertion
 * hook reports a NULL value and ends the process: the condition is "value_p != ((void *)0)", the module
 * "mgtserver_check", the line as stated. For all other checks, the value must not be NULL.
 */
#ifndef OSTREL_MGTSERVER_CHECK_H
#define OSTREL_MGTSERVER_CHECK_H

#include <ostrel/mgtserver_check/guest_access.h>
#include <ostrel/mgtserver_check/hnap_core.h>
#include <ostrel/mgtserver_check/management_server.h>

#endif
