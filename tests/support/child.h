// Runs a function in a separate process, for calls that end the process or never return.
#ifndef OSTREL_TESTS_SUPPORT_CHILD_H
#define OSTREL_TESTS_SUPPORT_CHILD_H

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <iosfwd>
#include <string>

namespace ostrel::tests {

// The output is what the child flushed, explicitly or by returning.
struct ChildEnd {
    bool timed_out = false;  // it was still running at the limit and was killed
    int signal = 0;          // the signal that ended it, or 0 if there was none or it timed out
    int status = -1;         // the value that its body returned, or -1 if the body did not return
    std::string out;
    std::string err;
};

void PrintTo(const ChildEnd& end, std::ostream* stream);

// Child immediately starts the body in a forked process, which leaves no core file. Several children may run
// at the same time.
class Child {
 public:
    // body must return a value from 0 to 255.
    explicit Child(const std::function<int()>& body);
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child();

    // wait kills the child when the limit, counted from the child's start, has passed. Call it only once.
    ChildEnd wait(std::chrono::milliseconds limit);

 private:
    std::chrono::steady_clock::time_point start_;
    pid_t pid_ = -1;
    int out_ = -1;
    int err_ = -1;
};

ChildEnd run_in_child(std::chrono::milliseconds limit, const std::function<int()>& body);

}  // namespace ostrel::tests

#endif
