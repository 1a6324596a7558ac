// The interface of the reasons module.

#include <cstddef>
#include <string>

#include "rules/evaluate.h"
#include "rules/rules.h"
#include "rules/sentences.h"
#include "web/reasons/call.h"
#include "web/reasons/memory.h"
#include "web/reasons/pack.h"
#include "web/reasons/told.h"

namespace {

using ostrel::rules::Build;
using ostrel::web::Told;

Told told;
ostrel::rules::Answer answer;
const ostrel::rules::Check* called = nullptr;
std::string sentence;

Build gateway = {OSTREL_MODEL, OSTREL_ACCOUNT_REALM, OSTREL_SETUP_REALM, Build::Atoi::kLong32,
                 std::vector<int>()};

// ostrel_prepare sets packed. No other function here may refer to the code that builds the descriptions.
ostrel::web::Pack packed;

const std::vector<ostrel::rules::Check>& descriptions()
{
    static const auto checks = ostrel::web::unpack(packed);
    return checks;
}

void tell()
{
    sentence = full_sentence(answer.reason, *called);
    ostrel::web::tell(told, answer.reason, sentence);
}

}  // namespace

#define OSTREL_EXPORT(name) __attribute__((export_name(#name)))

extern "C" {

// ostrel_prepare is called when the package is built. The module contains its result but not its code.
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

OSTREL_EXPORT(add_channel) void ostrel_add_channel(int channel) { gateway.channels->push_back(channel); }

OSTREL_EXPORT(reserve) char* ostrel_reserve(std::size_t size) { return ostrel::web::room_for_call(size); }

// ostrel_told returns the address at which explain stores the reason.
OSTREL_EXPORT(told) const Told* ostrel_told() { return &told; }

// ostrel_explain stores the reason why the written call is refused, or returns false if it is not refused.
OSTREL_EXPORT(explain) bool ostrel_explain(std::size_t check)
{
    called = &descriptions()[check];
    explain_within(ostrel::rules::kMostWork, *called, ostrel::web::written_call(*called), gateway, answer);
    if (!answer.is_refusal) return false;
    hide_secret(answer.reason, *called);
    tell();
    return true;
}

// ostrel_too_much_work stores the reason for a call for which explain trapped.
OSTREL_EXPORT(too_much_work) void ostrel_too_much_work()
{
    called = &descriptions().front();
    answer.reason.id = "too_much_work";
    tell();
}
}
