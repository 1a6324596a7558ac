#include "src/support/character_references.h"

#include <string_view>

#include "src/support/text.h"

namespace ostrel {

namespace {

constexpr int kHighestNumber = 255;
// kBeyond replaces a number that is too large. Its low byte is the control character SUB.
constexpr int kBeyond = 0x100 + 0x1A;
constexpr std::size_t kLongestName = 6;

// kLatin1Names lists the names of the characters from 0xA0 up, in code order (HTML 4, entity set Latin-1).
constexpr int kFirstLatin1 = 0xA0;
constexpr char kLatin1Names[96][kLongestName + 1] = {
    "nbsp",   "iexcl",  "cent",   "pound",  "curren", "yen",    "brvbar", "sect",    // A0
    "uml",    "copy",   "ordf",   "laquo",  "not",    "shy",    "reg",    "macr",    // A8
    "deg",    "plusmn", "sup2",   "sup3",   "acute",  "micro",  "para",   "middot",  // B0
    "cedil",  "sup1",   "ordm",   "raquo",  "frac14", "frac12", "frac34", "iquest",  // B8
    "Agrave", "Aacute", "Acirc",  "Atilde", "Auml",   "Aring",  "AElig",  "Ccedil",  // C0
    "Egrave", "Eacute", "Ecirc",  "Euml",   "Igrave", "Iacute", "Icirc",  "Iuml",    // C8
    "ETH",    "Ntilde", "Ograve", "Oacute", "Ocirc",  "Otilde", "Ouml",   "times",   // D0
    "Oslash", "Ugrave", "Uacute", "Ucirc",  "Uuml",   "Yacute", "THORN",  "szlig",   // D8
    "agrave", "aacute", "acirc",  "atilde", "auml",   "aring",  "aelig",  "ccedil",  // E0
    "egrave", "eacute", "ecirc",  "euml",   "igrave", "iacute", "icirc",  "iuml",    // E8
    "eth",    "ntilde", "ograve", "oacute", "ocirc",  "otilde", "ouml",   "divide",  // F0
    "oslash", "ugrave", "uacute", "ucirc",  "uuml",   "yacute", "thorn",  "yuml",    // F8
};

// Reference contains the byte that the text after an "&" denotes, and the length of that text including the
// ";". The length is 0 if the text is not a reference.
struct Reference {
    int byte;
    std::size_t length;
};

constexpr Reference kNone = {0, 0};

// digit_value returns the base or more for a character that is not a digit in that base.
int digit_value(char c, int base)
{
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return base;
}

// numeric_reference reads the digits after a prefix of the given length.
Reference numeric_reference(std::string_view text, std::size_t prefix, int base)
{
    int number = 0;
    for (std::size_t i = prefix; i < text.size(); ++i) {
        if (text[i] == ';') return number > 0 ? Reference{number, i + 1} : kNone;
        const int digit = digit_value(text[i], base);
        if (digit >= base) return kNone;
        number = number * base + digit;
        if (number > kHighestNumber) number = kBeyond;
    }
    return kNone;
}

int byte_of_name(std::string_view name)
{
    if (equals(name, "quot")) return '"';
    if (equals(name, "amp")) return '&';
    if (equals(name, "apos")) return '\'';
    if (equals(name, "lt")) return '<';
    if (equals(name, "gt")) return '>';
    int byte = kFirstLatin1;
    for (const auto& latin1_name : kLatin1Names) {
        if (equals(name, latin1_name)) return byte;
        ++byte;
    }
    return 0;
}

Reference named_reference(std::string_view text)
{
    for (std::size_t i = 0; i < text.size() && i <= kLongestName; ++i) {
        if (text[i] != ';') continue;
        const int byte = byte_of_name({text.data(), i});
        return byte != 0 ? Reference{byte, i + 1} : kNone;
    }
    return kNone;
}

Reference reference_at(std::string_view text)
{
    if (text.size() < 2 || text[0] != '#') return named_reference(text);
    const bool hexadecimal = text[1] == 'x' || text[1] == 'X';
    return hexadecimal ? numeric_reference(text, 2, 16) : numeric_reference(text, 1, 10);
}

}  // namespace

void convert_references(char* text, std::size_t length)
{
    std::size_t end = 0;
    for (std::size_t i = 0; i < length;) {
        const char c = text[i++];
        const Reference reference = c == '&' ? reference_at({text + i, length - i}) : kNone;
        text[end++] = reference.length != 0 ? static_cast<char>(reference.byte) : c;
        i += reference.length;
    }
    text[end] = '\0';
}

}  // namespace ostrel
