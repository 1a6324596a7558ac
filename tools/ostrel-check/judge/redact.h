// Removes the values of secret arguments from results.
#ifndef OSTREL_TOOLS_JUDGE_REDACT_H
#define OSTREL_TOOLS_JUDGE_REDACT_H

#include <deque>
#include <string>
#include <string_view>
#include <vector>

#include "judge/verdict.h"
#include "read/encoding.h"

namespace ostrel::tool {

// Redactor replaces each secret value with its length. It owns the strings of the last changed result.
class Redactor {
 public:
    // redact removes the secrets from a result that already has its reason. It changes the values, the
    // printed lines, the written arguments, the reason, and the members that are passed through. If the
    // description does not predict the output to a stream, all of that output is replaced. For a malformed
    // record, only the id and the parameter are passed through, because any other member may be a secret.
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
    std::deque<std::string> members_;  // replacements for members that contain secrets
};

// without_quotations returns a message about an unreadable line, cut off before it quotes the line.
std::string without_quotations(std::string_view problem);

}  // namespace ostrel::tool

#endif
