// Reasons in sentences.
#include <algorithm>
#include <string>

#include "rules/datum.h"
#include "rules/sentence_pieces.h"

namespace ostrel::rules {

namespace {

std::string counted(const std::optional<std::size_t>& from_zero)
{
    return from_zero ? std::to_string(*from_zero + 1) : "";
}

std::string range(const Datum& datum)
{
    const auto* limits = std::get_if<std::vector<long long>>(&datum);
    return limits == nullptr ? "" : std::to_string(limits->front()) + " to " + std::to_string(limits->back());
}

void append_limit(std::string& out, const Reason& reason);

void append_piece(std::string& out, Field field, std::string_view text, const Reason& reason)
{
    switch (field) {
        case Field::kText:
            out += text;
            break;
        case Field::kFound: {
            const std::string found = in_words(reason.found);
            const bool is_quoted = reason.id == "number_beyond_int" && found.starts_with('"');
            out += is_quoted ? std::string_view(found).substr(1, found.size() - 2) : std::string_view(found);
            break;
        }
        case Field::kAllowed:
            out += in_words(reason.allowed, reason.found);
            break;
        case Field::kFoundForms:
        case Field::kAllowedForms: {
            const std::size_t bar = text.find('|');
            const bool is_singular = is_one(field == Field::kFoundForms ? reason.found : reason.allowed);
            out += is_singular ? text.substr(0, bar) : text.substr(bar + 1);
            break;
        }
        case Field::kForm:
            out += std::get<std::string>(reason.allowed);
            break;
        case Field::kPosition:
            out += counted(reason.offset);
            break;
        case Field::kRange:
            out += range(reason.allowed);
            break;
        case Field::kRead:
            if (reason.read_as) out += "read as ";
            break;
        case Field::kReadAs:
            if (reason.read_as) out += std::to_string(*reason.read_as);
            break;
        case Field::kLimit:
            append_limit(out, reason);
            break;
        case Field::kByte: {
            const auto* byte = std::get_if<std::string>(&reason.found);
            out +=
                byte == nullptr || byte->empty() ? "a byte that is not shown" : byte_in_words(byte->front());
            break;
        }
    }
}

// append_filled_in adds a sentence, or what follows its semicolon.
void append_filled_in(std::string& out, const Sentence& known, const Reason& reason, bool is_limit = false)
{
    const Pieces& pieces = pieces_of(known);
    bool is_before = is_limit;
    for (std::size_t i = 0; i < pieces.count; ++i) {
        const Piece& piece = pieces.all[i];
        std::string_view text = known.text.substr(piece.begin, piece.size);
        if (is_before && piece.field == Field::kText && text.find(';') != std::string_view::npos) {
            is_before = false;
            text.remove_prefix(text.find(';'));
        }
        if (!is_before) append_piece(out, piece.field, text, reason);
    }
}

void append_limit(std::string& out, const Reason& reason)
{
    if (const Sentence* known = find_sentence(reason.limit)) append_filled_in(out, *known, reason, true);
}

void append_sentence(std::string& out, const Sentence& known, const Reason& reason)
{
    const bool has_part = !reason.part.empty();
    if (has_part && known.has_subject) out += "in ";
    if (has_part) out.append(reason.part).append(known.has_subject ? ", " : " ");
    append_filled_in(out, known, reason);
    if (!reason.conversion.empty()) out.append(" (").append(reason.conversion).append(")");
}

}  // namespace

std::string sentence(const Reason& reason)
{
    std::string result;
    if (const Sentence* known = find_sentence(reason.id)) append_sentence(result, *known, reason);
    return result;
}

std::string full_sentence(const Reason& reason, const Check& check)
{
    constexpr std::size_t kUsual = 128;
    std::string result;
    const Sentence* known = find_sentence(reason.id);
    if (known == nullptr) return result;
    result.reserve(kUsual);
    const bool names_argument =
        std::ranges::count_if(check.arguments, [](const Argument& argument) {
            return argument.kind != Argument::Kind::kIntegerOut && !argument.is_output;
        }) > 1;
    if (reason.item) {
        result.append("item ").append(counted(reason.item));
        if (!reason.item_text.empty()) result.append(" (").append(quoted(reason.item_text)).append(")");
    }
    if (names_argument && reason.argument) result.append(result.empty() ? "" : " of ").append(reason.name);
    const bool has_subject = known->has_subject || !reason.part.empty();
    if (!result.empty()) result += has_subject ? ": " : " ";
    append_sentence(result, *known, reason);
    return result;
}

Reason without_trace_of_secret(Reason reason, const Check& check)
{
    const bool is_secret = reason.argument && check.arguments[*reason.argument].is_secret;
    if (!is_secret) return reason;
    // Of numbers only those are left that count something; others were read in the text.
    const bool is_read = reason.read_as || reason.id.starts_with("number_");
    if (is_read || !std::holds_alternative<long long>(reason.found)) reason.found = std::monostate();
    reason.read_as.reset();
    reason.item_text.clear();
    return reason;
}

void hide_secret(Reason& reason, const Check& check)
{
    const auto* found = std::get_if<std::string>(&reason.found);
    const bool is_secret = reason.argument && check.arguments[*reason.argument].is_secret;
    if (is_secret && found != nullptr && found->size() > 1) reason.found = std::monostate();
    if (is_secret) reason.item_text.clear();
}

Reason without_secret(Reason reason, const Check& check)
{
    hide_secret(reason, check);
    return reason;
}

}  // namespace ostrel::rules
