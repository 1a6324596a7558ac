/* Everything that libostrel_check.so exports. */
#ifndef OSTREL_CHECK_H
#define OSTREL_CHECK_H

#include <ostrel/accounts.h>
#include <ostrel/addresses.h>
#include <ostrel/branding_check.h>
#include <ostrel/character_class.h>
#include <ostrel/character_sets.h>
#include <ostrel/date_time.h>
#include <ostrel/hosts.h>
#include <ostrel/mgtserver_check.h>
#include <ostrel/parameter_check.h>
#include <ostrel/result_code.h>
#include <ostrel/strings.h>
#include <ostrel/time_check.h>

#endif
