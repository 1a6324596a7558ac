#include "map/dump.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace ostrel::tool {

namespace {

constexpr std::string_view kPathNames[] = {"parameter", "path", "name"};

const Member* find(std::span<const Member> members, std::string_view name)
{
    const auto found = std::ranges::find(members, name, &Member::name);
    return found == members.end() ? nullptr : &*found;
}

}  // namespace

Reading plain_reading(const Reading& reading)
{
    Reading plain = reading;
    plain.map = nullptr;
    plain.check.clear();
    plain.needs_check = false;
    plain.is_strict = false;
    if (plain.values.empty()) plain.values = {"value"};
    return plain;
}

Dump::Dump(FileFormat format, const Reading& reading, std::string_view preamble)
    : reading_(plain_reading(reading)),
      is_json_(format == FileFormat::kJson || format == FileFormat::kNdjson),
      json_(reading.encoding)
{
    reader_ = make_reader(format, reading_, preamble);
}

void Dump::read(std::string_view text)
{
    next_ = 0;
    count_ = 0;
    is_whole_gateway_ = false;
    if (is_json_) {
        read_json(text);
    } else {
        read_row(text);
    }
}

const Member& Dump::require(std::string_view name) const
{
    const Member* member = find(record_.members, name);
    if (member == nullptr) throw std::invalid_argument("there is no \"" + std::string(name) + "\"");
    return *member;
}

// path_name returns the column or member with a row's path, or an empty string if there is none.
std::string_view Dump::path_name() const
{
    if (!reading_.parameter.empty()) return reading_.parameter;
    for (const std::string_view name : kPathNames) {
        if (find(record_.members, name) != nullptr) return name;
    }
    return {};
}

void Dump::read_json(std::string_view text)
{
    // Anything after the object belongs to the enclosing array.
    const std::size_t end = text.rfind('}');
    if (end == std::string_view::npos) {
        const bool is_blank = text.find_first_not_of(" \t\r\n") == std::string_view::npos;
        if (is_blank) return;
        throw std::invalid_argument("expected a JSON object: a gateway, or a row of one");
    }
    json_.read(text.substr(0, end + 1));
    record_.members = json_.members();
    const std::string_view name = path_name();
    const std::string_view value = reading_.values.front();
    const bool is_row = json_.size() <= 1 && !name.empty() && find(record_.members, name) != nullptr;
    if (!is_row) {
        is_whole_gateway_ = true;
        count_ = json_.size();
        return;
    }
    path_ = require(name).value;
    if (json_.size() == 1 && json_.parameter(0).path == value) {
        value_ = json_.parameter(0).value;  // the value was given in base64
    } else {
        value_ = json_.bytes_of(require(value));
        std::erase_if(record_.members, [&](const Member& one) { return one.name == value; });
    }
    gateway_ = reading_.group.empty() ? std::string_view() : require(reading_.group).value;
    count_ = 1;
}

void Dump::read_row(std::string_view text)
{
    if (reader_->read(text, 0, record_) == Found::kNothing) return;
    const std::string_view name = path_name();
    if (name.empty())
        throw std::invalid_argument("no column for the paths of parameters; name it with --parameter");
    path_ = require(name).value;
    gateway_ = reading_.group.empty() ? std::string_view() : require(reading_.group).value;
    if (record_.items.empty() || record_.items.front().kind != Item::Kind::kText) return;
    value_ = record_.items.front().text;
    count_ = 1;
}

bool Dump::next_row(DumpRow& row)
{
    if (next_ == count_) return false;
    if (is_whole_gateway_) {
        const FlatJson::Parameter parameter = json_.parameter(next_);
        path_ = parameter.path;
        value_ = parameter.value;
    }
    ++next_;
    row.path = path_;
    row.value = value_;
    row.members = record_.members;
    return true;
}

}  // namespace ostrel::tool
