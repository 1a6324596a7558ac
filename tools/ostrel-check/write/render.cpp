#include "write/render.h"

#include "write/render_csv.h"
#include "write/render_json.h"
#include "write/render_table.h"

namespace ostrel::tool {

std::string_view render_result(std::string& memory, const Style& style, const Location& place,
                               const Result& result)
{
    if (style.no_results) return {};
    if (style.only_refused && exit_code(result.verdict) == kExitAccepted) return {};
    memory.clear();
    switch (style.format) {
        case Format::kTable:
            append_row(memory, style, place, result);
            break;
        case Format::kCsv:
            append_csv(memory, style, place, result);
            break;
        case Format::kJson:
        case Format::kStream:
            return json_line(style, place, result);
    }
    return memory;
}

}  // namespace ostrel::tool
