// Conversion of languages to forms. Only constraints.cpp uses it.
#ifndef OSTREL_RULES_FORM_H
#define OSTREL_RULES_FORM_H

#include "rules/constraints.h"
#include "rules/language/language.h"

namespace ostrel::rules {

// Said is the form of a language. is_all is true if only the strings in the language satisfy the form.
struct Said {
    Form form = {};
    bool is_all = false;
    bool is_all_in_schema = false;  // the same for the part of the form that JSON Schema can express
};

// form_of_text describes the properties that all strings in a language have in common.
Said form_of_text(Languages& languages, Language one);

// form_of_number describes a language of ints by its minimum and maximum only.
Said form_of_number(const Languages& languages, Language one);

// language_of returns the strings that satisfy a form, ignoring its pattern.
Language language_of(Languages& languages, const Form& form);

// Offer is the part of a language that users should be offered: numbers without spaces or leading zeros, and
// keywords in the case in which they are listed.
struct Offer {
    Form form;
    Language language;
};

// offer_of returns nothing if users should be offered the whole language.
std::optional<Offer> offer_of(Languages& languages, Language one, const Form& form);

// item_of returns the possible items of a list, given the form of the whole list.
Language item_of(Languages& languages, const Leaf& list, const Form& form);

// parts_of returns the conditions that all strings in a language satisfy.
std::vector<Language> parts_of(const Languages& languages, Language one);

}  // namespace ostrel::rules

#endif
