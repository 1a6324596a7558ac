#include "rules/character_references.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>

#include "rules/sets.h"

namespace ostrel::rules {

namespace {

struct Name {
    std::string_view text;
    char byte;
};
constexpr Name kXmlNames[] = {{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}};

// The names of the characters from 0xA0 to 0xFF, in order.
constexpr std::string_view kLatin1Names[] = {
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",   "uml",    "copy",
    "ordf",   "laquo",  "not",    "shy",    "reg",    "macr",   "deg",    "plusmn", "sup2",   "sup3",
    "acute",  "micro",  "para",   "middot", "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12",
    "frac34", "iquest", "Agrave", "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil",
    "Egrave", "Eacute", "Ecirc",  "Euml",   "Igrave", "Iacute", "Icirc",  "Iuml",   "ETH",    "Ntilde",
    "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",   "times",  "Oslash", "Ugrave", "Uacute", "Ucirc",
    "Uuml",   "Yacute", "THORN",  "szlig",  "agrave", "aacute", "acirc",  "atilde", "auml",   "aring",
    "aelig",  "ccedil", "egrave", "eacute", "ecirc",  "euml",   "igrave", "iacute", "icirc",  "iuml",
    "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide", "oslash", "ugrave",
    "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml"};
static_assert(std::size(kLatin1Names) == 0x100 - 0xA0);

// kSubstitute replaces a character that is not in ISO 8859-1.
constexpr char kSubstitute = '\x1A';

std::optional<char> numbered(std::string_view digits, int base)
{
    unsigned number = 0;
    const char* const end = digits.data() + digits.size();
    const auto read = std::from_chars(digits.data(), end, number, base);
    if (read.ec == std::errc::invalid_argument || read.ptr != end) return std::nullopt;
    if (read.ec == std::errc::result_out_of_range || number > 0xFF) return kSubstitute;
    if (number == 0) return std::nullopt;
    return static_cast<char>(static_cast<unsigned char>(number));
}

// referred returns the byte that a reference stands for, given the text between "&" and ";".
std::optional<char> referred(std::string_view text)
{
    if (text.starts_with("#x") || text.starts_with("#X")) return numbered(text.substr(2), 16);
    if (text.starts_with("#")) return numbered(text.substr(1), 10);
    const auto* const xml = std::ranges::find(kXmlNames, text, &Name::text);
    if (xml != std::end(kXmlNames)) return xml->byte;
    const auto* const latin1 = std::ranges::find(kLatin1Names, text);
    if (latin1 == std::end(kLatin1Names)) return std::nullopt;
    return static_cast<char>(static_cast<unsigned char>(0xA0 + (latin1 - std::begin(kLatin1Names))));
}

std::string reference(std::string_view name) { return "&" + std::string(name) + ";"; }

std::string replaced(std::string_view text)
{
    constexpr Set kInReference = kAlnum | Set("#");
    std::string result;
    while (!text.empty()) {
        const std::size_t begin = std::min(text.find('&'), text.size());
        result += text.substr(0, begin);
        text.remove_prefix(begin);
        if (text.empty()) break;
        const std::string_view after = text.substr(1);
        const std::size_t end = std::min(kInReference.find_outside(after), after.size());
        std::optional<char> byte;
        if (after.substr(end).starts_with(';')) byte = referred(after.substr(0, end));
        result += byte.value_or('&');
        text = byte ? after.substr(end + 1) : after;
    }
    return result;
}

}  // namespace

const Conversion& character_references()
{
    static const Conversion kReplaced = [] {
        Conversion result = {
            "with character references replaced", replaced, {"&#65;", "&#x41;", "&#X41;", "&#8364;"}};
        for (const Name& name : kXmlNames) result.changed.push_back(reference(name.text));
        for (const std::string_view name : kLatin1Names) result.changed.push_back(reference(name));
        return result;
    }();
    return kReplaced;
}

}  // namespace ostrel::rules
