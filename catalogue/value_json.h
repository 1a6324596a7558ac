// Values in the notation of the conformance vectors.
#ifndef OSTREL_CATALOGUE_VALUE_JSON_H
#define OSTREL_CATALOGUE_VALUE_JSON_H

#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>

#include "catalogue/catalogue.h"

namespace ostrel::catalogue {

// text_from_json reads a string, {"repeat": string, "times": n} or {"join": [string, ...]}, which may be
// nested. Each character stands for the byte with the value of its code point. Code points above 0xFF and
// results of more than 16 MiB are refused.
std::string text_from_json(const nlohmann::json& text);

// value_from_json reads null, a number, a string in any of these forms, or an array of strings.
Value value_from_json(const nlohmann::json& value);

// json_from_value is the inverse of value_from_json. It writes every string as a plain JSON string.
nlohmann::json json_from_value(const Value& value);

// utf8_from_bytes encodes each byte as the code point with the same value.
std::string utf8_from_bytes(std::string_view bytes);

}  // namespace ostrel::catalogue

#endif
