// A reason in the binary form that the page reads.
#ifndef OSTREL_WEB_REASONS_TOLD_H
#define OSTREL_WEB_REASONS_TOLD_H

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "rules/reason.h"

namespace ostrel::web {

// Told is read by the page (reasons.js) as 32-bit numbers in this order.
struct Told {
    static constexpr std::int32_t kNone = -1;

    struct Text {
        const char* begin = nullptr;
        std::size_t size = 0;
    };

    struct Datum {
        enum Kind : std::int32_t {
            kNothing,
            kNumber,   // the low and the high 32 bits
            kText,     // the address and the size
            kNumbers,  // the address and the count of numbers, each stored as the low and the high 32 bits
            kTexts,    // the address and the count of strings, each stored as a permanent address and a size
            kJson,
            kKeptJson,  // JSON whose address is permanent
        };
        Kind kind = kNothing;
        std::int32_t first = 0;
        std::int32_t second = 0;
    };

    Text id;
    Text part;
    Text conversion;
    Text item_text;
    Text limit;
    std::int32_t argument = kNone;
    std::int32_t item = kNone;
    std::int32_t offset = kNone;
    Datum found;
    Datum allowed;
    Datum read_as;
    Text sentence;
};

// tell stores a reason and its sentence, which must stay valid until the page has read them.
void tell(Told& told, const rules::Reason& reason, std::string_view sentence);

}  // namespace ostrel::web

#endif
