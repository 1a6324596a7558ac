// Values in the notation of the conformance vectors.
#ifndef OSTREL_CATALOGUE_VALUE_JSON_H
#define OSTREL_CATALOGUE_VALUE_JSON_H

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

// text_from_json reads a text: a string; {"repeat": text, "times": n}; or {"join": [text, ...]}. Each character of a
// string is the byte with the value of its code point. Code points above 0xFF and texts above 16 MiB are refused.
std::string text_from_json(const nlohmann::json& text);

// value_from_json reads an argument: null, a text, a number, or an array of texts.
Value value_from_json(const nlohmann::json& value);

// json_from_value is the reverse. It writes texts as plain strings.
nlohmann::json json_from_value(const Value& value);

// utf8_from_bytes writes each byte as the code point with the same value.
std::string utf8_from_bytes(std::string_view bytes);

}  // namespace ostrel::catalogue

#endif
