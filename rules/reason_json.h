// JSON of a reason: the same wherever a reason is told to a program.
#ifndef OSTREL_RULES_REASON_JSON_H
#define OSTREL_RULES_REASON_JSON_H

#include <string>
#include <string_view>

#include "rules/reason.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// append_json_text writes a text of JSON; a byte from 0x80 as the code point of the same number.
void append_json_text(std::string& out, std::string_view bytes);

// AppendBytes writes bytes of a value as JSON.
using AppendBytes = void (*)(std::string& out, std::string_view bytes);

// append_json_datum writes one that is not nothing.
void append_json_datum(std::string& out, const Datum& datum, AppendBytes append_bytes);

// append_json_reason adds a reason and its sentence as an object, without a value that is a secret.
void append_json_reason(std::string& out, Reason given, const Check& check);

// append_json_told does so for a reason whose secret has been taken out, and which has been put into a sentence.
void append_json_told(std::string& out, const Reason& reason, std::string_view sentence,
                      AppendBytes append_bytes);

}  // namespace ostrel::rules

#endif
