#include <re2/re2.h>

#include <memory>

#include "bench/contender.h"

namespace ostrel::bench {

void add_re2(Contenders& all)
{
    for (const ValueFamily& family : families()) {
        RE2::Options options;
        options.set_encoding(RE2::Options::EncodingLatin1);
        options.set_never_capture(true);
        const auto regex = std::make_shared<const RE2>(pattern(family.name), options);
        all.push_back(
            contender(family.name, "RE2", [regex](const char* v) { return RE2::FullMatch(v, *regex); }));
    }
}

}  // namespace ostrel::bench
