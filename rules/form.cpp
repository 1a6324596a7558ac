#include "rules/form.h"

#include <algorithm>

#include "rules/language/automaton.h"
#include "rules/language/pattern.h"

namespace ostrel::rules {

namespace {

// reads_number tells whether a number is read anywhere.
bool reads_number(const Languages& languages, Language one)
{
    const Leaf* leaf = languages.leaf(one);
    if (leaf != nullptr && leaf->kind == Leaf::Kind::kNumber) return true;
    const bool has_inner =
        leaf != nullptr && (leaf->kind == Leaf::Kind::kWithin || leaf->kind == Leaf::Kind::kItems);
    if (has_inner) return reads_number(languages, leaf->inner);
    if (leaf != nullptr) return false;
    return std::ranges::any_of(languages.node(one).of,
                               [&](Language part) { return reads_number(languages, part); });
}

// includes_all tells whether what the form says in words is all that the parts need.
bool includes_all(Languages& languages, const std::vector<Language>& parts, const Form& form)
{
    const Language said = language_of(languages, form);
    return std::ranges::all_of(parts, [&](Language part) { return includes(languages, part, said); });
}

// is_length tells whether all that a part says is a least and a greatest length.
bool is_length(const Languages& languages, Language part)
{
    const Leaf* leaf = languages.leaf(part);
    return leaf != nullptr && leaf->kind == Leaf::Kind::kLength && leaf->numbers.parts().size() == 1;
}

bool is_plain(const Form& form)
{
    Form plain;
    plain.min_length = form.min_length;
    plain.max_length = form.max_length;
    plain.characters = form.characters;
    return form == plain;
}

class Writer {
 public:
    Writer(Languages& languages, Language one)
        : languages_(languages),
          one_(one),
          parts_(parts_of(languages, one)),
          summary_(summary_of(languages, one))
    {
    }

    Form write(bool& says_all)
    {
        Form keywords;
        for (const Language part : parts_) take_keywords(part, keywords);
        says_all = keywords.keywords && includes_all(languages_, parts_, keywords);
        if (!says_all) {
            measure();
            for (const Language part : parts_) take(part);
            count_items();
            says_all = includes_all(languages_, parts_, form_);
            if (!says_all && summary_ && summary_->texts) {
                keywords = {};
                keywords.keywords = summary_->texts;
                says_all = true;
            }
        }
        if (says_all && keywords.keywords) form_ = std::move(keywords);
        const bool are_words_enough =
            says_all && (is_plain(form_) || (form_.keywords && !form_.ignores_case));
        if (!are_words_enough) says_all = write_pattern() || says_all;
        form_.reads_number = reads_number(languages_, one_);
        if (const auto offer = offer_of(languages_, one_, form_)) form_.recommended = {offer->form};
        return std::move(form_);
    }

 private:
    void take_keywords(Language part, Form& form)
    {
        const Leaf* leaf = languages_.leaf(part);
        if (leaf == nullptr || leaf->kind != Leaf::Kind::kWords || form.keywords) return;
        form.ignores_case = leaf->ignores_case;
        form.keywords.emplace();
        for (const std::string& word : leaf->words) {
            if (leaf->ignores_case || languages_.contains(one_, word)) form.keywords->push_back(word);
        }
    }

    void measure()
    {
        if (!summary_ || summary_->is_empty) return;
        if (summary_->shortest > 0) form_.min_length = summary_->shortest;
        form_.max_length = summary_->longest;
        if (summary_->bytes != kEveryByte && form_.max_length != 0) form_.characters = summary_->bytes;
        const std::vector<long long>& lengths = summary_->lengths;
        const bool has_gaps = !lengths.empty() && lengths.back() - lengths.front() >= std::ssize(lengths);
        if (has_gaps) form_.lengths = lengths;
    }

    void take(Language part)
    {
        const Leaf* leaf = languages_.leaf(part);
        if (leaf == nullptr) return;
        switch (leaf->kind) {
            case Leaf::Kind::kLength:
                if (!summary_) take_length(leaf->numbers);
                break;
            case Leaf::Kind::kNumber:
                if (leaf->numbers.low() != Intervals::kLowest) form_.minimum = leaf->numbers.low();
                if (leaf->numbers.high() != Intervals::kHighest) form_.maximum = leaf->numbers.high();
                break;
            case Leaf::Kind::kPrefix:
                if (!form_.prefixes.empty()) break;
                form_.prefixes = leaf->words;
                form_.ignores_case = leaf->ignores_case;
                break;
            case Leaf::Kind::kShape:
                if (form_.shapes.empty()) form_.shapes = leaf->shapes;
                break;
            case Leaf::Kind::kItems:
                if (!form_.separator) take_items(*leaf);
                break;
            default:
                break;
        }
    }

    void take_length(const Intervals& lengths)
    {
        if (lengths.low() > 0) form_.min_length = static_cast<std::size_t>(lengths.low());
        if (lengths.high() != Intervals::kHighest)
            form_.max_length = static_cast<std::size_t>(lengths.high());
    }

    // take_items says of an item what it can be beside what the whole text can.
    void take_items(const Leaf& leaf)
    {
        form_.separator = leaf.byte;
        form_.trimmed = leaf.trimmed;
        bool says_all = false;
        form_.item = {form_of_text(languages_, item_of(languages_, leaf, form_), says_all)};
    }

    // count_items makes the number of items of that of separators.
    void count_items()
    {
        for (const Language part : parts_) {
            const Leaf* leaf = languages_.leaf(part);
            if (leaf == nullptr || leaf->kind != Leaf::Kind::kCount || form_.separator != leaf->byte)
                continue;
            if (leaf->numbers.low() > 0) form_.min_items = static_cast<std::size_t>(leaf->numbers.low() + 1);
            if (leaf->numbers.high() != Intervals::kHighest)
                form_.max_items = static_cast<std::size_t>(leaf->numbers.high() + 1);
        }
    }

    // write_pattern leaves out what has no pattern, and tells whether that was nothing.
    bool write_pattern()
    {
        bool is_whole = true;
        std::vector<Language> written;
        for (const Language part : parts_) {
            if (is_length(languages_, part)) continue;
            if (pattern_of(languages_, part)) {
                written.push_back(part);
            } else {
                is_whole = false;
            }
        }
        if (!written.empty()) form_.pattern = *pattern_of(languages_, languages_.both(written));
        return is_whole;
    }

    Languages& languages_;
    Language one_;
    std::vector<Language> parts_;
    std::optional<Summary> summary_;
    Form form_;
};

}  // namespace

std::vector<Language> parts_of(const Languages& languages, Language one)
{
    const Node& node = languages.node(one);
    if (one == languages.any()) return {};
    return node.kind == Node::Kind::kBoth ? node.of : std::vector<Language>{one};
}

Language item_of(Languages& languages, const Leaf& list, const Form& form)
{
    const Set separator(std::string_view(&list.byte, 1));
    const Set bytes = form.characters.value_or(kEveryByte) - separator;
    return languages.both({list.inner, languages.repeated(bytes)});
}

Form form_of_text(Languages& languages, Language one, bool& says_all)
{
    return Writer(languages, one).write(says_all);
}

Form form_of_number(const Languages& languages, Language one, bool& says_all)
{
    Form form;
    const Leaf* leaf = languages.leaf(one);
    says_all = one == languages.any();
    if (leaf == nullptr || leaf->kind != Leaf::Kind::kNumber) return form;
    if (leaf->numbers.low() != Intervals::kLowest) form.minimum = leaf->numbers.low();
    if (leaf->numbers.high() != Intervals::kHighest) form.maximum = leaf->numbers.high();
    says_all = leaf->numbers.parts().size() == 1;
    return form;
}

Language language_of(Languages& languages, const Form& form)
{
    std::vector<Language> parts;
    const auto limit = [](const auto& given, long long none) {
        return given ? static_cast<long long>(*given) : none;
    };
    parts.push_back(
        languages.of_length({limit(form.min_length, 0), limit(form.max_length, Intervals::kHighest)}));
    if (!form.lengths.empty()) parts.push_back(languages.of_length(Intervals::of(form.lengths)));
    if (form.characters) parts.push_back(languages.repeated(*form.characters));
    if (form.keywords) parts.push_back(languages.words(*form.keywords, form.ignores_case));
    if (!form.prefixes.empty()) parts.push_back(languages.with_prefix(form.prefixes, form.ignores_case));
    if (!form.shapes.empty()) parts.push_back(languages.of_shape(form.shapes).value_or(languages.any()));
    parts.push_back(languages.of_number(
        {limit(form.minimum, Intervals::kLowest), limit(form.maximum, Intervals::kHighest)}));
    if (form.separator) {
        parts.push_back(
            languages.items(*form.separator, form.trimmed, language_of(languages, form.item.front())));
        parts.push_back(languages.with_count(
            *form.separator,
            Intervals(limit(form.min_items, 1), limit(form.max_items, Intervals::kHighest)).moved(-1)));
    }
    return languages.both(parts);
}

}  // namespace ostrel::rules
