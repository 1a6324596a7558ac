// Redact: results without the values of secret arguments.
#ifndef OSTREL_TOOLS_JUDGE_REDACT_H
#define OSTREL_TOOLS_JUDGE_REDACT_H

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "judge/verdict.h"
#include "read/encoding.h"

namespace ostrel::tool {

// Redactor replaces each secret value by its length. It owns the texts of the result that it changed last.
class Redactor {
 public:
    // redact removes the secrets from a result that already has its reason: from values, lines, written arguments,
    // the reason, and the members that are passed through. It replaces the whole output to a stream if the
    // description does not predict it. For a malformed record it passes through only the id and the parameter,
    // because any other member may be a secret.
    void redact(Result& result, Encoding encoding);

 private:
    void find_secrets(const Result& result, Encoding encoding);
    void redact_lines(Result& result);
    static void redact_reasons(Result& result);
    void redact_members(Result& result);
    [[nodiscard]] bool mentions_secret(std::string_view text) const;
    [[nodiscard]] bool holds_secret(const Member& member) const;
    [[nodiscard]] catalogue::Value shown(const catalogue::Value& value, bool is_secret) const;

    std::vector<std::string> secrets_;
    std::vector<catalogue::Value> values_;
    std::string out_;
    std::string err_;
    Record record_;
    std::deque<std::string> members_;  // that were replaced
};

// without_quotations returns a message about an unreadable line, cut off before its quotation of the line.
std::string without_quotations(std::string_view problem);

}  // namespace ostrel::tool

#endif
