#include "read/cases.h"

#include <stdexcept>

#include "read/bind.h"

namespace ostrel::tool {

void Cases::open(std::size_t file, FileFormat format, std::string_view preamble)
{
    if (reader_ != nullptr && file == file_) return;
    reader_.reset();
    file_ = file;
    preamble_ = preamble;
    reader_ = make_reader(format, *reading_, preamble_);
}

bool Cases::read(std::string_view text, std::size_t part)
{
    function_ = nullptr;
    found_ = Found::kNothing;
    try {
        found_ = reader_->read(text, part, record_);
    } catch (const std::invalid_argument&) {
        function_ = catalogue::find(record_.check);
        throw;
    }
    if (found_ == Found::kNothing) return false;
    if (record_.kind != Record::Kind::kCase) return true;
    if (!record_.problem.empty()) {
        function_ = catalogue::find(record_.check);
        throw std::invalid_argument(std::string(record_.problem));
    }
    function_ = &bind_check(record_);
    bind(*function_, without_spares(*function_, record_), values_);
    return true;
}

}  // namespace ostrel::tool
