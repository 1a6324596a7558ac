#include "rules/form.h"

#include <algorithm>

#include "rules/language/automaton.h"
#include "rules/language/pattern.h"

namespace ostrel::rules {

namespace {

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

// includes_all returns true if the form without its pattern implies all parts.
bool includes_all(Languages& languages, const std::vector<Language>& parts, const Form& form)
{
    const Language said = language_of(languages, form);
    return std::ranges::all_of(parts, [&](Language part) { return includes(languages, part, said); });
}

// is_length returns true if a part only limits the length to a minimum and a maximum.
bool is_length(const Languages& languages, Language part)
{
    const Leaf* leaf = languages.leaf(part);
    return leaf != nullptr && leaf->kind == Leaf::Kind::kLength && leaf->numbers.parts().size() == 1;
}

void take_number(const Intervals& numbers, Form& form)
{
    if (numbers.low() != Intervals::kLowest) form.minimum = numbers.low();
    if (numbers.high() != Intervals::kHighest) form.maximum = numbers.high();
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

    Said write()
    {
        Said said;
        if (summary_ && summary_->is_empty) {
            said.form.keywords.emplace();
            said.is_all = said.is_all_in_schema = true;
            return said;
        }
        Form keywords;
        for (const Language part : parts_) take_keywords(part, keywords);
        said.is_all = keywords.keywords && includes_all(languages_, parts_, keywords);
        if (!said.is_all) {
            measure();
            for (const Language part : parts_) take(part);
            count_items();
            said.is_all = includes_all(languages_, parts_, form_);
            if (!said.is_all && summary_ && summary_->texts) {
                keywords = {};
                keywords.keywords = summary_->texts;
                said.is_all = true;
            }
        }
        if (said.is_all && keywords.keywords) form_ = std::move(keywords);
        said.is_all_in_schema = said.is_all && (is_plain(form_) || (form_.keywords && !form_.ignores_case));
        if (!said.is_all_in_schema) said.is_all_in_schema = write_pattern();
        said.is_all = said.is_all || said.is_all_in_schema;
        form_.reads_number = reads_number(languages_, one_);
        if (const auto offer = offer_of(languages_, one_, form_)) form_.recommended = {offer->form};
        said.form = std::move(form_);
        return said;
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
        if (!summary_) return;
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
                take_number(leaf->numbers, form_);
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

    // take_items describes an item, given the form of the whole list.
    void take_items(const Leaf& leaf)
    {
        form_.separator = leaf.byte;
        form_.trimmed = leaf.trimmed;
        form_.item = {form_of_text(languages_, item_of(languages_, leaf, form_)).form};
    }

    // count_items derives the number of items from the number of separators.
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

    // write_pattern omits parts that have no pattern, and returns true if there are no such parts. Lengths
    // need no pattern, because they are members of the form.
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
        if (written.empty()) return is_whole;
        const std::optional<std::string> pattern = pattern_of(languages_, languages_.both(written));
        form_.pattern = pattern.value_or("");
        return is_whole && pattern;
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

Said form_of_text(Languages& languages, Language one) { return Writer(languages, one).write(); }

Said form_of_number(const Languages& languages, Language one)
{
    Said said{{}, one == languages.any()};
    const Leaf* leaf = languages.leaf(one);
    if (leaf == nullptr || leaf->kind != Leaf::Kind::kNumber) return said;
    take_number(leaf->numbers, said.form);
    said.is_all = leaf->numbers.parts().size() == 1;
    return said;
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
