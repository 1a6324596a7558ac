#include "web/reasons/told.h"

#include <forward_list>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "rules/reason_json.h"

namespace ostrel::web {

namespace {

using rules::Set;

// kMostSets limits the number of sets whose JSON is cached. It exceeds the number of sets in the
// descriptions, so only sets that callers pass are converted more than once.
constexpr std::size_t kMostSets = 64;

struct KnownSet {
    Set set;
    std::string json;
};

std::forward_list<KnownSet> known_sets;
std::size_t known_count = 0;

// other_json is the JSON of a set that is not cached.
std::string other_json;

Told::Text text_of(std::string_view text) { return {text.data(), text.size()}; }

std::int32_t number_of(const std::optional<std::size_t>& number)
{
    return number ? static_cast<std::int32_t>(*number) : Told::kNone;
}

// at stores an address, which is 32 bits wide in WebAssembly.
Told::Datum at(Told::Datum::Kind kind, const void* begin, std::size_t count)
{
    return {kind, static_cast<std::int32_t>(reinterpret_cast<std::uintptr_t>(begin)),
            static_cast<std::int32_t>(count)};
}

Told::Datum number(long long value)
{
    return {Told::Datum::kNumber, static_cast<std::int32_t>(value), static_cast<std::int32_t>(value >> 32)};
}

const std::string* known_json(const Set& set)
{
    for (const KnownSet& known : known_sets) {
        if (known.set == set) return &known.json;
    }
    if (known_count == kMostSets) return nullptr;
    ++known_count;
    KnownSet& known = known_sets.emplace_front();
    known.set = set;
    append_json_datum(known.json, set, rules::append_json_text);
    return &known.json;
}

Told::Datum set(const Set& members)
{
    if (const std::string* known = known_json(members))
        return at(Told::Datum::kKeptJson, known->data(), known->size());
    other_json.clear();
    append_json_datum(other_json, members, rules::append_json_text);
    return at(Told::Datum::kJson, other_json.data(), other_json.size());
}

// The page reads a std::string_view as its address and its size.
static_assert(sizeof(std::string_view) == sizeof(Told::Text) &&
              sizeof(long long) == 2 * sizeof(std::int32_t));

Told::Datum datum_of(const rules::Datum& datum)
{
    if (const auto* one = std::get_if<long long>(&datum)) return number(*one);
    if (const auto* text = std::get_if<std::string>(&datum))
        return at(Told::Datum::kText, text->data(), text->size());
    if (const auto* members = std::get_if<Set>(&datum)) return set(*members);
    if (const auto* texts = std::get_if<std::vector<std::string_view>>(&datum))
        return at(Told::Datum::kTexts, texts->data(), texts->size());
    if (const auto* numbers = std::get_if<std::vector<long long>>(&datum))
        return at(Told::Datum::kNumbers, numbers->data(), numbers->size());
    return {};
}

}  // namespace

void tell(Told& told, const rules::Reason& reason, std::string_view sentence)
{
    told.id = text_of(reason.id);
    told.part = text_of(reason.part);
    told.conversion = text_of(reason.conversion);
    told.item_text = text_of(reason.item_text);
    told.limit = text_of(reason.limit);
    told.argument = number_of(reason.argument);
    told.item = number_of(reason.item);
    told.offset = number_of(reason.offset);
    told.found = datum_of(reason.found);
    told.allowed = datum_of(reason.allowed);
    told.read_as = reason.read_as ? number(*reason.read_as) : Told::Datum();
    told.sentence = text_of(sentence);
}

}  // namespace ostrel::web
