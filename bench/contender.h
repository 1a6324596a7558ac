// Contenders judge the values of a family: our own rule, comparable implementations (peers), and lower bounds
// that only read each value (limits).
#ifndef OSTREL_BENCH_CONTENDER_H
#define OSTREL_BENCH_CONTENDER_H

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "bench/corpus.h"

namespace ostrel::bench {

struct Contender {
    std::string family;
    std::string name;
    std::function<std::size_t(const Corpus&)> pass;  // judges every value once and counts the accepted ones
};

// The loop over the corpus is compiled around the call, so that its cost is the same for every contender.
template <typename Accepts>
Contender contender(std::string family, std::string name, Accepts accepts)
{
    return {std::move(family), std::move(name), [accepts](const Corpus& corpus) {
                std::size_t accepted = 0;
                for (const char* value : corpus.values()) {
                    if (accepts(value)) ++accepted;
                }
                return accepted;
            }};
}

using Contenders = std::vector<Contender>;

// contenders returns all linked contenders: with peers (peers/all.cpp) or without them (alone.cpp).
Contenders contenders();

void add_ours(Contenders& all);
void add_limits(Contenders& all);  // they only read each value
void add_libc(Contenders& all);
void add_pcre2(Contenders& all);
void add_re2(Contenders& all);
void add_posix(Contenders& all);
void add_libyang(Contenders& all);
void add_urls(Contenders& all);  // uriparser and libcurl
void add_cares(Contenders& all);

// pattern returns a family's regular expression, anchored at both ends, in syntax that every engine supports.
std::string pattern(const std::string& family);

}  // namespace ostrel::bench

#endif
