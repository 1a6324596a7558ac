#include "run.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstdlib>
#include <fstream>
#include <nlohmann/json.hpp>
#include <sstream>

namespace ostrel::tool {

std::string program()
{
    const char* other = std::getenv("OSTREL_CHECK");  // NOLINT(concurrency-mt-unsafe)
    return other != nullptr ? other : OSTREL_CHECK;
}

void PrintTo(const RunResult& outcome, std::ostream* stream)
{
    *stream << "\n  status " << outcome.status << "\n  out " << outcome.out << "\n  err " << outcome.err;
}

RunResult run(std::vector<std::string> arguments, std::string_view input)
{
    const File in(input);
    const File out("");
    const File err("");
    arguments.insert(arguments.begin(), program());
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (std::string& argument : arguments) argv.push_back(argument.data());
    argv.push_back(nullptr);
    const pid_t child = fork();
    if (child == 0) {
        dup2(open(in.path().c_str(), O_RDONLY | O_CLOEXEC), STDIN_FILENO);
        dup2(open(out.path().c_str(), O_WRONLY | O_CLOEXEC), STDOUT_FILENO);
        dup2(open(err.path().c_str(), O_WRONLY | O_CLOEXEC), STDERR_FILENO);
        execv(argv.front(), argv.data());
        _exit(127);
    }
    int status = 0;
    waitpid(child, &status, 0);
    return {WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status), out.text(), err.text()};
}

std::vector<nlohmann::json> run_batch(std::string_view input, std::vector<std::string> options)
{
    options.insert(options.begin(), {"batch", "--json"});
    const RunResult outcome = run(options, input);
    EXPECT_EQ("", outcome.err);
    std::vector<nlohmann::json> rows;
    std::istringstream lines(outcome.out);
    for (std::string line; std::getline(lines, line);) rows.push_back(nlohmann::json::parse(line));
    return rows;
}

std::string summary_of(const RunResult& outcome)
{
    const std::string_view out = outcome.out;
    if (!out.ends_with('\n')) return "(no whole line)";
    const std::size_t before = out.substr(0, out.size() - 1).rfind('\n');
    return std::string(out.substr(before == std::string_view::npos ? 0 : before + 1));
}

File::File(std::string_view text)
{
    std::array<char, 32> name{"/tmp/ostrel-check-XXXXXX"};
    const int number = mkstemp(name.data());
    EXPECT_GE(number, 0);
    close(number);
    path_ = name.data();
    std::ofstream(path_, std::ios::binary) << text;
}

File::~File() { unlink(path_.c_str()); }

std::string File::text() const
{
    std::ostringstream text;
    text << std::ifstream(path_, std::ios::binary).rdbuf();
    return text.str();
}

}  // namespace ostrel::tool
