#include "write/render_json.h"

#include <algorithm>
#include <array>

#include "catalogue/result_codes.h"
#include "judge/reason.h"
#include "write/json_writer.h"

namespace ostrel::tool {

namespace {

// kOwn lists the members that a result defines itself. The record's members with such a name go into "given".
constexpr std::array<std::string_view, 16> kOwn = {"file",   "line",    "check", "verdict", "code", "meaning",
                                                   "reason", "remarks", "out",   "flushed", "err",  "cut",
                                                   "after",  "args",    "given", "tried"};

bool is_own(std::string_view name)
{
    // Most members are ruled out by their length.
    constexpr auto kSizes = std::ranges::minmax(kOwn, {}, &std::string_view::size);
    if (name.size() < kSizes.min.size() || name.size() > kSizes.max.size()) return false;
    return std::ranges::find(kOwn, name) != kOwn.end();
}

class ResultLine {
 public:
    ResultLine() : json_(buffer_) {}

    std::string_view write(const Style& style, const Location& place, const Result& result)
    {
        constexpr std::size_t kMostKept = std::size_t{1} << 20;
        if (buffer_.GetSize() > kMostKept) {
            buffer_.Clear();
            buffer_.ShrinkToFit();
        }
        buffer_.Clear();
        json_.Reset(buffer_);
        encoding_ = style.encoding;
        json_.StartObject();
        if (style.format != Format::kStream) write_file(place.file);
        json_.plain("line");
        json_.Uint64(place.line);
        write_passed(result);
        write_verdict(result);
        if (style.with_args) write_args(result);
        write_reasons(json_, result, encoding_);
        if (result.verdict != Verdict::kMalformed) write_effects(result);
        json_.EndObject();
        buffer_.Put('\n');
        return {buffer_.GetString(), buffer_.GetSize()};
    }

 private:
    void member(std::string_view name, std::string_view text)
    {
        json_.plain(name);
        write_text(json_, text);
    }

    // write_file reuses what it wrote for the same file.
    void write_file(std::string_view file)
    {
        if (file_member_.empty() || file != file_) {
            rapidjson::StringBuffer buffer;
            JsonWriter json(buffer);
            json.StartObject();
            json.plain("file");
            write_text(json, file);
            file_ = file;
            file_member_ = std::string_view(buffer.GetString(), buffer.GetSize()).substr(1);
        }
        json_.members(file_member_);
    }

    void write_named(const Member& passed)
    {
        if (passed.has_plain_name && passed.is_json) {
            json_.members("\"", passed.name, "\":", passed.value);
            return;
        }
        json_.text(passed.name);
        write_member(json_, passed);
    }

    void write_passed(const Result& result)
    {
        if (result.record == nullptr) return;
        bool has_own = false;
        for (const Member& passed : result.record->members) {
            if (is_own(passed.name)) {
                has_own = true;
                continue;
            }
            write_named(passed);
        }
        if (!has_own) return;
        json_.plain("given");
        json_.StartObject();
        for (const Member& passed : result.record->members) {
            if (!is_own(passed.name)) continue;
            write_named(passed);
        }
        json_.EndObject();
    }

    void write_verdict(const Result& result)
    {
        if (result.verdict == Verdict::kAccepted) {
            json_.members(R"("check":")", result.function->name,
                          R"(","verdict":"accepted","code":0,"meaning":"valid")");
            return;
        }
        if (result.function != nullptr) {
            json_.plain("check");
            json_.plain(result.function->name);
        }
        json_.plain("verdict");
        json_.plain(json_name(result.verdict));
        if (!result.is_tried) {
            json_.plain("tried");
            json_.Bool(false);
        }
        json_.plain("code");
        if (has_code(result.verdict)) {
            json_.Int(result.code);
            member("meaning",
                   result.verdict == Verdict::kAnswer ? "a number" : catalogue::meaning(result.code));
        } else {
            json_.Null();
            member("meaning", result.problem);
        }
    }

    void write_args(const Result& result)
    {
        if (result.verdict == Verdict::kMalformed || result.values == nullptr) return;
        json_.plain("args");
        json_.StartArray();
        for (const catalogue::Value& value : *result.values) write_value(json_, value, encoding_);
        json_.EndArray();
    }

    void write_effects(const Result& result)
    {
        const calling::PrintedView& printed = result.printed;
        if (printed.out.empty() && printed.err.empty() && !printed.cut && result.after.empty()) {
            json_.members(R"("out":"","flushed":true,"err":"","after":{})");
            return;
        }
        json_.plain("out");
        write_bytes(json_, printed.out, encoding_);
        json_.plain("flushed");
        json_.Bool(printed.flushed == printed.out.size());
        json_.plain("err");
        write_bytes(json_, printed.err, encoding_);
        if (printed.cut) {
            json_.plain("cut");
            json_.Bool(true);
        }
        json_.plain("after");
        json_.StartObject();
        for (const calling::Written& written : result.after) {
            json_.plain(written.argument->name);
            write_value(json_, written.value, encoding_);
        }
        json_.EndObject();
    }

    rapidjson::StringBuffer buffer_;
    JsonWriter json_;
    std::string file_;
    std::string file_member_;  // as JSON
    Encoding encoding_ = Encoding::kUtf8;
};

}  // namespace

std::string_view json_line(const Style& style, const Location& place, const Result& result)
{
    static ResultLine line;
    return line.write(style, place, result);
}

}  // namespace ostrel::tool
