// The values that a benchmark judges in each pass.
#ifndef OSTREL_BENCH_CORPUS_H
#define OSTREL_BENCH_CORPUS_H

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::bench {

// Random generates the same numbers on every machine (splitmix64), so that two runs judge the same values.
class Random {
 public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t next()
    {
        std::uint64_t z = (state_ += 0x9E3779B97F4A7C15);
        z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9;
        z = (z ^ (z >> 27)) * 0x94D049BB133111EB;
        return z ^ (z >> 31);
    }

    // between returns a number from low to high, inclusive.
    unsigned between(unsigned low, unsigned high)
    {
        return low + static_cast<unsigned>(next() % (high - low + 1));
    }

    bool one_in(unsigned n) { return next() % n == 0; }

    char one_of(std::string_view members)
    {
        return members[static_cast<std::size_t>(next() % members.size())];
    }

 private:
    std::uint64_t state_;
};

std::string some(Random& random, std::size_t length, std::string_view members);

// number returns a decimal number from low to high, padded with zeros to the width.
std::string number(Random& random, unsigned low, unsigned high, std::size_t width = 1);

enum class Shape {
    kValid,
    kRefusedFirst,  // no rule accepts the first byte
    kRefusedLast,   // no rule accepts the last byte
    kHostile,       // long, and chosen so that a rule must read as much of it as possible
};

constexpr Shape kShapes[] = {Shape::kValid, Shape::kRefusedFirst, Shape::kRefusedLast, Shape::kHostile};

const char* name_of(Shape shape);

// ValueFamily generates values of one kind: valid ones, and hostile ones of at least the given length.
struct ValueFamily {
    std::string name;
    std::function<std::string(Random&)> valid;
    std::function<std::string(Random&, std::size_t)> hostile;
    bool distinct = true;  // false if so few values are valid that a corpus must repeat some
};

constexpr std::size_t kCorpusSize = 65536;  // too many values for a branch predictor to learn
constexpr std::size_t kHostileLength = 512;

// Corpus stores the values in one string, each with its terminator.
class Corpus {
 public:
    Corpus(const ValueFamily& family, Shape shape, std::size_t size = kCorpusSize);

    const std::vector<const char*>& values() const { return values_; }

    std::size_t bytes() const { return text_.size() - values_.size(); }

 private:
    std::string text_;
    std::vector<const char*> values_;
};

const std::vector<ValueFamily>& families();

const ValueFamily& family(std::string_view name);

}  // namespace ostrel::bench

#endif
