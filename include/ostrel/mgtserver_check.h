/*
 * Management server, guest access, HNAP core.
 *
 * The value is a NUL-terminated byte string of any length; no check changes it. A check that prints writes
 * its line to standard output when it refuses a value, "%s" first being its own name unless stated, and then
 * flushes all output streams. "Asserts" means that a NULL value is reported through the C library's assertion
 * hook, in every build type, and ends the process: "value_p != ((void *)0)", module "mgtserver_check", the
 * line stated. Where that is not stated, there is no test and the value must not be NULL.
 */
#ifndef OSTREL_MGTSERVER_CHECK_H
#define OSTREL_MGTSERVER_CHECK_H

#include <ostrel/mgtserver_check/guest_access.h>
#include <ostrel/mgtserver_check/hnap_core.h>
#include <ostrel/mgtserver_check/management_server.h>

#endif
