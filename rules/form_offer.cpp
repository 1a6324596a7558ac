// The part of a language that users should be offered.

#include <algorithm>
#include <limits>

#include "rules/form.h"
#include "rules/language/automaton.h"
#include "rules/language/pattern.h"

namespace ostrel::rules {

namespace {

const Leaf* leaf_among(const Languages& languages, Language one, Leaf::Kind kind)
{
    for (const Language part : parts_of(languages, one)) {
        const Leaf* leaf = languages.leaf(part);
        if (leaf != nullptr && leaf->kind == kind) return leaf;
    }
    return nullptr;
}

// written returns the decimal forms of the numbers.
Language written(Languages& languages, const Intervals& numbers)
{
    std::vector<Language> parts;
    const Intervals negative = numbers & Intervals(Intervals::kLowest, -1);
    const Intervals others = numbers & Intervals(0, Intervals::kHighest);
    for (const Interval& one : negative.parts())
        parts.push_back(languages.joined({languages.text("-"), languages.decimals(-one.high, -one.low)}));
    for (const Interval& one : others.parts()) parts.push_back(languages.decimals(one.low, one.high));
    return languages.either(parts);
}

std::optional<Offer> keywords_of(Languages& languages, Language one, const std::vector<std::string>& words)
{
    Offer offer{{}, languages.both({one, languages.words(words, false)})};
    offer.form.keywords = words;
    return offer;
}

// numbers_within returns the numbers whose decimal forms are in the language.
std::optional<Intervals> numbers_within(Languages& languages, Language one, const Form& form,
                                        Intervals numbers)
{
    const auto are_free = [&] {
        return !numbers.empty() && includes(languages, one, written(languages, numbers));
    };
    numbers = numbers & Intervals(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    if (are_free()) return numbers;
    numbers = numbers & Intervals(0, Intervals::kHighest);
    if (are_free()) return numbers;
    const std::size_t longest = std::numeric_limits<int>::digits10;
    const auto power = [&](std::size_t digits) {
        return std::stoll("1" + std::string(std::min(digits, longest), '0'));
    };
    if (form.max_length) numbers = numbers & Intervals(0, power(*form.max_length) - 1);
    if (form.min_length.value_or(0) > 1)
        numbers = numbers & Intervals(power(*form.min_length - 1), Intervals::kHighest);
    if (are_free()) return numbers;
    return std::nullopt;
}

std::optional<Offer> number_of(Languages& languages, Language one, const Form& form,
                               const Intervals& accepted)
{
    const std::optional<Intervals> numbers = numbers_within(languages, one, form, accepted);
    if (!numbers) return std::nullopt;
    Offer offer{{}, written(languages, *numbers)};
    const std::optional<Summary> summary = summary_of(languages, offer.language);
    if (!summary || includes(languages, offer.language, one)) return std::nullopt;
    if (summary->texts) return keywords_of(languages, one, *summary->texts);
    offer.form.minimum = numbers->low();
    offer.form.maximum = numbers->high();
    offer.form.pattern = pattern_of(languages, offer.language).value_or("");
    return offer;
}

std::optional<Offer> list_of(Languages& languages, Language one, const Form& form, const Leaf& list)
{
    const Language item = item_of(languages, list, form);
    const std::optional<Offer> each = offer_of(languages, item, form.item.front());
    if (!each) return std::nullopt;
    // Another part is kept only if lists of the offered items can violate it.
    std::vector<Language> parts = {languages.items(list.byte, {}, each->language)};
    for (const Language part : parts_of(languages, one)) {
        if (!includes(languages, part, parts.front())) parts.push_back(part);
    }
    Offer offer{{}, languages.both(parts)};
    const std::optional<std::string> pattern = pattern_of(languages, offer.language);
    if (!pattern || is_empty(languages, offer.language)) return std::nullopt;
    offer.form.separator = form.separator;
    offer.form.min_items = form.min_items;
    offer.form.max_items = form.max_items;
    offer.form.item = {each->form};
    offer.form.pattern = *pattern;
    return offer;
}

}  // namespace

Language item_of(Languages& languages, const Leaf& list, const Form& form)
{
    const Set separator(std::string_view(&list.byte, 1));
    const Set bytes = form.characters.value_or(kEveryByte) - separator;
    return languages.both({list.inner, languages.repeated(bytes)});
}

std::optional<Offer> offer_of(Languages& languages, Language one, const Form& form)
{
    if (form.keywords) {
        return form.ignores_case ? keywords_of(languages, one, *form.keywords) : std::nullopt;
    }
    if (const Leaf* number = leaf_among(languages, one, Leaf::Kind::kNumber))
        return number_of(languages, one, form, number->numbers);
    const Leaf* list = leaf_among(languages, one, Leaf::Kind::kItems);
    return list != nullptr && form.separator ? list_of(languages, one, form, *list) : std::nullopt;
}

}  // namespace ostrel::rules
