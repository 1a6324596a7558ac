#include "vectors/answers.h"

#include <nlohmann/json.hpp>
#include <set>
#include <stdexcept>
#include <string>

namespace ostrel::vectors {

using nlohmann::json;

namespace {

std::string member_of(Atoi atoi)
{
    switch (atoi) {
        case Atoi::kLong64:
            break;
        case Atoi::kLong32:
            return "long32";
        case Atoi::kWrapping:
            return "wrapping";
    }
    return "";
}

const std::set<std::string>& answer_members()
{
    static const std::set<std::string> result = {"code", "out", "flushed", "err", "after"};
    return result;
}

}  // namespace

bool has_answer_for(const json& row, Atoi atoi) { return row.contains(member_of(atoi)); }

json answered(const json& row, Atoi atoi)
{
    json result = row;
    for (const Atoi each : kAtois) result.erase(member_of(each));
    if (!has_answer_for(row, atoi)) return result;
    for (const std::string& member : answer_members()) result.erase(member);
    for (const auto& member : row[member_of(atoi)].items()) {
        if (!answer_members().contains(member.key())) {
            throw std::invalid_argument("unknown member " + member.key() + " of an answer");
        }
        result[member.key()] = member.value();
    }
    return result;
}

}  // namespace ostrel::vectors
