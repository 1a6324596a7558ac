// A call that the page has written into this module's memory.
//
// For each argument stands a byte that says what it is and, but for NULL, a number of four bytes: the number itself, the
// bytes of the text that follows, or how many blocks follow, each a text with the number of its bytes before it.
#ifndef OSTREL_WEB_REASONS_CALL_H
#define OSTREL_WEB_REASONS_CALL_H

#include <cstddef>
#include <vector>

#include "rules/evaluate.h"

namespace ostrel::web {

// room_for_call returns where a call of so many bytes is to be written. What is there already stays.
char* room_for_call(std::size_t size);

std::vector<rules::Value> written_call();

}  // namespace ostrel::web

#endif
