/*
 * Checks for the management server, guest access and the HNAP core.
 *
 * The value is a NUL-terminated byte string of any length; no check changes it. Where a line is shown for a
 * check, the check writes it to standard output when it refuses a value, and then flushes all output streams.
 * The first %s in the line is the name of the check unless noted otherwise.
 *
 * Where a NULL value is documented to fail an assertion, the assertion is active in every build type. The C
 * library's assertion hook prints a message and ends the process. The message contains the condition
 * "value_p != ((void *)0)", the module "mgtserver_check", the name of the check and the line number given for
 * the check. For all other checks, the value must not be NULL.
 */
#ifndef OSTREL_MGTSERVER_CHECK_H
#define OSTREL_MGTSERVER_CHECK_H

#include <ostrel/mgtserver_check/guest_access.h>
#include <ostrel/mgtserver_check/hnap_core.h>
#include <ostrel/mgtserver_check/management_server.h>

#endif
