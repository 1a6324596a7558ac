// Forms: a language as lengths, bytes, keywords, numbers and a pattern. They are used only by constraints.cpp.
#ifndef OSTREL_RULES_FORM_H
#define OSTREL_RULES_FORM_H

#include "rules/constraints.h"
#include "rules/language/language.h"

namespace ostrel::rules {

// Said is a form, and whether only texts of the language satisfy it.
struct Said {
    Form form = {};
    bool is_all = false;
    bool is_all_in_schema = false;  // ignoring what JSON Schema cannot express
};

// form_of_text describes the common properties of all texts of a language.
Said form_of_text(Languages& languages, Language one);

// form_of_number is for an int; it has only the minimum and the maximum.
Said form_of_number(const Languages& languages, Language one);

// language_of returns the texts that satisfy a form, ignoring its pattern.
Language language_of(Languages& languages, const Form& form);

// Offer is the part of a language that a user should be offered: numbers without spaces and leading zeros, keywords in
// their case. It is unset if that is the whole language.
struct Offer {
    Form form;
    Language language;
};
std::optional<Offer> offer_of(Languages& languages, Language one, const Form& form);

// item_of returns the possible items of a list, given the form of the whole text.
Language item_of(Languages& languages, const Leaf& list, const Form& form);

// parts_of returns the conditions that all texts of a language satisfy.
std::vector<Language> parts_of(const Languages& languages, Language one);

}  // namespace ostrel::rules

#endif
