#include "fuzz/seeds.h"

#include <charconv>
#include <set>
#include <utility>

#include "oracle/harvest.h"
#include "oracle/library.h"

namespace ostrel::fuzz {

using catalogue::Function;
using rules::Value;

namespace {

constexpr std::size_t kMostVaried = 4;  // calls that are varied, beginning with accepted ones

class Seeds {
 public:
    Seeds(const Fuzzer& fuzzer, const Function& function)
        : fuzzer_(fuzzer),
          function_(function),
          check_(*function.check),
          texts_(oracle::harvest(check_, oracle::library_build()))
    {
    }

    void add(const std::vector<Value>& values)
    {
        if (auto input = fuzzer_.encode(function_, values)) inputs_.push_back(std::move(*input));
    }

    void vary(const std::vector<Value>& values)
    {
        for (std::size_t i = 0; i < values.size(); ++i) {
            std::vector<Value> others = values;
            others[i] = nullptr;
            if (check_.arguments[i].kind != rules::Argument::Kind::kInteger &&
                check_.arguments[i].kind != rules::Argument::Kind::kUnsigned)
                add(others);
            for (const std::string& text : texts_) {
                others[i] = values[i];
                if (put(text, i, others[i])) add(others);
            }
        }
    }

    std::vector<std::string> take() { return std::move(inputs_); }

 private:
    bool put(const std::string& text, std::size_t argument, Value& value)
    {
        if (std::holds_alternative<std::string>(value)) {
            value = text;
        } else if (auto* several = std::get_if<std::vector<std::string>>(&value)) {
            if (text.size() >= check_.arguments[argument].block_size) return false;
            several->at(turn_++ % several->size()) = text;
        } else if (auto* number = std::get_if<long long>(&value)) {
            const char* const end = text.data() + text.size();
            int read = 0;
            const auto result = std::from_chars(text.data(), end, read);
            if (text.empty() || result.ec != std::errc() || result.ptr != end) return false;
            *number = read;
        }
        return true;
    }

    const Fuzzer& fuzzer_;
    const Function& function_;
    const rules::Check& check_;
    std::set<std::string> texts_;
    std::vector<std::string> inputs_;
    std::size_t turn_ = 0;
};

}  // namespace

std::vector<std::string> seeds(const Fuzzer& fuzzer, const Function& function,
                               const std::vector<vectors::Row>& rows)
{
    constexpr std::size_t kLong = 256;
    Seeds result(fuzzer, function);
    std::size_t varied = 0;
    for (const bool is_accepted : {true, false}) {
        for (const vectors::Row& row : rows) {
            if (row.given.function != &function || (row.promise.result.code == 0) != is_accepted) continue;
            const std::vector<Value> values = catalogue::completed(function, row.given.values);
            result.add(values);
            const bool is_varied = vectors::longest_text(row.given) < kLong && varied < kMostVaried;
            if (is_varied) result.vary(values);
            varied += is_varied ? 1 : 0;
        }
    }
    return result.take();
}

}  // namespace ostrel::fuzz
