#include "catalogue/hazards.h"

#include <algorithm>
#include <set>

#include "catalogue/caller.h"
#include "catalogue/capture.h"

namespace ostrel::catalogue {

namespace {

constexpr std::size_t kMostSeeds = 10;
constexpr std::size_t kMostPlaces = 24;  // of a seed
constexpr std::size_t kLongestSeed = 300;

std::string range(int first, int last)
{
    std::string bytes;
    for (int byte = first; byte <= last; ++byte) bytes += static_cast<char>(byte);
    return bytes;
}

bool is_letter_or_digit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z');
}

// texts_of gives the texts that an argument holds, to be looked at or changed.
std::vector<std::string*> texts_of(Value& value)
{
    std::vector<std::string*> texts;
    if (auto* text = std::get_if<std::string>(&value)) texts.push_back(text);
    if (auto* blocks = std::get_if<std::vector<std::string>>(&value)) {
        for (std::string& block : *blocks) texts.push_back(&block);
    }
    return texts;
}

// Trial tries values of one argument.
class Trial {
 public:
    Trial(const Function& function, std::size_t argument) : function_(&function), argument_(argument)
    {
        for (std::size_t i = 0; i < argument; ++i)
            if (is_written(function.arguments[i])) ++output_;
    }

    void run(const std::vector<Row>& seeds, const std::vector<Row>& rows)
    {
        for (const Row& row : rows) {
            if (row.code != 0) continue;
            values_ = row.values;
            for (std::string* text : texts_of(values_)) call(*text);
        }
        for (const Row& seed : seeds) {
            for (std::string* text : texts_of(values_ = seed.values)) try_around(*text);
        }
    }

    std::vector<Places> found()
    {
        std::vector<Places> result;
        for (const Hazard& hazard : hazards()) {
            Places places;
            for (const char c : hazard.bytes) {
                const auto byte = static_cast<unsigned char>(c);
                places.first |= first_[byte];
                places.inside |= inside_[byte];
                places.last |= last_[byte];
                if (first_[byte] || inside_[byte] || last_[byte]) places.bytes += c;
            }
            result.push_back(places);
        }
        return result;
    }

 private:
    static bool is_written(const Argument& argument)
    {
        return argument.kind == Kind::kBuffer || argument.kind == Kind::kBlocks ||
               argument.kind == Kind::kIntegerOut;
    }

    std::vector<std::string*> texts_of(std::vector<Value>& values) const
    {
        return catalogue::texts_of(values[argument_]);
    }

    void try_around(std::string& text)
    {
        const std::string seed = text;
        if (seed.size() > kLongestSeed) return;
        std::set<std::size_t> places = {0, seed.size()};
        for (std::size_t i = 1; i < kMostPlaces; ++i) places.insert(i * seed.size() / kMostPlaces);
        for (int byte = 1; byte < 256; ++byte) {
            const char c = static_cast<char>(byte);
            if (is_letter_or_digit(c)) continue;
            for (const std::size_t place : places) {
                if (is_known(static_cast<unsigned char>(c), place, seed.size())) continue;
                text = seed;
                text.insert(place, 1, c);
                call(text);
                if (place == seed.size() && place > 0) {
                    text = seed;
                    text.back() = c;
                    call(text);
                } else if (place < seed.size()) {
                    text = seed;
                    text[place] = c;
                    call(text);
                }
            }
        }
        text = seed;
    }

    // is_known tells that a byte was accepted where it would stand; nothing is learnt from trying it again.
    [[nodiscard]] bool is_known(unsigned char byte, std::size_t place, std::size_t size) const
    {
        if (place == 0) return first_[byte] && (size > 0 || last_[byte]);
        return place == size ? last_[byte] : inside_[byte];
    }

    void call(const std::string& text)
    {
        if (!may_be_called(*function_, values_)) return;
        const Argument& argument = function_->arguments[argument_];
        if (argument.kind == Kind::kBlocks && text.size() >= argument.capacity) return;
        caller_.load(*function_, values_);
        const int code = caller_.call();
        capture_.clear();
        if (code != 0) return;
        if (!is_written(argument)) {
            note(text);
            return;
        }
        std::vector<Written> written = caller_.written();
        for (const std::string* held : catalogue::texts_of(written[output_].value)) note(*held);
    }

    void note(const std::string& text)
    {
        for (std::size_t i = 0; i < text.size(); ++i) {
            const auto byte = static_cast<unsigned char>(text[i]);
            if (i == 0) first_[byte] = true;
            if (i + 1 == text.size()) last_[byte] = true;
            if (i > 0 && i + 1 < text.size()) inside_[byte] = true;
        }
    }

    const Function* function_;
    std::size_t argument_;
    std::size_t output_ = 0;
    std::vector<Value> values_;
    Caller caller_;
    Capture capture_;
    std::array<bool, 256> first_{};
    std::array<bool, 256> inside_{};
    std::array<bool, 256> last_{};
};

std::size_t size_of(const Row& row)
{
    std::size_t size = 0;
    for (const Value& value : row.values) {
        if (const auto* text = std::get_if<std::string>(&value)) size += text->size();
    }
    return size;
}

// with_every_byte gives a row in which the sets of bytes that are arguments hold them all.
Row with_every_byte(const Function& function, Row row)
{
    for (std::size_t i = 0; i < row.values.size(); ++i) {
        const std::string_view name = function.arguments[i].name;
        if (name == "charset" || name == "allowed") row.values[i] = range(1, 255);
    }
    return row;
}

// seeds_of picks accepted values evenly from the shortest to the longest.
std::vector<Row> seeds_of(const Function& function, const std::vector<Row>& rows)
{
    std::vector<Row> accepted;
    for (const Row& row : rows) {
        if (row.code == 0 && may_be_called(function, row.values))
            accepted.push_back(with_every_byte(function, row));
    }
    std::ranges::stable_sort(accepted, {}, size_of);
    if (accepted.size() <= kMostSeeds) return accepted;
    std::vector<Row> seeds;
    seeds.reserve(kMostSeeds);
    for (std::size_t i = 0; i < kMostSeeds; ++i) {
        seeds.push_back(accepted[i * (accepted.size() - 1) / (kMostSeeds - 1)]);
    }
    return seeds;
}

}  // namespace

const std::vector<Hazard>& hazards()
{
    static const std::string controls = range(1, 9) + range(11, 12) + range(14, 31) + "\x7F";
    static const std::string high = range(0x80, 0xFF);
    static const std::vector<Hazard> all = {
        {"blanks", "blank", " "},
        {"quotes", "quotes ' \" `", "'\"`"},
        {"shell", "shell $ ; | & < > ( ) { } [ ] * ? ! # ~ =", "$;|&<>(){}[]*?!#~="},
        {"line_ends", "line ends", "\n\r"},
        {"controls", "control bytes", controls},
        {"markup", "markup < > &", "<>&"},
        {"percent", "%", "%"},
        {"backslash", "backslash", "\\"},
        {"high", "bytes above 0x7F", high},
    };
    return all;
}

std::string describe(const Places& places)
{
    if (!places.any()) return "never";
    if (places.first && places.inside && places.last) return "anywhere";
    std::string text;
    const auto add = [&](bool is_there, std::string_view what) {
        if (is_there) text.append(text.empty() ? "" : ", ").append(what);
    };
    add(places.first, "first");
    add(places.inside, "inside");
    add(places.last, "last");
    return text;
}

bool may_be_called(const Function& function, const std::vector<Value>& values)
{
    const auto* text = values.empty() ? nullptr : std::get_if<std::string>(values.data());
    if (function.name == "PARAM_check_ui2_value" || function.name == "PARAM_check_ui4_value") {
        return text != nullptr && (text->empty() || text->front() < '0' || text->front() > '9');
    }
    if (function.name != "WLAN_check_channel" || values.size() != 2) return true;
    const auto* radio = std::get_if<std::string>(&values[1]);
    return radio != nullptr && text != nullptr && (*text == "0" || radio->find("2.4") == std::string::npos);
}

std::vector<Exposure> exposures_of(const Function& function, const std::vector<Row>& rows)
{
    std::vector<Exposure> result;
    if (!function.is_verdict) return result;
    const std::vector<Row> seeds = seeds_of(function, rows);
    for (std::size_t i = 0; i < function.arguments.size(); ++i) {
        const Argument& argument = function.arguments[i];
        const bool is_text =
            argument.kind == Kind::kText || argument.kind == Kind::kBuffer || argument.kind == Kind::kBlocks;
        if (!is_text || argument.output_only) continue;
        Trial trial(function, i);
        trial.run(seeds, rows);
        result.push_back({&argument, trial.found()});
    }
    return result;
}

}  // namespace ostrel::catalogue
