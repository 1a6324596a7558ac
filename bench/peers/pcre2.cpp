#define PCRE2_CODE_UNIT_WIDTH 8
#include <pcre2.h>

#include <stdexcept>

#include "bench/contender.h"

namespace ostrel::bench {

void add_pcre2(Contenders& all)
{
    for (const ValueFamily& family : families()) {
        int error = 0;
        PCRE2_SIZE offset = 0;
        const std::string text = pattern(family.name);
        pcre2_code* code =
            pcre2_compile(reinterpret_cast<PCRE2_SPTR>(text.c_str()), text.size(),
                          PCRE2_NO_AUTO_CAPTURE | PCRE2_DOLLAR_ENDONLY, &error, &offset, nullptr);
        if (code == nullptr || pcre2_jit_compile(code, PCRE2_JIT_COMPLETE) != 0) {
            throw std::runtime_error("PCRE2 cannot compile the pattern for " + family.name);
        }
        pcre2_match_data* match = pcre2_match_data_create_from_pattern(code, nullptr);
        // pcre2_jit_match is faster than pcre2_match, because it does not validate its arguments.
        all.push_back(contender(family.name, "PCRE2 JIT", [code, match](const char* v) {
            const auto* subject = reinterpret_cast<PCRE2_SPTR>(v);
            return pcre2_jit_match(code, subject, std::char_traits<char>::length(v), 0, 0, match, nullptr) >
                   0;
        }));
    }
}

}  // namespace ostrel::bench
