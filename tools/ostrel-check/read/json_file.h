// Reads records that are the elements of a JSON array, or consecutive objects.
#ifndef OSTREL_TOOLS_READ_JSON_FILE_H
#define OSTREL_TOOLS_READ_JSON_FILE_H

#include <memory>
#include <string_view>

#include "read/cutter.h"
#include "read/json_object.h"
#include "read/reader.h"

namespace ostrel::tool {

// JsonReader reads an element together with the blanks, line endings and comma after it.
class JsonReader : public Reader {
 public:
    explicit JsonReader(const Reading& reading) : object_(reading) {}

    std::size_t next(std::string_view rest) override;
    Found read(std::string_view text, std::size_t part, Record& record) override;

 private:
    JsonObject object_;
};

// make_json_cutter returns a cutter that stops at invalid JSON and reports its line and column.
std::unique_ptr<Cutter> make_json_cutter();

}  // namespace ostrel::tool

#endif
