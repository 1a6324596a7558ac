// Packs the descriptions into bytes in which equal parts are stored only once.
//
// The bytes are a sequence of parts. Each part consists of the number of its type, the size of its fields,
// and the fields. A part precedes the parts that use it, which refer to it by its index among the parts of
// its type. A string is stored as its address and size.
#ifndef OSTREL_WEB_REASONS_PACK_H
#define OSTREL_WEB_REASONS_PACK_H

#include <string>
#include <vector>

#include "rules/vocabulary.h"

namespace ostrel::web {

struct Pack {
    std::string bytes;
    // The grammars and conversions are written by hand and are not packed.
    std::vector<const rules::Grammar*> grammars;
    std::vector<const rules::Conversion*> conversions;
};

Pack pack(const std::vector<rules::Check>& checks);

// unpack must be called in the program that called pack.
std::vector<rules::Check> unpack(const Pack& pack);

}  // namespace ostrel::web

#endif
