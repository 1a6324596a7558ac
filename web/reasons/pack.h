// Packing: the descriptions as bytes, in which equal parts are stored once.
//
// The bytes are a sequence of parts: the number of the type, the size of the fields, and the fields. A part precedes
// those that use it, which refer to it by its index among the parts of its type. A text is stored as its address.
#ifndef OSTREL_WEB_REASONS_PACK_H
#define OSTREL_WEB_REASONS_PACK_H

#include <string>
#include <vector>

#include "rules/vocabulary.h"

namespace ostrel::web {

struct Pack {
    std::string bytes;
    // These are written by hand, and not packed.
    std::vector<const rules::Grammar*> grammars;
    std::vector<const rules::Conversion*> conversions;
};

Pack pack(const std::vector<rules::Check>& checks);

// unpack must run in the program that called pack.
std::vector<rules::Check> unpack(const Pack& pack);

}  // namespace ostrel::web

#endif
