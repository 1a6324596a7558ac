// Input: a call as a few bytes, so that an engine that changes bytes makes calls of every kind.
//
// The first byte chooses the function. Behind it stands one field for each argument, for each of its blocks if it
// has several, with a NUL between two fields; what is missing is empty, what is too much is not looked at.
//
//   text    its bytes; 0x01 alone is NULL; 0x02 and a byte n repeat the byte before n times, from 128 on
//           (n - 127) * 64 times; 0x03 makes the next byte stand for itself
//   number  in decimal, when it begins with a digit or "-"; else four bytes, the lowest first
#ifndef OSTREL_ORACLE_INPUT_H
#define OSTREL_ORACLE_INPUT_H

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "calling/caller.h"

namespace ostrel::oracle {

// kLongestText bounds a text, so that a few bytes cannot make a call that takes long.
constexpr std::size_t kLongestText = 8192;

// decode_arguments reads the fields for the arguments of a function. values is used again and again.
void decode_arguments(const catalogue::Function& function, std::string_view fields,
                      std::vector<catalogue::Value>& values);

// encode_arguments is the reverse. Nothing: a text is too long.
std::optional<std::string> encode_arguments(const catalogue::Function& function,
                                            const std::vector<catalogue::Value>& values);

}  // namespace ostrel::oracle

#endif
