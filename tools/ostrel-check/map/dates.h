// Dates and times as XML Schema writes them.
#ifndef OSTREL_TOOLS_MAP_DATES_H
#define OSTREL_TOOLS_MAP_DATES_H

#include "rules/language/language.h"

namespace ostrel::tool {

// date_times has the days of the calendar from the year 1 to 9999 with a time, which may have a fraction of a second
// and a zone.
rules::Language date_times(rules::Languages& languages);

}  // namespace ostrel::tool

#endif
