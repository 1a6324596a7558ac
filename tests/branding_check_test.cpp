// Every byte in every place of a colour.

#include <gtest/gtest.h>
#include <ostrel/branding_check.h>

#include <string>

#include "calling/capture.h"

namespace ostrel::tests {

TEST(BrandingColor, EveryByteInEveryPlace)
{
    calling::Capture capture;
    for (std::size_t place = 0; place < 6; ++place) {
        for (int byte = 1; byte < 256; ++byte) {
            std::string color = "0aF9cE";
            color[place] = static_cast<char>(byte);
            const bool is_digit =
                std::string("0123456789abcdefABCDEF").find(color[place]) != std::string::npos;
            ASSERT_EQ(is_digit ? 0 : 600, Param_check_color_value(color.c_str())) << color;
            const std::string line = "Error in Param_check_color_value: color :" + color +
                                     " contain invalid char " + color[place] + "\n";
            ASSERT_EQ(is_digit ? "" : line, capture.take().out);
        }
    }
}

}  // namespace ostrel::tests
