// Reads records that are lines of words or JSON objects.
#ifndef OSTREL_TOOLS_READ_LINES_H
#define OSTREL_TOOLS_READ_LINES_H

#include <string>

#include "read/json_object.h"
#include "read/reader.h"
#include "read/words.h"

namespace ostrel::tool {

class LineReader : public Reader {
 public:
    // If only_json is set, a line of words is reported as invalid JSON.
    LineReader(const Reading& reading, bool only_json);

    std::size_t next(std::string_view rest) override;
    Found read(std::string_view text, std::size_t part, Record& record) override;

 private:
    void read_words(std::string_view line, Record& record);

    const Reading* reading_;
    bool only_json_;
    JsonObject object_;
    Words words_;
    std::string encoded_;
};

}  // namespace ostrel::tool

#endif
