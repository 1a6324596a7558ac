// Packing: the descriptions as a text of bytes, each part of them once.
//
// The text is a sequence of parts: the number of a type, how many bytes follow, and the fields. A part that others use
// comes before them, and they name it by its place among the parts of its type. A text is where it is in memory.
#ifndef OSTREL_WEB_REASONS_PACK_H
#define OSTREL_WEB_REASONS_PACK_H

#include <string>
#include <vector>

#include "rules/vocabulary.h"

namespace ostrel::web {

struct Pack {
    std::string bytes;
    // What is written by hand, and not packed.
    std::vector<const rules::Grammar*> grammars;
    std::vector<const rules::Conversion*> conversions;
};

Pack pack(const std::vector<rules::Check>& checks);

// unpack is for the program that has packed.
std::vector<rules::Check> unpack(const Pack& pack);

}  // namespace ostrel::web

#endif
