// Reads a call that the page has written into the memory of this module.
//
// Each argument of the check is stored as a one-byte tag and, except for NULL, a four-byte number. This
// number is the argument itself, the size of the string that follows, or the number of blocks that follow,
// each of which consists of a size and a string.
#ifndef OSTREL_WEB_REASONS_CALL_H
#define OSTREL_WEB_REASONS_CALL_H

#include <cstddef>
#include <vector>

#include "rules/evaluate.h"

namespace ostrel::web {

// room_for_call returns a buffer for calls of at most size bytes, valid until a larger size is requested.
char* room_for_call(std::size_t size);

// written_call reads the call. The result is valid until the next call is read.
const std::vector<rules::Value>& written_call(const rules::Check& check);

}  // namespace ostrel::web

#endif
