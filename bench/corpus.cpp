#include "bench/corpus.h"

#include <stdexcept>
#include <unordered_set>

namespace ostrel::bench {

namespace {

constexpr char kNoCharacter = '\x01';

std::uint64_t seed_of(std::string_view name, Shape shape)
{
    std::uint64_t seed = static_cast<std::uint64_t>(shape) + 1;
    for (const char c : name) seed = seed * 31 + static_cast<unsigned char>(c);
    return seed;
}

std::string make(const ValueFamily& family, Shape shape, Random& random)
{
    if (shape == Shape::kHostile) return family.hostile(random, kHostileLength);
    std::string value = family.valid(random);
    if (shape == Shape::kRefusedFirst) value.front() = kNoCharacter;
    if (shape == Shape::kRefusedLast) value.back() = kNoCharacter;
    return value;
}

}  // namespace

std::string some(Random& random, std::size_t length, std::string_view members)
{
    std::string text;
    while (text.size() < length) text += random.one_of(members);
    return text;
}

std::string number(Random& random, unsigned low, unsigned high, std::size_t width)
{
    std::string digits = std::to_string(random.between(low, high));
    if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
    return digits;
}

const char* name_of(Shape shape)
{
    switch (shape) {
        case Shape::kValid:
            return "valid";
        case Shape::kRefusedFirst:
            return "refused_first";
        case Shape::kRefusedLast:
            return "refused_last";
        case Shape::kHostile:
            break;
    }
    return "hostile";
}

Corpus::Corpus(const ValueFamily& family, Shape shape, std::size_t size)
{
    Random random(seed_of(family.name, shape));
    std::unordered_set<std::string> seen;
    std::vector<std::size_t> begins;
    while (begins.size() < size) {
        const std::string value = make(family, shape, random);
        if (family.distinct && !seen.insert(value).second) continue;
        begins.push_back(text_.size());
        text_.append(value.c_str(), value.size() + 1);
    }
    for (const std::size_t begin : begins) values_.push_back(text_.data() + begin);
}

const ValueFamily& family(std::string_view name)
{
    for (const ValueFamily& each : families()) {
        if (each.name == name) return each;
    }
    throw std::out_of_range(std::string(name));
}

}  // namespace ostrel::bench
