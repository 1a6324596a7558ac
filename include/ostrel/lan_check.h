/*
 * LAN checks: the gateway's interface on the LAN, its DHCP service (RFC 2131), and edits of its lists.
 *
 * Values are NUL-terminated byte strings of any length; only LAN_check_add_allowedMACAddress changes one. A
 * check that refuses a value writes one line to standard output, beginning "Error in <its own name>: " and
 * ending in two line breaks, and flushes all output streams. An accepted value prints nothing unless
 * stated.
 *
 * Each check with one argument, except LAN_check_passthrough_MAC_address, asserts that it is not NULL. In
 * every build type the C library's assertion hook reports NULL and ends the process: the condition is
 * "value_p != ((void *)0)", the module "lan_check", the function the check, the line that of the source. A
 * check with several arguments does not assert, and none of them may be NULL unless stated.
 */
#ifndef OSTREL_LAN_CHECK_H
#define OSTREL_LAN_CHECK_H

#include <ostrel/lan_check/host_configuration.h>
#include <ostrel/lan_check/list_editing.h>

#endif
