#include "src/support/host.h"

#include <cstddef>
#include <cstring>

#include "src/support/character_references.h"
#include "src/support/text.h"

// These declarations are weak so that a host without the functions can load the library, and visible so that
// the loader can bind them to the host's functions.
extern "C" {
[[gnu::weak, gnu::visibility("default")]] int cmsUtl_strcmp(const char* a, const char* b);
[[gnu::weak, gnu::visibility("default")]] int htmlToText(char* text, std::size_t length);
}

namespace ostrel {

bool host_equals(const char* a, const char* b)
{
    return cmsUtl_strcmp != nullptr ? cmsUtl_strcmp(a, b) == 0 : equals(a, b);
}

void resolve_references(char* text)
{
    const std::size_t length = std::strlen(text);
    if (htmlToText != nullptr) {
        htmlToText(text, length);
    } else {
        convert_references(text, length);
    }
}

}  // namespace ostrel
