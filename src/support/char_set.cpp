#include "src/support/char_set.h"

namespace ostrel {

namespace {

consteval Memberships make_memberships()
{
    Memberships all;
    unsigned bit = 1;
    for (const char* members : char_set_texts().texts) {
        for (; *members != '\0'; ++members) {
            std::uint16_t& word = all.words[static_cast<unsigned char>(*members)];
            word = static_cast<std::uint16_t>(word | bit);
        }
        bit <<= 1U;
    }
    return all;
}

}  // namespace

constexpr Memberships kMemberships = make_memberships();

}  // namespace ostrel
