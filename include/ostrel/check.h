/* Includes all public headers of libostrel_check.so. */
#ifndef OSTREL_CHECK_H
#define OSTREL_CHECK_H

#include <ostrel/accounts.h>
#include <ostrel/addresses.h>
#include <ostrel/branding_check.h>
#include <ostrel/character_class.h>
#include <ostrel/character_sets.h>
#include <ostrel/date_time.h>
#include <ostrel/hosts.h>
#include <ostrel/l3forwarding_check.h>
#include <ostrel/lan_check.h>
#include <ostrel/mgtserver_check.h>
#include <ostrel/names.h>
#include <ostrel/parameter_check.h>
#include <ostrel/port_mapping_check.h>
#include <ostrel/ppp_check.h>
#include <ostrel/result_code.h>
#include <ostrel/strings.h>
#include <ostrel/subnets.h>
#include <ostrel/time_check.h>
#include <ostrel/version.h>
#include <ostrel/wireless.h>
#include <ostrel/wlan_check.h>

#endif
