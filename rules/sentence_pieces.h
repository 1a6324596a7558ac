// The pieces of sentences. It is for sentences.cpp, which has the table, and say.cpp, which fills them in.
#ifndef OSTREL_RULES_SENTENCE_PIECES_H
#define OSTREL_RULES_SENTENCE_PIECES_H

#include <array>
#include <cstddef>
#include <string_view>

#include "rules/sentences.h"

namespace ostrel::rules {

// Field is what stands in a sentence in the place of a name.
enum class Field : unsigned char {
    kText,  // as it stands
    kFound,
    kFoundForms,  // "byte|bytes"
    kAllowed,
    kAllowedForms,
    kForm,
    kByte,
    kPosition,
    kRange,
    kRead,
    kReadAs,
    kLimit,
};

// Piece is a field, or a part of the sentence's text.
struct Piece {
    Field field = Field::kText;
    unsigned char begin = 0;  // of that text, or of the forms
    unsigned char size = 0;
};

struct Pieces {
    static constexpr std::size_t kMost = 12;

    std::array<Piece, kMost> all{};
    std::size_t count = 0;
};

// taken_apart throws std::logic_error for a field that there is not.
Pieces taken_apart(std::string_view text);

// find_sentence returns the one of that id, or NULL.
const Sentence* find_sentence(std::string_view id);

// pieces_of takes one of the table.
const Pieces& pieces_of(const Sentence& sentence);

}  // namespace ostrel::rules

#endif
