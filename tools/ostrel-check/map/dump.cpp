#include "map/dump.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace ostrel::tool {

namespace {

constexpr std::string_view kPathNames[] = {"parameter", "path", "name"};

bool is_null(const Member& member) { return member.is_json && member.value == "null"; }

const Member* find(std::span<const Member> members, std::string_view name)
{
    const auto found = std::ranges::find(members, name, &Member::name);
    return found == members.end() ? nullptr : &*found;
}

const Member& require(std::span<const Member> members, std::string_view name)
{
    const Member* member = find(members, name);
    if (member == nullptr) throw std::invalid_argument("there is no \"" + std::string(name) + "\"");
    if (is_null(*member)) throw std::invalid_argument("\"" + std::string(name) + "\" is null");
    return *member;
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
    path_ = {};
    record_.members.clear();
    if (is_json_) {
        read_json(text);
    } else {
        read_row(text);
    }
}

void Dump::read_path(std::string_view name)
{
    const Member& path = require(record_.members, name);
    if (path.is_json) throw std::invalid_argument("\"" + std::string(name) + "\" must be a string");
    if (path.value.empty())
        throw std::invalid_argument("\"" + std::string(name) + "\" is empty, so no parameter is named");
    path_ = path.value;
}

void Dump::read_gateway()
{
    gateway_ = reading_.group.empty() ? std::string_view() : require(record_.members, reading_.group).value;
}

// path_name returns the column or member with a row's path, or an empty string if there is none.
std::string_view Dump::path_name() const
{
    if (!reading_.parameter.empty()) return reading_.parameter;
    std::string_view null_name;
    for (const std::string_view name : kPathNames) {
        const Member* member = find(record_.members, name);
        if (member == nullptr) continue;
        if (!is_null(*member)) return name;
        null_name = name;
    }
    return null_name;
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
    const bool has_path = !name.empty() && find(record_.members, name) != nullptr;
    const bool has_value = find(record_.members, value) != nullptr;
    // A row's value may be an object with base64. A gateway may have a name and a single parameter.
    const bool is_row = has_path && (json_.size() == 0 ||
                                     (json_.size() == 1 && (has_value || json_.parameter(0).path == value)));
    if (!is_row) {
        is_whole_gateway_ = true;
        count_ = json_.size();
        return;
    }
    std::erase_if(record_.members, [&](const Member& one) { return one.name == value; });
    read_path(name);
    read_gateway();
    const bool is_decoded = json_.size() == 1 && json_.parameter(0).path == value;  // from base64
    value_ = is_decoded ? json_.parameter(0).value : json_.bytes_of(require(json_.members(), value));
    count_ = 1;
}

void Dump::read_row(std::string_view text)
{
    if (reader_->read(text, 0, record_) == Found::kNothing) return;
    const std::string_view name = path_name();
    if (name.empty())
        throw std::invalid_argument("no column for the paths of parameters; name it with --parameter");
    read_path(name);
    read_gateway();
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
