// For the tests: the reasons of calls, by the descriptions as this machine's compiler understands them.
//
// It reads calls, each the number of its check, the bits of long, the number of its bytes (each in four bytes) and the
// call as the module of reasons takes it, and writes a line of JSON for each.

#include <cstdint>
#include <iostream>
#include <string>
#include <vector>

#include "rules/evaluate.h"
#include "rules/reason_json.h"
#include "rules/rules.h"
#include "web/reasons/call.h"

int main()
{
    ostrel::rules::Build build = {OSTREL_MODEL, OSTREL_ACCOUNT_REALM, OSTREL_SETUP_REALM,
                                  ostrel::rules::Build::Atoi::kLong64, std::vector<int>()};
    std::uint32_t head[3] = {};
    while (std::cin.read(reinterpret_cast<char*>(head), sizeof head)) {
        std::cin.read(ostrel::web::room_for_call(head[2]), head[2]);
        build.atoi =
            head[1] == 64 ? ostrel::rules::Build::Atoi::kLong64 : ostrel::rules::Build::Atoi::kLong32;
        const ostrel::rules::Check& check = ostrel::rules::checks().at(head[0]);
        const auto answer = ostrel::rules::evaluate_within(ostrel::rules::kMostWork, check,
                                                           ostrel::web::written_call(), build);
        std::string json = "null";
        if (answer.outside == ostrel::rules::Outside::kTooMuchWork) json = "\"too much work\"";
        if (answer.is_refusal) {
            json.clear();
            ostrel::rules::append_json_reason(json, answer.reason, check);
        }
        std::cout << json << '\n';
    }
    return 0;
}
