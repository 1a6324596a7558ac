// Runs ostrel-check as a user does.
#ifndef OSTREL_TESTS_RUN_H
#define OSTREL_TESTS_RUN_H

#include <nlohmann/json_fwd.hpp>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace ostrel::tool {

struct RunResult {
    int status = 0;  // 128 plus the signal's number if a signal ended it
    std::string out;
    std::string err;

    bool operator==(const RunResult&) const = default;
};

void PrintTo(const RunResult& outcome, std::ostream* stream);

// program returns the path of ostrel-check, from the environment variable OSTREL_CHECK or from the build.
std::string program();

RunResult run(std::vector<std::string> arguments, std::string_view input = "");

// run_batch runs a batch with JSON results over the input and parses each line; the last one is the summary.
std::vector<nlohmann::json> run_batch(std::string_view input, std::vector<std::string> options = {});

// summary_of returns the last line of the table.
std::string summary_of(const RunResult& outcome);

// File is a file that its destructor removes.
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
