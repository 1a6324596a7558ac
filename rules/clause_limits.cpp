// Limits that several clauses set for the same string or number.
#include <cstdlib>

#include "rules/phrases.h"

namespace ostrel::rules {

namespace {

std::string between(const std::string& predicate, std::string_view beginning, std::string_view unit)
{
    if (!predicate.starts_with(beginning)) return "";
    const std::string rest = predicate.substr(beginning.size());
    return rest.substr(0, unit.empty() ? rest.size() : rest.find(unit));
}

// merge combines a minimum and a maximum, as in "has 8 to 63 bytes".
bool merge(Clause& one, const Clause& other, std::string_view least, std::string_view most,
           std::string_view verb, std::string_view unit)
{
    std::string low = between(one.predicate, least, unit);
    std::string high = between(other.predicate, most, unit);
    if (low.empty()) {
        low = between(other.predicate, least, unit);
        high = between(one.predicate, most, unit);
    }
    if (one.subject != other.subject || low.empty() || high.empty()) return false;
    const bool is_one = low == high;
    const std::string both = is_one ? low : (unit.empty() ? "from " : "") + low + " to " + high;
    one.predicate = std::string(verb) + both + std::string(unit) + (unit.empty() || both == "1" ? "" : "s");
    return true;
}

// least_bytes returns the minimum length that a predicate states, or 0 if it states no fixed minimum.
int least_bytes(const std::string& predicate)
{
    if (predicate == "is not empty") return 1;
    const std::string_view rest =
        std::string_view(predicate).substr(predicate.starts_with("has at least ") ? 13
                                           : predicate.starts_with("has ")        ? 4
                                                                                  : predicate.size());
    return std::atoi(std::string(rest).c_str());
}

}  // namespace

bool includes(Clause& one, const Clause& other)
{
    if (one.subject != other.subject) return false;
    const int wanted = other.predicate.starts_with("has at least ") || other.predicate == "is not empty"
                           ? least_bytes(other.predicate)
                           : 0;
    if (wanted > 0 && least_bytes(one.predicate) >= wanted) return true;
    return merge(one, other, "has at least ", "has at most ", "has ", " byte") ||
           merge(one, other, "is at least ", "is at most ", "is ", "");
}

}  // namespace ostrel::rules
