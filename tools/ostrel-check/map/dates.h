// Dates and times in XML Schema notation.
#ifndef OSTREL_TOOLS_MAP_DATES_H
#define OSTREL_TOOLS_MAP_DATES_H

#include "rules/language/language.h"

namespace ostrel::tool {

// date_times returns dates from year 1 to 9999 with a time, optionally with a fraction and a time zone.
rules::Language date_times(rules::Languages& languages);

}  // namespace ostrel::tool

#endif
