#include "terminal/style.h"

#include <sys/ioctl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace ostrel::tool {

bool wants_colours(int descriptor)
{
    // NOLINTBEGIN(concurrency-mt-unsafe): there is one thread
    const char* no_colour = std::getenv("NO_COLOR");
    const char* terminal = std::getenv("TERM");
    // NOLINTEND(concurrency-mt-unsafe)
    if (no_colour != nullptr && no_colour[0] != '\0') return false;
    if (terminal == nullptr || std::string_view(terminal) == "dumb") return false;
    return isatty(descriptor) == 1;
}

std::string painted(std::string_view text, Colour colour, bool with_colours)
{
    if (!with_colours) return std::string(text);
    std::string result = "\x1B[1m";
    if (colour == Colour::kGreen) result = "\x1B[32m";
    if (colour == Colour::kRed) result = "\x1B[31m";
    return result.append(text).append("\x1B[0m");
}

std::size_t columns_of(int descriptor, std::size_t otherwise)
{
    constexpr std::size_t kFewest = 40;
    winsize size = {};
    if (ioctl(descriptor, TIOCGWINSZ, &size) != 0 || size.ws_col == 0) return otherwise;
    return std::max<std::size_t>(size.ws_col, kFewest);
}

Look look_of(int descriptor) { return {wants_colours(descriptor), columns_of(descriptor, kColumns)}; }

void append_wrapped(std::string& out, std::string_view text, std::size_t indentation, std::size_t hanging,
                    std::size_t columns)
{
    while (!text.empty()) {
        std::size_t size = text.size();
        const std::size_t width = columns > indentation ? columns - indentation : 1;
        if (columns != kAnyWidth && size > width) {
            size = text.substr(0, width + 1).rfind(' ');
            if (size == std::string_view::npos || size == 0) size = std::min(text.find(' '), text.size());
        }
        out.append(indentation, ' ').append(text.substr(0, size)).append("\n");
        text.remove_prefix(std::min(text.size(), size + 1));
        indentation += std::exchange(hanging, 0);
    }
}

}  // namespace ostrel::tool
