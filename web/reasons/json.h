// JSON of a reason, as the command line writes it.
#ifndef OSTREL_WEB_REASONS_JSON_H
#define OSTREL_WEB_REASONS_JSON_H

#include <cstddef>
#include <string>
#include <string_view>

#include "rules/reason.h"
#include "rules/vocabulary.h"

namespace ostrel::web {

// kMostWork is how many bytes may be looked at for a reason, which must not take longer than the call that it is for.
constexpr std::size_t kMostWork = std::size_t{128} << 20U;

// append_text writes each byte as the character of the same number.
void append_text(std::string& out, std::string_view bytes);

// append_reason adds the reason of a refusal, without a value that is a secret.
void append_reason(std::string& out, const rules::Reason& given, const rules::Check& check);

}  // namespace ostrel::web

#endif
