#include "read/csv.h"

#include <algorithm>
#include <stdexcept>

#include "catalogue/catalogue.h"
#include "read/encoding.h"

namespace ostrel::tool {

char delimiter_of(FileFormat format, const Reading& reading)
{
    return reading.delimiter.value_or(format == FileFormat::kTsv ? '\t' : ',');
}

CsvReader::CsvReader(FileFormat format, const Reading& reading, std::string_view header)
    : reading_(&reading), delimiter_(delimiter_of(format, reading))
{
    row_.split(header, delimiter_);
    names_.assign(row_.fields().begin(), row_.fields().end());
    for (const std::string& name : names_) {
        if (valid_utf8(name) < name.size()) throw std::invalid_argument("the header is not UTF-8");
    }
    const bool is_one_check =
        !reading.check.empty() && !column(reading.check) && catalogue::find(reading.check) != nullptr;
    if (!is_one_check && (reading.needs_check || !reading.check.empty())) {
        check_ = require_column(reading.check.empty() ? "check" : reading.check);
    }
    choose_values();
    choose_passed();
}

// column returns the last column with the given name, which overrides earlier ones, as in JSON.
std::optional<std::size_t> CsvReader::column(std::string_view name) const
{
    const auto found = std::ranges::find(names_.rbegin(), names_.rend(), name);
    if (found == names_.rend()) return {};
    return static_cast<std::size_t>(names_.rend() - found) - 1;
}

std::size_t CsvReader::require_column(std::string_view name) const
{
    const std::optional<std::size_t> found = column(name);
    if (found) return *found;
    std::string message = "the header has no column \"" + std::string(name) + "\"; its columns are ";
    constexpr std::size_t kMostShown = 20;
    for (std::size_t i = 0; i < std::min(names_.size(), kMostShown); ++i) {
        message.append(i > 0 ? ", \"" : "\"").append(names_[i].substr(0, 100)).append("\"");
    }
    throw std::invalid_argument(message.append(names_.size() > kMostShown ? ", ..." : ""));
}

void CsvReader::choose_values()
{
    for (const std::string& name : reading_->values) values_.push_back(require_column(name));
    if (!values_.empty()) return;
    if (column("value_1")) {
        for (std::size_t i = 1; const auto found = column("value_" + std::to_string(i)); ++i)
            values_.push_back(*found);
    } else {
        values_.push_back(require_column("value"));
    }
}

void CsvReader::choose_passed()
{
    for (std::size_t i = 0; i < names_.size(); ++i) {
        const std::string& name = names_[i];
        const bool is_last = column(name) == i;
        if (reading_->is_strict && !is_last) throw std::invalid_argument("duplicate column \"" + name + "\"");
        if (!is_last || check_ == i || std::ranges::find(values_, i) != values_.end()) continue;
        const bool is_known = name == "id" || name == "parameter";
        if (reading_->is_strict && !is_known) throw std::invalid_argument("unknown column \"" + name + "\"");
        passed_.push_back(i);
    }
}

std::size_t CsvReader::next(std::string_view rest) { return find_row_end(rest, delimiter_).size; }

Found CsvReader::read(std::string_view text, std::size_t /*part*/, Record& record)
{
    record.clear();
    if (text.find_first_not_of("\r\n") == std::string_view::npos) return Found::kNothing;
    row_.split(text, delimiter_);
    const std::vector<std::string_view>& fields = row_.fields();
    if (fields.size() != names_.size()) {
        throw std::invalid_argument("the row has " + std::to_string(fields.size()) +
                                    (fields.size() == 1 ? " field" : " fields") + "; the header has " +
                                    std::to_string(names_.size()));
    }
    record.check = check_ ? fields[*check_] : std::string_view(reading_->check);
    for (const std::size_t i : passed_) record.members.push_back({names_[i], fields[i], false});
    const std::size_t nul = text.find('\0');
    if (nul != std::string_view::npos) {
        throw std::invalid_argument("byte " + std::to_string(nul + 1) + " of the row is NUL");
    }
    items_.begin(text.size(), reading_->encoding);
    for (const std::size_t i : values_) record.items.push_back(items_.of_text(fields[i]));
    record.may_have_spares = values_.size() > 1;
    return Found::kRecord;
}

}  // namespace ostrel::tool
