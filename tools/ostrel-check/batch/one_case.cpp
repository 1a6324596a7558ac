#include "batch/one_case.h"

#include <sys/mman.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "read/words.h"
#include "write/json_writer.h"

namespace ostrel::tool {

namespace {

std::string record_of(const catalogue::Function& function, std::span<const std::string> words)
{
    std::string record = R"({"check":")" + std::string(function.name) + R"(","args":[)";
    for (const std::string& word : words) {
        const Item item = item_of(word);
        if (!record.ends_with('[')) record += ',';
        if (item.kind == Item::Kind::kNull) {
            record += "null";
        } else {
            append_bytes(record, item.text, Encoding::kUtf8);
        }
    }
    return record + "]}\n";
}

}  // namespace

int judge_in_json(const catalogue::Function& function, std::span<const std::string> words, Rules rules)
{
    const Descriptor file(memfd_create("case", MFD_CLOEXEC));
    if (file.number() < 0) throw std::system_error(errno, std::generic_category(), "cannot store the case");
    write_all(file.number(), record_of(function, words));
    lseek(file.number(), 0, SEEK_SET);
    dup2(file.number(), STDIN_FILENO);
    rules.files = {"-"};
    rules.reading.format = FileFormat::kNdjson;
    rules.style.format = Format::kStream;
    Closing closing;
    closing.has_summary = false;
    return run_batch(rules, closing, 1);
}

}  // namespace ostrel::tool
