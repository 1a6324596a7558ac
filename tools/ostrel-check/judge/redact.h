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

// Redactor shows the length of each secret value in its place. It holds the texts of the result that it changed last.
class Redactor {
 public:
    // redact takes the secrets out of a result that has its reason: out of values, lines, what was written, the reason,
    // and the members that are passed through. Lines that the description does not tell are replaced whole. Of a
    // malformed record only the id and the parameter are passed through: which of the others is a secret is not known.
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

// without_quotations is a message about a line that could not be read, up to what it quotes of the line.
std::string without_quotations(std::string_view problem);

}  // namespace ostrel::tool

#endif
