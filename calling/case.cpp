#include "calling/case.h"

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

#include "catalogue/names.h"
#include "catalogue/value_json.h"

namespace ostrel::calling {

using nlohmann::json;

Case case_from_json(const json& row)
{
    constexpr std::size_t kMostArguments = 4;
    if (!row.is_object()) throw std::invalid_argument("a case must be an object with \"check\" and \"args\"");
    const auto name = row.find("check");
    if (name == row.end() || !name->is_string()) {
        throw std::invalid_argument("\"check\" must be the name of a check");
    }
    const auto args = row.find("args");
    if (args == row.end() || !args->is_array()) throw std::invalid_argument("\"args\" must be an array");
    Case result;
    result.function = catalogue::find(name->get_ref<const std::string&>());
    if (result.function == nullptr) {
        throw std::invalid_argument(catalogue::unknown_function(name->get<std::string>()));
    }
    if (args->size() > kMostArguments) throw std::invalid_argument("no check takes that many arguments");
    for (const json& arg : *args) result.values.push_back(catalogue::value_from_json(arg));
    return result;
}

}  // namespace ostrel::calling
