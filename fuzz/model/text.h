// Text helpers that the models share.
#ifndef OSTREL_FUZZ_MODEL_TEXT_H
#define OSTREL_FUZZ_MODEL_TEXT_H

#include <string>
#include <string_view>

#include "fuzz/model/model.h"

namespace ostrel::model {

// format formats as printf does.
[[gnu::format(printf, 1, 2)]] std::string format(const char* form, ...);

// is_null, text and number look at an argument; text and number throw when it is of another kind.
bool is_null(const Value& value);
const std::string& text(const Value& value);
int number(const Value& value);

// undefined is the answer where the contract promises nothing.
Answer undefined();

// silent answers with a code and prints nothing.
Answer silent(int code);

// printed answers with a code and prints, flushed.
Answer printed(int code, std::string out);

// Number is a number read as atoi reads it. It is undefined where atoi is: beyond an int.
struct Number {
    int value = 0;
    bool undefined = false;
};
Number read_number(std::string_view text);

}  // namespace ostrel::model

#endif
