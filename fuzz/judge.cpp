#include "fuzz/judge.h"

#include <algorithm>
#include <stdexcept>

#include "fuzz/input.h"
#include "fuzz/report.h"

namespace ostrel::fuzz {

using catalogue::Argument;
using catalogue::Caller;
using catalogue::Function;
using catalogue::Kind;
using catalogue::Value;

namespace {

constexpr Target kTargets[] = {
    {"strings", {"strings"}},
    {"addresses", {"addresses", "subnets"}},
    {"hosts", {"hosts", "names"}},
    {"accounts", {"accounts"}},
    {"dates", {"date-time"}},
    {"parameters", {"parameters"}},
    {"wireless", {"wireless", "wlan"}},
    {"lan", {"lan", "ppp"}},
    {"ports", {"port-mapping", "forwarding"}},
    {"management", {"management", "guest-access", "hnap"}},
    {"time", {"time"}},
    {"branding", {"branding"}},
};

bool is_written(const Argument& argument)
{
    return argument.kind == Kind::kBuffer || argument.kind == Kind::kBlocks ||
           argument.kind == Kind::kIntegerOut;
}

}  // namespace

bool Target::has(const Function& function) const
{
    return std::ranges::find(families, function.family) != families.end();
}

std::span<const Target> targets() { return kTargets; }

const Target* find_target(std::string_view name)
{
    const auto* found = std::ranges::find(kTargets, name, &Target::name);
    return found == std::end(kTargets) ? nullptr : found;
}

Judge::Judge(const Target& target)
{
    for (const Function& function : catalogue::functions()) {
        if (!target.has(function)) continue;
        const auto found = model::models().find(function.name);
        if (found == model::models().end()) {
            throw std::logic_error("no model of " + std::string(function.name));
        }
        entries_.push_back({&function, found->second, std::ranges::any_of(function.arguments, is_written)});
    }
}

const Judge::Entry& Judge::decode(std::string_view input)
{
    const std::size_t choice = input.empty() ? 0 : static_cast<unsigned char>(input.front());
    const Entry& entry = entries_[choice % entries_.size()];
    decode_arguments(*entry.function, input.substr(std::min<std::size_t>(1, input.size())), values_);
    return entry;
}

std::optional<std::string> Judge::encode(const Function& function, const std::vector<Value>& values) const
{
    const auto found = std::ranges::find(entries_, &function, &Entry::function);
    if (found == entries_.end()) return std::nullopt;
    std::optional<std::string> fields = encode_arguments(function, values);
    if (fields) fields->insert(fields->begin(), static_cast<char>(found - entries_.begin()));
    return fields;
}

bool Judge::decodes(std::string_view input, const Function& function, const std::vector<Value>& values)
{
    const Entry& entry = decode(input);
    if (entry.function != &function) return false;
    if (values.size() == values_.size()) return values == values_;
    std::vector<Value> given;
    for (std::size_t i = 0; i < values_.size(); ++i) {
        if (!function.arguments[i].output_only) given.push_back(values_[i]);
    }
    return values == given;
}

Verdict Judge::run(std::string_view input)
{
    const Entry& entry = decode(input);
    const model::Answer expected = entry.model(values_);
    if (expected.undefined) return Verdict::kOutside;
    const bool agreed = agrees(entry, expected, at_end_) && agrees(entry, expected, at_begin_);
    return agreed ? Verdict::kAgreed : Verdict::kDiffered;
}

bool Judge::agrees(const Entry& entry, const model::Answer& expected, Caller& caller)
{
    caller.load(*entry.function, values_);
    capture_.clear();
    const int code = caller.call();
    const catalogue::PrintedView printed = capture_.look();
    const bool flushed = printed.flushed == printed.out.size();
    std::vector<catalogue::Written> written;
    if (entry.writes) written = caller.written();
    if (code == expected.code && printed.out == expected.out && printed.err == expected.err &&
        flushed == expected.flushed &&
        std::ranges::equal(written, expected.after, {}, &catalogue::Written::value)) {
        return true;
    }
    model::Answer actual{code, std::string(printed.out), std::string(printed.err), flushed, {}, false};
    for (catalogue::Written& one : written) actual.after.push_back(std::move(one.value));
    difference_ = tell_difference(*entry.function, values_, expected, actual);
    return false;
}

}  // namespace ostrel::fuzz
