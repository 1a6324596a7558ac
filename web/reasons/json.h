// JSON of a reason, as the command line writes it.
#ifndef OSTREL_WEB_REASONS_JSON_H
#define OSTREL_WEB_REASONS_JSON_H

#include <string>
#include <string_view>

#include "rules/reason.h"

namespace ostrel::web {

// append_text writes each byte as the character of the same number.
void append_text(std::string& out, std::string_view bytes);

void append_reason(std::string& out, const rules::Reason& reason, std::string_view sentence);

}  // namespace ostrel::web

#endif
