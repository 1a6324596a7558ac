// Sentences: what is said of a reason in English. Everything said stands in one table, by the reason's id.
#ifndef OSTREL_RULES_SENTENCES_H
#define OSTREL_RULES_SENTENCES_H

#include <span>
#include <string>
#include <string_view>

#include "rules/reason.h"

namespace ostrel::rules {

// Sentence is what is said for an id. In it stand
//   {found} {allowed}    what the reason has; of a list of words the words, of a set its members in words
//   {form}               what the text is, which stands in what is allowed
//   {byte}               the byte that was found, shown so that it can be printed
//   {position} {item}    the offset and the item, counted from 1
//   {range}              the two limits that are allowed
//   {read}               "read as " where the text is not just the number that is found
//   {read_as}            the number that was made of one beyond an int
//   {found:one|many} {allowed:one|many}
//                        the first text where the number or the count of what is allowed is 1, else the second
// The subject is the part that the reason names, or else the argument, unless the sentence has one. Then the part is
// where it holds: "in the host, byte 9 is ...".
struct Sentence {
    std::string_view id;
    std::string_view text;
    bool has_subject = false;
};

// sentences lists all, in the order of ids.
std::span<const Sentence> sentences();

// sentence says why, without the argument's name: "has 34 bytes; at most 32 are allowed". It is empty for an id that
// has no sentence.
std::string sentence(const Reason& reason);

// quoted shows a text so that it can be printed: between quotation marks, cut, with \x9F for what is not printable.
std::string quoted(std::string_view text);

}  // namespace ostrel::rules

#endif
