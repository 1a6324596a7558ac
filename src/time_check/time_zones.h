// The table of time zones and its lookups, which print a line when they find nothing.
//
// They walk the table in its order and stop at the first row that matches, byte by byte. A name is matched by
// any part of it. Each gives 0 or OSTREL_WRONG_FORM.
#ifndef OSTREL_TIME_CHECK_TIME_ZONES_H
#define OSTREL_TIME_CHECK_TIME_ZONES_H

namespace ostrel {

// get_tzone_name_by_tzone copies the name of the first row whose offset holds tzone, at most 55 bytes with
// the terminator. A part of an offset is enough: "01:00" finds "-01:00".
int get_tzone_name_by_tzone(const char* tzone, char* name_out);

// get_tzone_by_tzone_name copies the offset, 7 bytes with the terminator, of the first row whose name holds
// name.
int get_tzone_by_tzone_name(char* tzone_out, const char* name);

// is_tzone_consistent_with_tz_name looks for a row whose offset is tzone, all of it, and whose name holds
// name.
int is_tzone_consistent_with_tz_name(const char* tzone, const char* name);

}  // namespace ostrel

#endif
