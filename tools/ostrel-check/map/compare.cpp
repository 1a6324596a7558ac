#include "map/compare.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "judge/reason.h"
#include "map/probe.h"
#include "map/search.h"
#include "map/standard.h"
#include "rules/acceptance.h"
#include "rules/language/automaton.h"

namespace ostrel::tool {

namespace {

using rules::Language;
using rules::Languages;
using Kind = Difference::Kind;

// Gateway describes the values that the check accepts and refuses, according to the check's description.
struct Gateway {
    Language accepted;  // contains every value that can be accepted
    Language refused;   // contains every value that can be refused
    bool is_decided = false;
};

class Comparer {
 public:
    Comparer(const Map& map, const MapEntry& entry, const ModelFacts& facts)
        : entry_(entry), facts_(facts), probe_(map, entry), standard_(standard_of(languages_, facts))
    {
        gateway_ = follow_check();
        has_others_ = !probe_.others().empty();
    }

    Comparison compare()
    {
        Comparison result{&entry_, &facts_};
        const auto refused = find(Kind::kRefused);
        const auto accepted = find(Kind::kAccepted);
        const auto foreign = find(Kind::kForeign);
        for (const auto& found : {refused, accepted, foreign}) {
            if (found) result.differences.push_back(*found);
        }
        const bool none_refused = !refused && is_proved_none_refused();
        const bool none_accepted = !accepted && is_proved_none_accepted();
        if (refused && accepted) {
            result.relation = Relation::kOther;
            result.is_proved = true;
        } else if (refused) {
            result.relation = Relation::kNarrower;
            result.is_proved = none_accepted;
        } else if (accepted) {
            result.relation = Relation::kWider;
            result.is_proved = none_refused;
        } else if (none_refused && none_accepted) {
            result.relation = Relation::kSame;
            result.is_proved = true;
        }
        result.tried = tried_.size();
        return result;
    }

 private:
    Gateway follow_check()
    {
        const Gateway nothing_known = {languages_.any(), languages_.any(), false};
        if (entry_.value == entry_.sources.size() || entry_.sources[entry_.value].words) return nothing_known;
        const rules::Check& check = *entry_.function->check;
        std::size_t target = 0;
        for (std::size_t left = entry_.value;; ++target) {
            if (entry_.function->arguments[target].is_only_written()) continue;
            if (left-- == 0) break;
        }
        const rules::Argument::Kind kind = check.arguments[target].kind;
        if (kind != rules::Argument::Kind::kText && kind != rules::Argument::Kind::kBuffer)
            return nothing_known;
        const rules::Claim claim = rules::Acceptance(languages_, tool::gateway(), check, target).claim();
        return {claim.holds, claim.fails, claim.is_decided};
    }

    // is_of returns whether a value would be such a difference if the check had the matching outcome.
    bool is_of(Kind kind, const std::string& value)
    {
        const bool is_ascii = std::ranges::all_of(value, [](unsigned char c) { return c < 0x80; });
        if (!is_ascii) return kind == Kind::kRefused && is_allowed_utf8(value);
        switch (kind) {
            case Kind::kRefused:
                return languages_.contains(standard_.values, value);
            case Kind::kAccepted:
                return languages_.contains(standard_.others, value);
            case Kind::kForeign:
                break;
        }
        return languages_.contains(standard_.foreign, value);
    }

    // is_allowed_utf8 depends only on the number of the string's characters.
    bool is_allowed_utf8(const std::string& value)
    {
        if (!standard_.is_text || !facts_.keywords.empty()) return false;
        const auto starts = [](unsigned char c) { return (c & 0xC0U) != 0x80U; };
        const auto characters = static_cast<std::size_t>(std::ranges::count_if(value, starts));
        return languages_.contains(standard_.values, std::string(characters, 'a'));
    }

    std::optional<Difference> find(Kind kind)
    {
        for (const std::string& value : entry_.tried) {
            if (auto found = look_at(kind, value)) return found;
        }
        for (const std::string& value : usual_values()) {
            if (auto found = look_at(kind, value)) return found;
        }
        return search(kind);
    }

    std::optional<Difference> look_at(Kind kind, const std::string& value)
    {
        if (!is_of(kind, value)) return std::nullopt;
        if (std::ranges::find(tried_, value) == tried_.end()) tried_.push_back(value);
        const std::optional<int> expected = probe_.predict(value);
        if (!expected || (*expected != 0) != (kind == Kind::kRefused)) return std::nullopt;
        const std::optional<int> code = probe_.judge(value);
        if (!code || *code != *expected) return std::nullopt;
        Difference found{kind, value, *code, kind == Kind::kRefused ? probe_.reason(value) : "",
                         probe_.others()};
        return found;
    }

    // search derives values from the description. If it is incomplete, some may not be differences.
    std::optional<Difference> search(Kind kind)
    {
        constexpr int kMostTexts = 8;
        Language left = disagreement(kind);
        for (int i = 0; i < kMostTexts; ++i) {
            const std::optional<std::string> value = shortest_text(languages_, left);
            if (!value) return std::nullopt;
            if (auto found = look_at(kind, *value)) return found;
            left = languages_.both({left, languages_.negated(languages_.text(*value))});
        }
        return std::nullopt;
    }

    Language disagreement(Kind kind)
    {
        if (kind == Kind::kRefused) return languages_.both({standard_.values, gateway_.refused});
        if (kind == Kind::kAccepted) return languages_.both({standard_.others, gateway_.accepted});
        return languages_.both({standard_.foreign, gateway_.accepted});
    }

    bool is_proved_none_refused()
    {
        if (!gateway_.is_decided || has_others_ || !standard_.is_known) return false;
        // A number that does not fit in an int is read as a different number.
        const bool has_beyond =
            facts_.type == "unsignedInt" &&
            languages_.contains(standard_.values, std::to_string(std::numeric_limits<unsigned>::max()));
        if (has_beyond && reads_number(languages_, gateway_.accepted)) return false;
        return rules::is_empty(languages_, languages_.both({standard_.most, gateway_.refused}));
    }

    bool is_proved_none_accepted()
    {
        if (!gateway_.is_decided || has_others_ || !standard_.is_known) return false;
        const Language form = standard_.is_text ? languages_.any() : standard_.form;
        return rules::is_empty(
            languages_, languages_.both({form, gateway_.accepted, languages_.negated(standard_.least)}));
    }

    // usual_values returns the values that people would try first.
    std::vector<std::string> usual_values()
    {
        std::vector<std::string> values = {"1x", ""};
        const auto add_number = [&](long long number) {
            for (const long long one : {number - 1, number, number + 1})
                values.push_back(std::to_string(one));
        };
        add_number(0);
        for (const Range& range : facts_.numbers) {
            if (range.low) add_number(*range.low);
            if (range.high) add_number(*range.high);
        }
        for (const char* const number : {"2147483647", "2147483648", "4294967295"})
            values.emplace_back(number);
        values.insert(values.end(), facts_.keywords.begin(), facts_.keywords.end());
        for (const char* const text :
             {"true", "false", "2026-11-22T12:00:00", "2026-11-22T12:00:00Z", "2026-11-22T12:00:00+01:00",
              "0001-01-01T00:00:00Z", "192.168.1.1", "192.168.1.2", "10.0.0.1", "0.0.0.0", "255.255.255.0",
              "02:00:00:00:00:01", "a", "a b", "\xC3\xA4"})
            values.emplace_back(text);
        for (const auto& lengths : {facts_.lengths, facts_.list_lengths}) {
            for (const Range& range : lengths) add_lengths(range, values);
        }
        return values;
    }

    static void add_lengths(const Range& range, std::vector<std::string>& values)
    {
        constexpr long long kLongest = 40'000;
        for (const long long length : {range.low.value_or(0), range.high.value_or(0)}) {
            if (length > kLongest) continue;
            for (const long long one : {length - 1, length, length + 1}) {
                if (one > 0) values.emplace_back(static_cast<std::size_t>(one), 'a');
            }
            std::string text;
            for (long long i = 0; i < length; ++i) text += "\xC3\xA4";
            values.push_back(std::move(text));
        }
    }

    const MapEntry& entry_;
    const ModelFacts& facts_;
    Probe probe_;
    Languages languages_;
    Standard standard_;
    Gateway gateway_;
    bool has_others_ = false;
    std::vector<std::string> tried_;
};

}  // namespace

std::string_view name_of(Relation relation)
{
    switch (relation) {
        case Relation::kSame:
            return "same";
        case Relation::kNarrower:
            return "narrower";
        case Relation::kWider:
            return "wider";
        case Relation::kOther:
            return "other";
        case Relation::kUnknown:
            break;
    }
    return "unknown";
}

Comparison compare(const Map& map, const MapEntry& entry, const ModelFacts& facts)
{
    return Comparer(map, entry, facts).compare();
}

}  // namespace ostrel::tool
