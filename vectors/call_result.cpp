#include "vectors/call_result.h"

#include <nlohmann/json.hpp>
#include <ostream>
#include <utility>

#include "catalogue/value_json.h"

namespace ostrel::vectors {

using calling::Written;
using catalogue::Value;
using nlohmann::json;

std::vector<Value> values_of(const std::vector<Written>& written)
{
    std::vector<Value> values;
    values.reserve(written.size());
    for (const Written& one : written) values.push_back(one.value);
    return values;
}

CallResult actual_result(calling::Caller& caller, calling::Capture& capture)
{
    CallResult result;
    result.code = caller.call();
    calling::Printed printed = capture.take();
    result.flushed = printed.flushed == printed.out.size();
    result.out = std::move(printed.out);
    result.err = std::move(printed.err);
    result.after = values_of(caller.written());
    return result;
}

void PrintTo(const CallResult& result, std::ostream* stream)
{
    json after = json::array();
    for (const Value& value : result.after) after.push_back(catalogue::json_from_value(value));
    *stream << "\n  code    " << result.code << "\n  out     " << shown(result.out) << "\n  flushed "
            << std::boolalpha << result.flushed << "\n  err     " << shown(result.err) << "\n  after   "
            << shown(after.dump()) << "\n";
}

std::string shown(const std::string& text)
{
    using catalogue::utf8_from_bytes;
    constexpr std::size_t kEnds = 200;
    if (text.size() <= 2 * kEnds) return json(utf8_from_bytes(text)).dump();
    return json(utf8_from_bytes(text.substr(0, kEnds))).dump() + "...(" + std::to_string(text.size()) +
           " bytes)..." + json(utf8_from_bytes(text.substr(text.size() - kEnds))).dump();
}

}  // namespace ostrel::vectors
