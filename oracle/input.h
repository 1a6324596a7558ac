// Input: a call as a few bytes, so that an engine that changes bytes makes calls of every kind.
//
// The first byte selects the function. A field for each argument follows, or for each of its blocks; NULs separate the
// fields. Missing fields are empty, and excess ones are ignored.
//
//   text    its bytes; 0x01 alone is NULL; 0x02 and a byte n repeat the byte before n times, and from 128 on
//           (n - 127) * 64 times; 0x03 makes the next byte literal
//   number  in decimal if it begins with a digit or "-"; otherwise four bytes, the lowest first
#ifndef OSTREL_ORACLE_INPUT_H
#define OSTREL_ORACLE_INPUT_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calling/caller.h"

namespace ostrel::oracle {

// kLongestText limits a text, so that no input makes a slow call.
constexpr std::size_t kLongestText = 8192;

// decode_arguments reads the fields for the arguments of a function. It reuses the memory of values.
void decode_arguments(const catalogue::Function& function, std::string_view fields,
                      std::vector<catalogue::Value>& values);

// encode_arguments is the reverse. It returns nothing if a text is too long.
std::optional<std::string> encode_arguments(const catalogue::Function& function,
                                            const std::vector<catalogue::Value>& values);

}  // namespace ostrel::oracle

#endif
