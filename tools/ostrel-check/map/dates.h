// Dates and times in XML Schema notation.
#ifndef OSTREL_TOOLS_MAP_DATES_H
#define OSTREL_TOOLS_MAP_DATES_H

#include "rules/language/language.h"

namespace ostrel::tool {

// date_times returns all dates from year 1 to year 9999 with a time, optionally followed by a fraction of a
// second and a time zone.
rules::Language date_times(rules::Languages& languages);

}  // namespace ostrel::tool

#endif
