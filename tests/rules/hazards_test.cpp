// Tests that the library accepts each value that the catalogue lists as accepted with a hazardous byte, and
// that the byte is in the listed place. fuzz/ searches for hazards that the catalogue does not list.

#include <gtest/gtest.h>

#include <algorithm>

#include "calling/caller.h"
#include "calling/capture.h"
#include "catalogue/hazards.h"
#include "oracle/contents.h"
#include "rules/walk.h"

namespace ostrel::tests {

using catalogue::Exposure;
using catalogue::Function;
using catalogue::kPlaces;
using catalogue::Value;
using catalogue::Witness;

namespace {

class Hazards : public testing::Test {
 protected:
    // held returns the strings of the argument before or after the call, or nothing if the call is refused.
    std::vector<std::string> held(const Function& function, const Exposure& exposure,
                                  const std::vector<Value>& values)
    {
        const calling::Capture capture;
        caller_.load(function, values);
        if (caller_.call() != 0) return {};
        if (!exposure.is_after) return oracle::texts_of(values[exposure.argument]);
        for (const calling::Written& written : caller_.written()) {
            if (written.argument == &function.arguments[exposure.argument])
                return oracle::texts_of(written.value);
        }
        return {};
    }

    calling::Caller caller_;
};

TEST_F(Hazards, EachWitnessIsAccepted)
{
    std::size_t calls = 0;
    for (const Function& function : catalogue::functions()) {
        for (const Exposure& exposure : catalogue::exposures_of(function)) {
            for (const catalogue::Place place : kPlaces) {
                for (const Witness& witness : exposure.witnesses.at(static_cast<std::size_t>(place))) {
                    for (const char byte : witness.bytes) {
                        const auto texts = held(function, exposure, witness.with(byte));
                        const bool is_there = std::ranges::any_of(
                            texts, [&](const std::string& text) { return stands_at(place, text, byte); });
                        EXPECT_TRUE(is_there) << function.name << " " << exposure.argument << " "
                                              << name_of(place) << " " << static_cast<int>(byte);
                        ++calls;
                    }
                }
            }
        }
    }
    EXPECT_GT(calls, 10000U);
}

// The catalogue lists the hazards of each text before the call and, if the call can write it, after it.
TEST_F(Hazards, EachTextIsSpokenOf)
{
    for (const Function& function : catalogue::functions()) {
        std::size_t texts = 0;
        for (const rules::Argument& argument : function.check->arguments) {
            const bool is_number = argument.kind == catalogue::Kind::kInteger ||
                                   argument.kind == catalogue::Kind::kUnsigned ||
                                   argument.kind == catalogue::Kind::kIntegerOut;
            if (is_number || !function.check->is_verdict) continue;
            if (!argument.is_output) ++texts;
            if (rules::is_written(argument)) ++texts;
        }
        EXPECT_EQ(texts, catalogue::exposures_of(function).size()) << function.name;
    }
}

}  // namespace

}  // namespace ostrel::tests
