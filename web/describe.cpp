// Prints the descriptions as JSON, for what is generated when the package is built.

#include <cstdio>
#include <string>

#include "rules/null.h"
#include "rules/reason_json.h"
#include "rules/rules.h"

namespace {

using ostrel::rules::append_json_text;
using ostrel::rules::Argument;
using ostrel::rules::Check;
using ostrel::rules::NullOutcome;

std::string_view name_of(Argument::Kind kind)
{
    switch (kind) {
        case Argument::Kind::kText:
            return "text";
        case Argument::Kind::kBuffer:
            return "buffer";
        case Argument::Kind::kBlocks:
            return "blocks";
        case Argument::Kind::kInteger:
            return "integer";
        case Argument::Kind::kUnsigned:
            return "unsigned";
        case Argument::Kind::kIntegerOut:
            return "integer_out";
    }
    return "";
}

std::string_view name_of(NullOutcome outcome)
{
    switch (outcome) {
        case NullOutcome::kAccepted:
        case NullOutcome::kRefused:
            return "always";
        case NullOutcome::kAssertion:
            return "asserted";
        case NullOutcome::kFault:
            return "read";
        case NullOutcome::kDepends:
            return "sometimes";
    }
    return "";
}

void append_member(std::string& out, std::string_view name, std::string_view text)
{
    out.append(",\"").append(name).append("\":");
    append_json_text(out, text);
}

std::string json_of(const Check& check, std::size_t index)
{
    const Argument& argument = check.arguments[index];
    std::string out = "{\"name\":";
    append_json_text(out, argument.name);
    append_member(out, "kind", name_of(argument.kind));
    append_member(out, "what", argument.what);
    if (!argument.unit.empty()) append_member(out, "unit", argument.unit);
    if (argument.is_secret) out += ",\"secret\":true";
    if (argument.is_output || argument.kind == Argument::Kind::kIntegerOut) out += ",\"output\":true";
    if (argument.blocks > 1) {
        out += ",\"blocks\":" + std::to_string(argument.blocks);
        out += ",\"block_size\":" + std::to_string(argument.block_size);
    }
    const bool is_number =
        argument.kind == Argument::Kind::kInteger || argument.kind == Argument::Kind::kUnsigned;
    if (!is_number) append_member(out, "null", name_of(null_outcome(check, index, ostrel::rules::Build())));
    return out + "}";
}

std::string json_of(const Check& check)
{
    std::string out = "{\"name\":";
    append_json_text(out, check.name);
    append_member(out, "module", check.module);
    append_member(out, "answers", check.is_verdict ? "code" : "number");
    out += ",\"arguments\":[";
    for (std::size_t i = 0; i < check.arguments.size(); ++i) {
        if (i > 0) out += ',';
        out += json_of(check, i);
    }
    return out + "]}";
}

}  // namespace

int main()
{
    std::string out;
    for (const Check& check : ostrel::rules::checks()) out += (out.empty() ? "[" : ",\n") + json_of(check);
    std::puts((out + "]").c_str());
    return 0;
}
