// Contents: what accepted values contain, held against what docs/hazards.md says of an argument.
#ifndef OSTREL_ORACLE_CONTENTS_H
#define OSTREL_ORACLE_CONTENTS_H

#include <array>
#include <bitset>
#include <span>
#include <string>
#include <vector>

#include "catalogue/hazards.h"

namespace ostrel::oracle {

// texts_of gives the texts that an argument holds.
std::vector<std::string> texts_of(const catalogue::Value& value);

class Contents {
 public:
    explicit Contents(const catalogue::Function& function);

    // fault names a byte that an accepted call has where there is said to be none; nothing: there is none. after is
    // what each argument that can be written to holds, in order.
    [[nodiscard]] std::string fault(std::span<const catalogue::Value> values,
                                    std::span<const catalogue::Value> after) const;

 private:
    struct Said {
        const catalogue::Exposure* exposure;
        std::size_t output;  // among the arguments that can be written to
        std::array<std::bitset<256>, catalogue::kPlaces.size()> never;
    };
    [[nodiscard]] std::string fault(const Said& said, const std::string& text) const;

    const catalogue::Function& function_;
    std::vector<Said> all_;
};

}  // namespace ostrel::oracle

#endif
