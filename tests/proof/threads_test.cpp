// Eight threads judge every vector concurrently. Each result must be the one that the vector promises, and
// no printed line may be interrupted by another. With the thread sanitizer (the "tsan" preset), the test also
// shows that there is no data race.
//
// The MAC address checks print a character without a line ending, which may precede any line, so their rows are
// judged separately, and their output is compared byte by byte.
//
// If OSTREL_LONGEST_TEXT is set, rows with longer strings are skipped. So are rows of WLAN_check_channel that
// need the driver's channel list, because only one thread at a time may call it.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <atomic>
#include <barrier>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

#include "vectors/rows.h"

namespace ostrel::tests {

using calling::Caller;
using vectors::CallResult;
using vectors::read_cases;
using vectors::Row;
using vectors::shown;

namespace {

constexpr std::size_t kThreads = 8;

// Pieces counts how often each line occurs or, for output without line endings, how often each byte occurs.
using Pieces = std::map<std::string, std::size_t, std::less<>>;

void add_lines(Pieces& lines, std::string_view text, std::size_t times)
{
    while (!text.empty()) {
        const std::size_t end = std::min(text.find('\n'), text.size() - 1) + 1;
        lines[std::string(text.substr(0, end))] += times;
        text.remove_prefix(end);
    }
}

void add_bytes(Pieces& bytes, std::string_view text, std::size_t times)
{
    for (const char byte : text) bytes[std::string(1, byte)] += times;
}

// Redirected sends a standard stream to a file until it is destroyed.
class Redirected {
 public:
    Redirected(std::FILE* stream, const std::string& path) : stream_(stream), path_(path)
    {
        std::fflush(stream_);
        saved_ = dup(fileno(stream_));
        const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_APPEND | O_CLOEXEC, 0600);
        dup2(file, fileno(stream_));
        close(file);
    }
    Redirected(const Redirected&) = delete;
    Redirected& operator=(const Redirected&) = delete;
    ~Redirected()
    {
        std::fflush(stream_);
        dup2(saved_, fileno(stream_));
        close(saved_);
        unlink(path_.c_str());
    }

    [[nodiscard]] std::string text() const
    {
        std::fflush(stream_);
        std::ifstream file(path_, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

 private:
    std::FILE* stream_;
    std::string path_;
    int saved_ = -1;
};

// Expected is a row with its promised result, which is computed before any thread starts.
struct Expected {
    const Row* row;
    CallResult result;
};

Expected expected_of(const Row& row)
{
    Caller caller;
    caller.load(*row.given.function, row.given.values);
    return {&row, expected_result(row, caller.written())};
}

bool asks_the_driver(const Row& row)
{
    if (row.given.function->name != "WLAN_check_channel") return false;
    return row.given.values[0] != catalogue::Value(std::string("0")) &&
           row.text.find("2.4") != std::string::npos;
}

bool is_as_promised(const CallResult& expected, const std::vector<calling::Written>& written, int code)
{
    return code == expected.code && std::ranges::equal(written, expected.after, {}, &calling::Written::value);
}

// judge_all runs every case, starting at a different one in each thread, and counts the wrong results.
std::size_t judge_all(const std::vector<Expected>& all, std::size_t thread)
{
    std::size_t wrong = 0;
    Caller caller;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const auto& [row, expected] = all[(i + thread * all.size() / kThreads) % all.size()];
        caller.load(*row->given.function, row->given.values);
        const int code = caller.call();
        if (!is_as_promised(expected, caller.written(), code)) ++wrong;
    }
    return wrong;
}

std::size_t judge_in_threads(const std::vector<Expected>& all)
{
    std::atomic<std::size_t> wrong = 0;
    std::barrier start(static_cast<std::ptrdiff_t>(kThreads));
    std::vector<std::thread> threads;
    threads.reserve(kThreads);
    for (std::size_t i = 0; i < kThreads; ++i) {
        threads.emplace_back([&, i] {
            start.arrive_and_wait();
            wrong += judge_all(all, i);
        });
    }
    for (std::thread& thread : threads) thread.join();
    return wrong;
}

// differing returns a few of the lines that occur more often on one side, to keep failure messages short.
std::string differing(const Pieces& expected, const Pieces& actual)
{
    std::string result;
    std::size_t count = 0;
    const auto compare = [&](const Pieces& a, const Pieces& b, const char* what) {
        for (const auto& [line, times] : a) {
            const auto found = b.find(line);
            if (found != b.end() && found->second == times) continue;
            if (++count <= 10) result += what + shown(line) + "\n";
        }
    };
    compare(expected, actual, "promised: ");
    compare(actual, expected, "printed:  ");
    return result;
}

struct Vectors {
    Vectors()
    {
        for (const Row& row : rows) {
            if (asks_the_driver(row)) continue;
            Expected expected = expected_of(row);
            const auto& [code, out, err, flushed, after] = expected.result;
            if (out.empty() && err.empty()) silent.push_back(expected);
            const bool is_whole = out.empty() || out.back() == '\n';
            (is_whole ? whole : broken).push_back(std::move(expected));
        }
    }

    std::vector<Row> rows = read_cases();
    std::vector<Expected> whole;   // rows that print whole lines or nothing
    std::vector<Expected> broken;  // rows that print incomplete lines
    std::vector<Expected> silent;  // rows that print nothing
};

class Threads : public testing::Test {
 protected:
    static const Vectors& vectors()
    {
        static const Vectors all;
        return all;
    }

    static void judge(const std::vector<Expected>& all, void (*add)(Pieces&, std::string_view, std::size_t))
    {
        const std::string path = testing::TempDir() + "ostrel-threads-" + std::to_string(getpid());
        std::size_t wrong = 0;
        std::string out;
        std::string err;
        {
            const Redirected to_out(stdout, path + ".out");
            const Redirected to_err(stderr, path + ".err");
            wrong = judge_in_threads(all);
            out = to_out.text();
            err = to_err.text();
        }
        Pieces expected_out;
        Pieces expected_err;
        for (const Expected& one : all) {
            add(expected_out, one.result.out, kThreads);
            add(expected_err, one.result.err, kThreads);
        }
        Pieces actual_out;
        Pieces actual_err;
        add(actual_out, out, 1);
        add(actual_err, err, 1);
        EXPECT_EQ(0, wrong);
        EXPECT_EQ("", differing(expected_out, actual_out));
        EXPECT_EQ("", differing(expected_err, actual_err));
        std::size_t pieces = 0;
        for (const auto& [piece, times] : actual_out) pieces += times;
        for (const auto& [piece, times] : actual_err) pieces += times;
        std::printf("%zu threads, %zu calls each: %zu %s arrived whole\n", kThreads, all.size(), pieces,
                    add == add_lines ? "lines" : "bytes");
    }
};

TEST_F(Threads, JudgeEveryVector) { judge(vectors().whole, add_lines); }

TEST_F(Threads, JudgeEveryVectorThatPrintsNothing) { judge(vectors().silent, add_lines); }

TEST_F(Threads, JudgeEveryVectorThatPrintsACharacter)
{
    for (const Expected& one : vectors().broken) EXPECT_EQ(1, one.result.out.size()) << one.row->text;
    judge(vectors().broken, add_bytes);
}

// Without this test, the ones above could pass for the wrong reason.
TEST(ThreadsProof, ABrokenLineIsSeen)
{
    Pieces expected;
    Pieces actual;
    add_lines(expected, "Error in a: x\n\nError in b: y\n\n", 1);
    add_lines(actual, "Error in a: Error in b: x\n\ny\n\n", 1);
    EXPECT_NE("", differing(expected, actual));
}

}  // namespace

}  // namespace ostrel::tests
