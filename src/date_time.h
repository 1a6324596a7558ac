// The date and time rules that other rules call; the exported ones are <ostrel/date_time.h>.
#ifndef OSTREL_SRC_DATE_TIME_H
#define OSTREL_SRC_DATE_TIME_H

// The checks pass these rules on, and the address of a hidden function needs no relocation.
#pragma GCC visibility push(hidden)
namespace ostrel {

int validate_date_time(const char* value);

// validate_switch_over takes when daylight saving starts or ends: a date-time, or one without its year.
int validate_switch_over(const char* value);

int validate_zone_offset(const char* value);

}  // namespace ostrel
#pragma GCC visibility pop

#endif
