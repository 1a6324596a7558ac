// Sentences: what is said of a reason in English. Everything said stands in one table, by the reason's id.
#ifndef OSTREL_RULES_SENTENCES_H
#define OSTREL_RULES_SENTENCES_H

#include <span>
#include <string>
#include <string_view>

#include "rules/datum.h"
#include "rules/reason.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// Sentence is what is said for an id. In it stand
//   {found} {allowed}    what the reason has; of a set its members in words; of a list the words, or of a long one
//                        how many there are and which is most like what was found
//   {form}               what the text is, which stands in what is allowed
//   {byte}               the byte that was found, shown so that it can be printed
//   {position}           the offset, counted from 1
//   {range}              the two limits that are allowed
//   {read}               "read as " where the text is not just the number that is found
//   {read_as}            the number that was made of one beyond an int
//   {limit}              what is allowed of that number: from the ";" on the sentence of the id that it has
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

// full_sentence begins with what it speaks of: the item of a list, and the argument where a user gives several.
std::string full_sentence(const Reason& reason, const Check& check);

// hide_secret takes the value out that was found, where that is of an argument not to be shown; single bytes stay.
void hide_secret(Reason& reason, const Check& check);
Reason without_secret(Reason reason, const Check& check);

// without_trace_of_secret takes out single bytes as well, and numbers that were read in the value; lengths stay.
Reason without_trace_of_secret(Reason reason, const Check& check);

}  // namespace ostrel::rules

#endif
