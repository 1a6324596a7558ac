#include "map/mapper.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "rules/datum.h"
#include "write/show.h"

namespace ostrel::tool {

namespace {

// argument_of returns the argument for the source at the given index. Output-only arguments have no source.
const catalogue::Argument& argument_of(const catalogue::Function& function, std::size_t index)
{
    for (const catalogue::Argument& argument : function.arguments) {
        if (!argument.is_only_written() && index-- == 0) return argument;
    }
    return function.arguments.front();
}

}  // namespace

void add_members(const DumpRow& row, Record& record)
{
    record.members.assign(row.members.begin(), row.members.end());
    const bool has_name = row.path.empty() || record.find("parameter") != nullptr;
    if (!has_name) record.members.push_back({"parameter", row.path});
}

std::string_view Mapper::keep(std::string_view text)
{
    if (text.empty()) return {};
    char* copy = static_cast<char*>(memory_.allocate(text.size(), 1));
    std::memcpy(copy, text.data(), text.size());
    return {copy, text.size()};
}

void Mapper::begin_gateway()
{
    deferred_.clear();
    values_.clear();
    made_.clear();
    memory_.release();
    entries_ = nullptr;
    use_ = Use::kJudged;
    counts_ = {};
    next_deferred_ = 0;
    is_complete_ = false;
}

void Mapper::end_gateway() { is_complete_ = true; }

void Mapper::take(const DumpRow& row)
{
    row_ = row;
    generalise(row.path, general_, instances_);
    const auto found = map_->paths.find(general_);
    const bool is_known = found != map_->paths.end();
    entries_ = is_known ? &found->second.entries : nullptr;
    next_entry_ = 0;
    ++counts_.parameters;
    const bool is_sibling = is_known && found->second.is_sibling;
    if (is_sibling && !values_.insert_or_assign(keep(row.path), keep(row.value)).second) ++counts_.repeated;
    use_ = is_sibling ? Use::kSibling : Use::kNone;
}

// next_of_row derives the next call from the current row, or reports a row without a check.
bool Mapper::next_of_row(Record& record, Lack& lack)
{
    while (entries_ != nullptr && next_entry_ < entries_->size()) {
        const std::size_t index = (*entries_)[next_entry_++];
        const MapEntry& entry = map_->entries[index];
        if (!entry.path.matches(row_.path, instances_, own_instances_)) continue;
        if (std::ranges::find(entry.skipped, row_.value) != entry.skipped.end()) {
            use_ = std::max(use_, Use::kSkipped);
            continue;
        }
        use_ = Use::kJudged;
        if (entry.has_siblings) {
            defer(index);
            continue;
        }
        make(entry, row_, own_instances_, record, lack);
        return true;
    }
    const Use use = std::exchange(use_, Use::kJudged);
    if (use == Use::kSkipped) ++counts_.skipped;
    if (use != Use::kNone) return false;
    lack = {};
    record.clear();
    record.kind = Record::Kind::kUnmapped;
    record.line = row_.line;
    record.path = row_.path;
    return true;
}

bool Mapper::next(Record& record, Lack& lack)
{
    if (next_of_row(record, lack)) return true;
    while (is_complete_ && next_deferred_ < deferred_.size()) {
        const Deferred& one = deferred_[next_deferred_++];
        const MapEntry& entry = map_->entries[one.entry];
        if (!is_first(entry, one.instances)) continue;
        make(entry, one.row, one.instances, record, lack);
        return true;
    }
    return false;
}

void Mapper::defer(std::size_t entry)
{
    Deferred one{entry, row_, Instances(&memory_), std::pmr::vector<Member>(&memory_)};
    one.row.path = keep(row_.path);
    one.row.value = keep(row_.value);
    for (const std::string_view instance : own_instances_) {
        one.instances.push_back(one.row.path.substr(
            static_cast<std::size_t>(instance.data() - row_.path.data()), instance.size()));
    }
    for (const Member& member : row_.members)
        one.members.push_back({keep(member.name), keep(member.value), member.is_json});
    one.row.members = one.members;
    deferred_.push_back(std::move(one));
}

// is_first returns true unless the same call has already been derived from another of its parameters.
bool Mapper::is_first(const MapEntry& entry, std::span<const std::string_view> instances)
{
    std::string call = std::to_string(entry.call);
    for (const Source& source : entry.sources) {
        if (source.kind == Source::Kind::kValue) entry.path.append(call.append(" "), instances);
        for (const PathPattern& path : source.paths) path.append(call.append(" "), instances);
    }
    return made_.insert(std::move(call)).second;
}

void Mapper::make(const MapEntry& entry, const DumpRow& row, std::span<const std::string_view> instances,
                  Record& record, Lack& lack)
{
    record.clear();
    lack = {};
    record.line = row.line;
    record.check = entry.function->name;
    paths_.clear();
    for (std::size_t i = 0; i < entry.sources.size(); ++i) {
        if (!add_item(entry, i, row, instances, record, lack)) {
            lack.argument = argument_of(*entry.function, i).name;
            record.items.clear();
            break;
        }
    }
    add_members(entry, row, record);
}

bool Mapper::add_item(const MapEntry& entry, std::size_t argument, const DumpRow& row,
                      std::span<const std::string_view> instances, Record& record, Lack& lack)
{
    const Source& source = entry.sources[argument];
    if (source.kind == Source::Kind::kValue) return add_text(source, row.value, row.path, record, lack);
    if (source.kind == Source::Kind::kConstant) {
        record.items.push_back({Item::Kind::kText, source.constant});
        return true;
    }
    paths_.append(paths_.empty() ? "{" : ",");
    append_json_text(paths_, argument_of(*entry.function, argument).name);
    paths_ += ':';
    const bool is_several = source.paths.size() > 1;
    if (is_several) {
        record.items.push_back({Item::Kind::kTexts, {}, source.paths.size()});
        paths_ += '[';
    }
    for (const PathPattern& pattern : source.paths) {
        path_.clear();
        pattern.append(path_, instances);
        if (&pattern != source.paths.data()) paths_ += ',';
        append_json_text(paths_, path_);
        const auto found = values_.find(path_);
        if (found == values_.end()) {
            lack.id = "missing_sibling";
            lack.parameter = path_;
            lack.text = path_ + " is missing, but the check needs it";
            return false;
        }
        if (!add_text(source, found->second, found->first, record, lack)) return false;
    }
    if (is_several) paths_ += ']';
    return true;
}

bool Mapper::add_text(const Source& source, std::string_view value, std::string_view path, Record& record,
                      Lack& lack)
{
    if (source.words) {
        const auto found = source.words->find(value);
        if (found == source.words->end()) {
            lack.id = "no_word";
            lack.parameter = path;
            lack.found = value;
            for (const auto& [word, translation] : *source.words) lack.allowed.push_back(word);
            std::ranges::sort(lack.allowed);
            lack.text = std::string(path) +
                        " has a value that the map does not translate: " + rules::quoted(value) +
                        " (allowed: " + rules::in_words(lack.allowed, std::string(value)) + ")";
            return false;
        }
        value = found->second;
    }
    record.items.push_back({Item::Kind::kText, value});
    return true;
}

void Mapper::add_members(const MapEntry& entry, const DumpRow& row, Record& record)
{
    tool::add_members(row, record);
    if (!entry.has_siblings || record.items.empty()) return;
    paths_ += '}';
    record.members.push_back({"siblings", paths_, true});
}

}  // namespace ostrel::tool
