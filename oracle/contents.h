// Compares the bytes of accepted values with the bytes that docs/hazards.md lists for each argument.
#ifndef OSTREL_ORACLE_CONTENTS_H
#define OSTREL_ORACLE_CONTENTS_H

#include <array>
#include <bitset>
#include <span>
#include <string>
#include <vector>

#include "catalogue/hazards.h"

namespace ostrel::oracle {

std::vector<std::string> texts_of(const catalogue::Value& value);

class Contents {
 public:
    explicit Contents(const catalogue::Function& function);

    // fault describes a byte of an accepted call in a place for which docs/hazards.md does not list it, or is
    // empty. after contains the final values of the arguments that may be written, in order.
    [[nodiscard]] std::string fault(std::span<const catalogue::Value> values,
                                    std::span<const catalogue::Value> after) const;

 private:
    struct Exclusion {
        const catalogue::Exposure* exposure;
        std::size_t output;  // the argument's index among those that the function may write to
        std::array<std::bitset<256>, catalogue::kPlaces.size()> never;
    };
    [[nodiscard]] std::string fault(const Exclusion& excluded, const std::string& text) const;

    const catalogue::Function& function_;
    std::vector<Exclusion> all_;
};

}  // namespace ostrel::oracle

#endif
