#include <regex.h>

#include <memory>
#include <stdexcept>

#include "bench/contender.h"

namespace ostrel::bench {

void add_posix(Contenders& all)
{
    for (const ValueFamily& family : families()) {
        const auto regex = std::make_shared<regex_t>();
        if (regcomp(regex.get(), pattern(family.name).c_str(), REG_EXTENDED | REG_NOSUB) != 0) {
            throw std::runtime_error("regcomp cannot compile the pattern for " + family.name);
        }
        all.push_back(contender(family.name, "regexec", [regex](const char* v) {
            return regexec(regex.get(), v, 0, nullptr, 0) == 0;
        }));
    }
}

}  // namespace ostrel::bench
