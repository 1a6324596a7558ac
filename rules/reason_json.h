// A reason as JSON, which is identical in all output formats.
#ifndef OSTREL_RULES_REASON_JSON_H
#define OSTREL_RULES_REASON_JSON_H

#include <string>
#include <string_view>

#include "rules/reason.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// append_json_text turns each byte above 0x7F into the code point with the same number.
void append_json_text(std::string& out, std::string_view bytes);

// AppendBytes appends bytes of a value as JSON.
using AppendBytes = void (*)(std::string& out, std::string_view bytes);

// append_json_datum appends a datum, which must not be empty.
void append_json_datum(std::string& out, const Datum& datum, AppendBytes append_bytes);

// append_json_reason appends a reason and its sentence as an object, without secret values.
void append_json_reason(std::string& out, Reason given, const Check& check);

// append_json_told does the same for a reason without secrets whose sentence is known.
void append_json_told(std::string& out, const Reason& reason, std::string_view sentence,
                      AppendBytes append_bytes);

}  // namespace ostrel::rules

#endif
