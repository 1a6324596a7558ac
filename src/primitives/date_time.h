// The date and time rules that other rules call; the exported ones are <ostrel/date_time.h>.
#ifndef OSTREL_PRIMITIVES_DATE_TIME_H
#define OSTREL_PRIMITIVES_DATE_TIME_H

namespace ostrel {

bool is_date_time(const char* value);

// is_switch_over takes when daylight saving starts or ends: a date-time, or one without its year.
bool is_switch_over(const char* value);

bool is_zone_offset(const char* value);

}  // namespace ostrel

#endif
