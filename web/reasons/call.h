// A call that the page has written into this module's memory.
//
// For each argument of the check stands a byte that says what it is and, but for NULL, a number of four bytes: the number itself, the
// bytes of the text that follows, or how many blocks follow, each a text with the number of its bytes before it.
#ifndef OSTREL_WEB_REASONS_CALL_H
#define OSTREL_WEB_REASONS_CALL_H

#include <cstddef>
#include <vector>

#include "rules/evaluate.h"

namespace ostrel::web {

// room_for_call returns where calls of up to so many bytes are to be written, until it is asked for more.
char* room_for_call(std::size_t size);

// written_call reads the call that is there. It is kept until the next one is read.
const std::vector<rules::Value>& written_call(const rules::Check& check);

}  // namespace ostrel::web

#endif
