#include "counts.h"

#include <algorithm>
#include <vector>

#include "show.h"

namespace ostrel::tool {

namespace {

// Ends are the result codes, and behind them what is no code.
constexpr std::array kCodes = {0,   -1,  402, 501, 600, 601, 701, 702,  716, 725,
                               726, 728, 731, 801, 802, 803, 901, 1001, 1002};
constexpr std::size_t kAnswers = kCodes.size();
constexpr std::size_t kEnds = kAnswers + 1;
constexpr std::size_t kNoReturns = kAnswers + 2;
constexpr std::size_t kOthers = kAnswers + 3;  // a code that the catalogue does not know
constexpr std::size_t kKinds = kAnswers + 4;

std::vector<std::string_view> list_families()
{
    std::vector<std::string_view> all;
    for (const catalogue::Function& function : catalogue::functions()) {
        if (all.empty() || all.back() != function.family) all.push_back(function.family);
    }
    return all;
}

const std::vector<std::string_view>& families()
{
    static const std::vector<std::string_view> all = list_families();
    return all;
}

std::size_t end_of(const Result& result)
{
    switch (result.verdict) {
        case Verdict::kAnswer:
            return kAnswers;
        case Verdict::kEnded:
            return kEnds;
        case Verdict::kNoReturn:
            return kNoReturns;
        default:
            break;
    }
    const auto* found = std::ranges::find(kCodes, result.code);
    return found == kCodes.end() ? kOthers : static_cast<std::size_t>(found - kCodes.begin());
}

std::string name_of_end(std::size_t end)
{
    if (end == 0) return "accepted";
    if (end < kCodes.size()) return std::to_string(kCodes.at(end));
    if (end == kAnswers) return "answered";
    if (end == kEnds) return "ended";
    return end == kNoReturns ? "no return" : "other";
}

}  // namespace

void Counts::add(const Result& result)
{
    if (result.verdict == Verdict::kMalformed || result.function == nullptr) return;
    const auto family = std::ranges::find(families(), result.function->family) - families().begin();
    ++counts_.at(static_cast<std::size_t>(family)).at(end_of(result));
}

void Counts::add(const Counts& other)
{
    for (std::size_t family = 0; family < kMostFamilies; ++family) {
        for (std::size_t end = 0; end < kMostEnds; ++end) counts_[family][end] += other.counts_[family][end];
    }
}

std::string Counts::table() const
{
    std::string text;
    for (std::size_t family = 0; family < families().size(); ++family) {
        std::string line;
        for (std::size_t end = 0; end < kKinds; ++end) {
            if (counts_[family][end] == 0) continue;
            line.append(line.empty() ? "" : ", ").append(end > 0 && end < kCodes.size() ? "refused " : "");
            line.append(name_of_end(end)).append(": ").append(std::to_string(counts_[family][end]));
        }
        if (!line.empty())
            text.append("  ").append(families()[family]).append("  ").append(line).append("\n");
    }
    return text;
}

std::string Counts::json() const
{
    std::string text = "{";
    for (std::size_t family = 0; family < families().size(); ++family) {
        std::string members;
        for (std::size_t end = 0; end < kKinds; ++end) {
            if (counts_[family][end] == 0) continue;
            members += members.empty() ? "" : ",";
            append_json_text(members, end == kNoReturns ? "no_return" : end == 0 ? "0" : name_of_end(end));
            members.append(":").append(std::to_string(counts_[family][end]));
        }
        if (members.empty()) continue;
        text += text.size() > 1 ? "," : "";
        append_json_text(text, families()[family]);
        text.append(":{").append(members).append("}");
    }
    return text + "}";
}

}  // namespace ostrel::tool
