/*
 * Checks for the gateway's LAN interface and its DHCP service (RFC 2131), and for changes to address lists.
 *
 * Values are NUL-terminated byte strings of any length; only LAN_check_add_allowedMACAddress changes one. A
 * check that refuses a value writes one line to standard output and flushes all output streams. The line
 * begins with "Error in <name of the check>: " and ends in two newlines. A check that accepts a value prints
 * nothing unless noted otherwise.
 *
 * Each check with one argument, except LAN_check_passthrough_MAC_address, asserts in every build type that
 * the argument is not NULL. For NULL, the C library's assertion hook prints a message and ends the process.
 * The message contains the condition "value_p != ((void *)0)", the module "lan_check", the name of the check
 * and the source line. A check with several arguments does not assert, and none of its arguments may be NULL
 * unless noted otherwise.
 */
#ifndef OSTREL_LAN_CHECK_H
#define OSTREL_LAN_CHECK_H

#include <ostrel/lan_check/host_configuration.h>
#include <ostrel/lan_check/list_editing.h>

#endif
