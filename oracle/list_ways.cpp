// Ways to follow reasons about lists, and about strings that depend on other strings.

#include <algorithm>
#include <numeric>

#include "oracle/ways.h"

namespace ostrel::oracle {

namespace {

std::string with_items(std::string_view text, char separator, long long items)
{
    std::string result(text);
    std::size_t end = 0;
    for (long long item = 0; item < items; ++item) {
        end = result.find(separator, end);
        if (end != std::string::npos) {
            ++end;
            continue;
        }
        for (long long more = item + 1; more < items; ++more) result += {separator, '0'};
        return result;
    }
    return result.substr(0, end == 0 ? 0 : end - 1);
}

void take_items(const Refusal& refusal, Advice& advice, char separator)
{
    const long long items = refusal.allowed_numbers().at(0);
    advice.followed.push_back(refusal.with(with_items(refusal.judged(), separator, items)));
    advice.less.push_back(refusal.with(with_items(refusal.judged(), separator, items + 1)));
}

// different returns a string that does not occur in any string of the call.
std::string different(const Refusal& refusal)
{
    std::string result(refusal.judged());
    const auto occurs = [&](const rules::Value& value) {
        const auto* text = std::get_if<std::string>(&value);
        return text != nullptr && text->find(result) != std::string::npos;
    };
    do result += 'x';
    while (std::ranges::any_of(refusal.values(), occurs));
    return result;
}

}  // namespace

void take_unlisted(const Refusal& refusal, Advice& advice)
{
    advice.followed.push_back(refusal.with(different(refusal)));
    for (const std::string& listed : refusal.allowed_texts()) advice.attempts.push_back(refusal.with(listed));
}

void make_different(const Refusal& refusal, Advice& advice)
{
    advice.followed.push_back(refusal.with(different(refusal)));
}

// A list item cannot begin with a subnet that contains a separator or begins with a blank.
void begin_like_subnet(const Refusal& refusal, Advice& advice)
{
    const std::string subnet = refusal.allowed_texts().at(0);
    const bool can_be_item = subnet.find(',') == std::string::npos && !subnet.starts_with(' ');
    if (refusal.reason().item && !can_be_item) return;
    advice.followed.push_back(refusal.with(subnet));
    std::vector<std::size_t> places(subnet.size());
    std::iota(places.begin(), places.end(), std::size_t{0});
    for (const std::size_t i : refusal.some(places)) {
        std::string other = subnet;
        other[i] = other[i] == '1' ? '2' : '1';
        advice.attempts.push_back(refusal.with(other));
    }
}

void take_parts(const Refusal& refusal, Advice& advice) { take_items(refusal, advice, '.'); }
void take_items(const Refusal& refusal, Advice& advice) { take_items(refusal, advice, ','); }

// The reason refers to the address to add. The list is the other of the check's two arguments.
void shorten_list(const Refusal& refusal, Advice& advice)
{
    const std::size_t other = 1 - refusal.reason().argument.value();
    const auto& list = std::get<std::string>(refusal.values().at(other));
    const auto excess = static_cast<std::size_t>(std::get<long long>(refusal.reason().found) -
                                                 refusal.allowed_numbers().at(0));
    if (excess >= list.size()) return;
    advice.followed.push_back(refusal.with_argument(other, list.substr(0, list.size() - excess)));
    advice.less.push_back(refusal.with_argument(other, list.substr(0, list.size() - excess + 1)));
}

void take_second_server(const Refusal& refusal, Advice& advice)
{
    for (const std::string& second : refusal.allowed_texts()) advice.followed.push_back(refusal.with(second));
    for (const char* other : {"10.9.8.7", "10.9.8.76", "10.9.8.176"})
        advice.attempts.push_back(refusal.with(other));
}

void take_other_server(const Refusal& refusal, Advice& advice)
{
    advice.followed.push_back(refusal.with(refusal.judged() == "10.9.8.7" ? "10.9.8.76" : "10.9.8.7"));
}

void give_key(const Refusal& refusal, Advice& advice)
{
    const std::size_t argument = refusal.reason().argument.value();
    auto keys = std::get<std::vector<std::string>>(refusal.values().at(argument));
    keys.front() = "0123456789";
    advice.followed.push_back(refusal.with_argument(argument, std::move(keys)));
}

}  // namespace ostrel::oracle
