// Forms: how a language is said in words. It is for constraints.cpp.
#ifndef OSTREL_RULES_FORM_H
#define OSTREL_RULES_FORM_H

#include "rules/constraints.h"
#include "rules/language/language.h"

namespace ostrel::rules {

// Said is a form, and whether no other text has all that it says.
struct Said {
    Form form = {};
    bool is_all = false;
    bool is_all_in_schema = false;  // without what JSON Schema has no words for
};

// form_of_text says what all texts of a language have in common.
Said form_of_text(Languages& languages, Language one);

// form_of_number is for an int, of which no more than the lowest and the highest number is said.
Said form_of_number(const Languages& languages, Language one);

// language_of holds the texts that have what a form says in words, its pattern aside.
Language language_of(Languages& languages, const Form& form);

// Offer is what a user should be offered of a language: numbers without blanks and leading zeros, keywords as they
// are written. There is none where that is all of it.
struct Offer {
    Form form;
    Language language;
};
std::optional<Offer> offer_of(Languages& languages, Language one, const Form& form);

// item_of gives what an item of a list can be beside what the form says of the whole text.
Language item_of(Languages& languages, const Leaf& list, const Form& form);

// parts_of gives what must hold for the texts of a language.
std::vector<Language> parts_of(const Languages& languages, Language one);

}  // namespace ostrel::rules

#endif
