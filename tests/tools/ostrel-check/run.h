// Runs ostrel-check as a user would.
#ifndef OSTREL_TESTS_RUN_H
#define OSTREL_TESTS_RUN_H

#include <nlohmann/json_fwd.hpp>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

struct RunResult {
    int status = 0;  // 128 and the signal's number where a signal ended it
    std::string out;
    std::string err;

    bool operator==(const RunResult&) const = default;
};

void PrintTo(const RunResult& outcome, std::ostream* stream);

// program is the path of ostrel-check: that of the build, or what OSTREL_CHECK in the environment says.
std::string program();

// run runs ostrel-check with those arguments and that standard input.
RunResult run(std::vector<std::string> arguments, std::string_view input = "");

// run_batch runs the batch in JSON over that input, and reads each line; the last is the summary.
std::vector<nlohmann::json> run_batch(std::string_view input, std::vector<std::string> options = {});

// summary_of reads the table's last line.
std::string summary_of(const RunResult& outcome);

// File is a file that lasts as long as this does.
class File {
 public:
    explicit File(std::string_view text);
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File();

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] std::string text() const;

 private:
    std::string path_;
};

}  // namespace ostrel::tool

#endif
