// Encodes a call as a few bytes, so that a fuzzing engine can make calls of every kind by changing bytes.
//
// The first byte selects the function. It is followed by a field for each argument, or for each block of an
// argument. NULs separate the fields. Missing fields are treated as empty, and excess fields are ignored.
//
//   string  its bytes; 0x01 alone is NULL; 0x02 and a byte n repeat the previous byte n times, or
//           (n - 127) * 64 times if n is 128 or more; 0x03 makes the next byte literal
//   number  in decimal if it begins with a digit or "-"; otherwise four bytes, the least significant first
#ifndef OSTREL_ORACLE_INPUT_H
#define OSTREL_ORACLE_INPUT_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calling/caller.h"

namespace ostrel::oracle {

// kLongestText limits the length of a string, so that no input results in a slow call.
constexpr std::size_t kLongestText = 8192;

// decode_arguments decodes the fields into the arguments of a function. It reuses the memory of values.
void decode_arguments(const catalogue::Function& function, std::string_view fields,
                      std::vector<catalogue::Value>& values);

// encode_arguments does the reverse. It returns std::nullopt if a string is too long.
std::optional<std::string> encode_arguments(const catalogue::Function& function,
                                            const std::vector<catalogue::Value>& values);

}  // namespace ostrel::oracle

#endif
