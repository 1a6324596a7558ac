// The interface of the module of reasons.

#include <cstddef>
#include <string>

#include "rules/evaluate.h"
#include "rules/reason_json.h"
#include "rules/rules.h"
#include "web/reasons/call.h"
#include "web/reasons/memory.h"
#include "web/reasons/pack.h"

namespace {

using ostrel::rules::Build;

std::string answer;

Build gateway = {OSTREL_MODEL, OSTREL_ACCOUNT_REALM, OSTREL_SETUP_REALM, Build::Atoi::kLong32,
                 std::vector<int>()};

// packed is what ostrel_prepare makes. Nothing else here may name what makes the descriptions.
ostrel::web::Pack packed;

const std::vector<ostrel::rules::Check>& descriptions()
{
    static const auto checks = ostrel::web::unpack(packed);
    return checks;
}

}  // namespace

#define OSTREL_EXPORT(name) __attribute__((export_name(#name)))

extern "C" {

// ostrel_prepare is called when the package is built. Its work is part of the module, and it itself is not.
OSTREL_EXPORT(prepare) void ostrel_prepare()
{
    ostrel::web::begin_building();
    const auto* const made = new ostrel::web::Pack(ostrel::web::pack(ostrel::rules::checks()));
    ostrel::web::end_building();
    packed = *made;
    ostrel::web::clear_building();
}

OSTREL_EXPORT(configure) void ostrel_configure(bool has_long_of_64_bits)
{
    gateway.atoi = has_long_of_64_bits ? Build::Atoi::kLong64 : Build::Atoi::kLong32;
}

// ostrel_add_channel adds one that the wireless driver lists.
OSTREL_EXPORT(add_channel) void ostrel_add_channel(int channel) { gateway.channels->push_back(channel); }

OSTREL_EXPORT(reserve) char* ostrel_reserve(std::size_t size) { return ostrel::web::room_for_call(size); }

// ostrel_explain returns the bytes of the reason of the call that was written; 0 where it is no refusal.
OSTREL_EXPORT(explain) std::size_t ostrel_explain(std::size_t check)
{
    answer.clear();
    const ostrel::rules::Check& called = descriptions()[check];
    const auto told = ostrel::rules::evaluate_within(ostrel::rules::kMostWork, called,
                                                     ostrel::web::written_call(), gateway);
    if (told.is_refusal) ostrel::rules::append_json_reason(answer, told.reason, called);
    return answer.size();
}

// ostrel_too_much_work returns the bytes of the reason of a call that explain did not return from.
OSTREL_EXPORT(too_much_work) std::size_t ostrel_too_much_work()
{
    ostrel::rules::Reason reason;
    reason.id = "too_much_work";
    answer.clear();
    ostrel::rules::append_json_reason(answer, reason, descriptions().front());
    return answer.size();
}

// ostrel_reason returns the JSON of that reason.
OSTREL_EXPORT(reason) const char* ostrel_reason() { return answer.data(); }
}
