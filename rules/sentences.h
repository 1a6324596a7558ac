// Sentences: reasons in English. All of the text is in one table, by the id of the reason.
#ifndef OSTREL_RULES_SENTENCES_H
#define OSTREL_RULES_SENTENCES_H

#include <span>
#include <string>
#include <string_view>

#include "rules/datum.h"
#include "rules/reason.h"
#include "rules/vocabulary.h"

namespace ostrel::rules {

// Sentence is the text for an id, with these fields:
//   {found} {allowed}    the data of the reason: a set as its members in words, a list as its words or, if it is long,
//                        as their number and the word that is closest to what was found
//   {form}               the kind of text that was found, which "allowed" contains
//   {byte}               the byte that was found, in printable form
//   {position}           the offset, counted from 1
//   {range}              the two limits of the allowed range
//   {read}               "read as " unless the text is just the number that was found
//   {read_as}            the value as which a number beyond an int is read
//   {limit}              the limit that the number, as it is read, violates: that sentence, from its ";" on
//   {found:one|many} {allowed:one|many}
//                        the first form if the number or the count is 1, otherwise the second
// The subject is the part that the reason names, or the argument, unless the sentence has its own. In that case the
// part is the location: "in the host, byte 9 is ...".
struct Sentence {
    std::string_view id;
    std::string_view text;
    bool has_subject = false;
};

// sentences lists all of them, ordered by id.
std::span<const Sentence> sentences();

// find_sentence returns the sentence of that id, or NULL.
const Sentence* find_sentence(std::string_view id);

// sentence returns the reason without the argument's name: "has 34 bytes; at most 32 are allowed". It is empty for an
// id without a sentence.
std::string sentence(const Reason& reason);

// full_sentence begins with the subject: the item of a list, and the argument if a user passes several.
std::string full_sentence(const Reason& reason, const Check& check);

// hide_secret removes the value that was found if its argument is a secret; single bytes remain.
void hide_secret(Reason& reason, const Check& check);
Reason without_secret(Reason reason, const Check& check);

// without_trace_of_secret also removes single bytes, and numbers that were read from the value; lengths remain.
Reason without_trace_of_secret(Reason reason, const Check& check);

}  // namespace ostrel::rules

#endif
