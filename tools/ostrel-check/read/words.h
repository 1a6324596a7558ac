// Splits a line as a shell would split it, and converts words to the values of a check's arguments.
#ifndef OSTREL_TOOLS_READ_WORDS_H
#define OSTREL_TOOLS_READ_WORDS_H

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "calling/caller.h"
#include "catalogue/catalogue.h"
#include "read/record.h"

namespace ostrel::tool {

// Words contains the words of a line. Its memory is reused for the next line.
class Words {
 public:
    // split reads words separated by blanks, 'literal text', "text with escapes", escapes outside quotation
    // marks, and comments that begin with # where a word could begin. Throws std::invalid_argument with a
    // message for the user.
    void split(std::string_view line);

    [[nodiscard]] std::span<const std::string> all() const { return {words_.data(), count_}; }

    // item returns the item for a word. A word with quotation marks or escapes is never NULL.
    [[nodiscard]] Item item(std::size_t word) const;

 private:
    std::size_t read_word(std::string_view line, std::size_t at);

    std::vector<std::string> words_;
    std::vector<bool> are_plain_;
    std::size_t count_ = 0;
};

// read_escapes decodes \xNN, \n, \r and \t, and removes a \ before any character that is neither a letter nor
// a digit. Throws std::invalid_argument for anything else after a \.
std::string read_escapes(std::string_view text);

// kNull is the word for NULL. The word "@@null" stands for the value "@null", and so on.
inline constexpr std::string_view kNull = "@null";

// item_of returns the item for a word. The item's text is a view into the word.
Item item_of(std::string_view word);

// read_values takes a word for each block: a number, a string or NULL. The output-only arguments must all be
// given or all be omitted. Throws std::invalid_argument.
void read_values(const catalogue::Function& function, std::span<const std::string> words,
                 std::vector<catalogue::Value>& values);

// usage_of returns the name of a check and its arguments, for example "NAME value min:number".
std::string usage_of(const catalogue::Function& function);

}  // namespace ostrel::tool

#endif
