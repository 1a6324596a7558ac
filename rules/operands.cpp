// The values of expressions in a call.

#include <algorithm>

#include "rules/run.h"

namespace ostrel::rules {

namespace {

using Kind = Expression::Kind;

Operand of_text(std::string_view text)
{
    Operand operand;
    operand.kind = Operand::Kind::kText;
    operand.text = text;
    return operand;
}

Operand of_number(long long number, const Place& place = {})
{
    Operand operand;
    operand.kind = Operand::Kind::kNumber;
    operand.number = number;
    operand.place = place;
    if (place.part.empty()) operand.place.offset.reset();
    return operand;
}

Operand part(Operand text, std::size_t begin, std::size_t size = std::string_view::npos)
{
    begin = std::min(begin, text.text.size());
    if (begin > 0 || size < text.text.size()) text.place.call({});
    text.text = text.text.substr(begin, size);
    if (text.place.offset) *text.place.offset += begin;
    if (text.place.judged) text.place.judged = Span{text.place.judged->begin + begin, text.text.size()};
    return text;
}

long long days_of(long long year, long long month)
{
    constexpr int kDays[] = {0, 31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    if (month < 1 || month > 12) return 0;
    const bool is_leap_year = year % 4 == 0 && (year % 100 != 0 || year % 400 == 0);
    return kDays[month] + (month == 2 && is_leap_year ? 1 : 0);
}

}  // namespace

const Operand& Run::operand(const Expression& expression, Frame& frame, Operand& room)
{
    const bool has_name = !expression.part.empty();
    if (expression.kind == Kind::kName && !has_name) return frame.slots[expression.slot];
    if (expression.kind == Kind::kItem && !has_name) return frame.item;
    room = made(expression, frame);
    if (has_name) room.place.call(expression.part);
    return room;
}

Operand Run::made(const Expression& expression, Frame& frame)
{
    switch (expression.kind) {
        case Kind::kName:
            return frame.slots[expression.slot];
        case Kind::kText:
            return of_text(expression.text);
        case Kind::kNumber:
            return of_number(expression.number);
        case Kind::kSet: {
            Operand result;
            result.kind = Operand::Kind::kSet;
            result.set = &expression.set;
            return result;
        }
        case Kind::kModel:
            return of_text(build_.model);
        case Kind::kAccountRealm:
            return of_text(build_.account_realm);
        case Kind::kSetupRealm:
            return of_text(build_.setup_realm);
        case Kind::kNowhere: {
            Operand result;
            result.kind = Operand::Kind::kNowhere;
            return result;
        }
        case Kind::kItem:
            return frame.item;
        case Kind::kIndex:
            return of_number(frame.index);
        case Kind::kRest:
            if (frame.list != nullptr) {
                Operand rest = *frame.list;
                place_piece(rest, *frame.list, frame.rest);
                return rest;
            }
            return {};
        case Kind::kByte: {
            const auto* byte = is_printing_ ? std::get_if<std::string>(&reason_.found) : nullptr;
            return of_text(byte == nullptr ? std::string_view() : *byte);
        }
        case Kind::kOffset:
            return of_number(is_printing_ ? static_cast<long long>(reason_.offset.value_or(0)) : 0);
        case Kind::kBeforeFirst:
        case Kind::kBeforeLast:
        case Kind::kAfterFirst:
        case Kind::kAfterLast:
        case Kind::kThroughLast:
            return cut(expression, frame);
        case Kind::kCell: {
            const auto column = static_cast<std::size_t>(expression.of[0].number);
            return of_text(frame.row == nullptr ? std::string_view() : frame.row->at(column));
        }
        case Kind::kSlice:
        case Kind::kJoined:
        case Kind::kConverted:
        case Kind::kLength:
        case Kind::kCount:
        case Kind::kSum:
        case Kind::kLarger:
        case Kind::kDays:
            return computed(expression, frame);
    }
    return {};
}

Operand Run::cut(const Expression& expression, Frame& frame)
{
    constexpr auto kMissing = std::string_view::npos;
    Operand room;
    const Operand& whole = text(expression.of[0], frame, room);
    const std::string_view separator = expression.of[1].text;
    const std::size_t first = whole.text.find(separator);
    const std::size_t last = whole.text.rfind(separator);
    switch (expression.kind) {
        case Kind::kBeforeFirst:
            return part(whole, 0, first);
        case Kind::kBeforeLast:
            return part(whole, 0, last);
        case Kind::kAfterFirst:
            return part(whole, first == kMissing ? kMissing : first + separator.size());
        case Kind::kAfterLast:
            return part(whole, last == kMissing ? 0 : last + separator.size());
        default:
            return part(whole, 0, last == kMissing ? 0 : last + separator.size());
    }
}

Operand Run::computed(const Expression& expression, Frame& frame)
{
    if (expression.kind == Kind::kDays) {
        const long long year = number(expression.of[0], frame);
        Operand room;
        const Integer month = number(expression.of[1], frame, room);
        return of_number(days_of(year, month.value), month.place());
    }
    if (expression.kind == Kind::kSum || expression.kind == Kind::kLarger) {
        Operand room;
        const Integer first = number(expression.of[0], frame, room);
        long long result = first.value;
        Place place = first.place();
        for (std::size_t i = 1; i < expression.of.size(); ++i) {
            const Integer next = number(expression.of[i], frame, room);
            result = expression.kind == Kind::kSum ? result + next.value : std::max(result, next.value);
            if (!place.argument) place = next.place();
        }
        return of_number(result, place);
    }
    Operand room;
    if (expression.kind == Kind::kJoined) {
        std::string joined;
        for (const Expression& one : expression.of) joined += text(one, frame, room).text;
        return of_text(keep(std::move(joined)));
    }
    const Operand& whole = text(expression.of[0], frame, room);
    if (expression.kind == Kind::kConverted) {
        Operand result = of_text(keep(expression.conversion->convert(whole.text)));
        result.place = whole.place;
        if (result.place.judged) result.place.judged->size = result.text.size();
        if (result.text != whole.text) result.place.conversion = expression.conversion->what;
        return result;
    }
    if (expression.kind == Kind::kLength)
        return of_number(static_cast<long long>(whole.text.size()), whole.place);
    if (expression.kind == Kind::kSlice) {
        const auto begin = static_cast<std::size_t>(number(expression.of[1], frame));
        if (expression.of.size() < 3) return part(whole, begin);
        return part(whole, begin, static_cast<std::size_t>(number(expression.of[2], frame)));
    }
    Operand other_room;
    const Operand& byte = operand(expression.of[1], frame, other_room);
    const char wanted = byte.kind == Operand::Kind::kNumber
                            ? static_cast<char>(static_cast<unsigned char>(byte.number & 0xFF))
                            : byte.text.front();
    return of_number(std::ranges::count(whole.text, wanted), whole.place);
}

const Operand& Run::text(const Expression& expression, Frame& frame, Operand& room)
{
    const Operand& result = operand(expression, frame, room);
    if (result.kind == Operand::Kind::kNull) throw Ended{Outside::kNull, result.place};
    work(result.text.size());
    return result;
}

void Run::work(std::uint64_t bytes)
{
    if (bytes > bytes_left_) throw Ended{Outside::kTooMuchWork};
    bytes_left_ -= bytes;
}

long long Run::number(const Expression& expression, Frame& frame)
{
    if (expression.kind == Kind::kNumber) return expression.number;
    Operand room;
    return number(expression, frame, room).value;
}

Integer Run::number(const Expression& expression, Frame& frame, Operand& room)
{
    const Operand& given = text(expression, frame, room);
    if (given.kind == Operand::Kind::kNumber) return {given.number, {}, false, &given.place};
    const Number read = read_number(given.text, build_.atoi);
    // A sign without digits is not a number.
    const bool is_whole =
        !given.text.empty() && read.end - read.begin == given.text.size() && given.text.back() >= '0';
    if (!read.beyond_int) return {read.value, {}, !is_whole, &given.place};
    answer_.beyond_int = true;
    const std::string_view beyond_int = given.text.substr(read.begin, read.end - read.begin);
    return {read.value, beyond_int, !is_whole, &given.place, read.begin};
}

}  // namespace ostrel::rules
