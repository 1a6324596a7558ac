#include "write/render.h"

#include "write/render_csv.h"
#include "write/render_json.h"
#include "write/render_table.h"

namespace ostrel::tool {

void append_result(std::string& out, const Style& style, const Location& place, const Result& result)
{
    if (style.no_results) return;
    if (style.only_refused && exit_code(result.verdict) == kExitAccepted) return;
    switch (style.format) {
        case Format::kTable:
            append_row(out, style, place, result);
            break;
        case Format::kCsv:
            append_csv(out, style, place, result);
            break;
        case Format::kJson:
        case Format::kStream:
            append_json(out, style, place, result);
            break;
    }
}

}  // namespace ostrel::tool
