// Lists of keywords.
#ifndef OSTREL_SUPPORT_KEYWORDS_H
#define OSTREL_SUPPORT_KEYWORDS_H

namespace ostrel {

// is_one_of tells whether the value is one of the keywords, between which a blank stands: "TCP UDP". They are one text,
// so that a list of them holds no pointers.
bool is_one_of(const char* value, const char* keywords);

// is_one_of_ignoring_case folds the letters A to Z of the value only; the keywords are in small letters.
bool is_one_of_ignoring_case(const char* value, const char* keywords);

}  // namespace ostrel

#endif
