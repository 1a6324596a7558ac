// A line of a batch: words, or a JSON object.
#ifndef OSTREL_TOOLS_LINE_H
#define OSTREL_TOOLS_LINE_H

#include <string_view>
#include <vector>

#include "catalogue/caller.h"
#include "catalogue/catalogue.h"
#include "words.h"

namespace ostrel::tool {

// Line reads one line after the other, with the same memory.
class Line {
 public:
    // read gives false for a line on which nothing stands but blanks or a comment. The line comes without its
    // end; a carriage return at its end belongs to that. Throws std::invalid_argument with a message for the
    // user, after which function() and values() show how far it came.
    bool read(std::string_view line);

    // function is NULL where no check could be made out.
    [[nodiscard]] const catalogue::Function* function() const { return function_; }
    [[nodiscard]] const std::vector<catalogue::Value>& values() const { return values_; }

 private:
    void read_json(std::string_view line);

    Words words_;
    const catalogue::Function* function_ = nullptr;
    std::vector<catalogue::Value> values_;
};

}  // namespace ostrel::tool

#endif
