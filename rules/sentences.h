// Reasons as English sentences. A single table contains a sentence for each id.
#ifndef OSTREL_RULES_SENTENCES_H
#define OSTREL_RULES_SENTENCES_H

#include <span>
#include <string>
#include <string_view>

#include "rules/datum.h"
#include "rules/reason.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// Sentence is the wording for an id, with these fields:
//   {found} {allowed}    the data of the reason: for a set, its members in words; for a list, its entries or,
//                        if it is long, their number and the entry that is closest to what was found
//   {form}               the kind of value that was found, which the reason contains as "allowed"
//   {byte}               the byte that was found, in printable form
//   {position}           the offset, counted from 1
//   {range}              the two limits of the allowed range
//   {read}               "read as ", unless the value is exactly the number that was found
//   {read_as}            the value that atoi reads for a number that does not fit in an int
//   {limit}              the sentence for the limit that this value violates, from its ";" to its end
//   {found:one|many} {allowed:one|many}
//                        the first form if the number or the count is 1, otherwise the second
// The subject is the part that the reason names, or else the argument. If the sentence contains its own
// subject, the part is shown as the location: "in the host, byte 9 is ...".
struct Sentence {
    std::string_view id;
    std::string_view text;
    bool has_subject = false;
};

// sentences returns all sentences in the order of their ids.
std::span<const Sentence> sentences();

// find_sentence returns the sentence with the given id, or NULL if there is none.
const Sentence* find_sentence(std::string_view id);

// sentence returns the reason without the argument's name: "has 34 bytes; at most 32 are allowed". It returns
// an empty string if the id has no sentence.
std::string sentence(const Reason& reason);

// full_sentence also names the item of a list, and the argument if users pass several.
std::string full_sentence(const Reason& reason, const Check& check);

// hide_secret removes the value that was found if the argument is a secret, but keeps a single byte.
void hide_secret(Reason& reason, const Check& check);
Reason without_secret(Reason reason, const Check& check);

// without_trace_of_secret also removes single bytes, and numbers that were read from the value, but keeps
// lengths.
Reason without_trace_of_secret(Reason reason, const Check& check);

}  // namespace ostrel::rules

#endif
