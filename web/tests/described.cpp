// Returns details, derived from the descriptions, that the tests need but the reasons module does not return.

#include "rules/evaluate.h"
#include "rules/rules.h"
#include "web/reasons/call.h"

extern "C" {

__attribute__((export_name("reserve"))) char* ostrel_reserve(std::size_t size)
{
    return ostrel::web::room_for_call(size);
}

// ostrel_room returns the required size of a buffer, or -1 if the buffer only has to hold its contents.
__attribute__((export_name("room"))) int ostrel_room(std::size_t check, std::size_t argument)
{
    const auto& described = ostrel::rules::checks().at(check);
    const auto room = ostrel::rules::room(described, argument, ostrel::web::written_call(described));
    return room ? static_cast<int>(*room) : -1;
}

// ostrel_code returns the result code. It traps if the contract does not define the result of the call.
__attribute__((export_name("code"))) int ostrel_code(std::size_t check)
{
    ostrel::rules::Build build;
    build.atoi = ostrel::rules::Build::Atoi::kLong32;
    build.channels.emplace();
    const auto& described = ostrel::rules::checks().at(check);
    return ostrel::rules::evaluate(described, ostrel::web::written_call(described), build).code;
}
}
