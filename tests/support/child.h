// Child: a function run in a process of its own, for calls that end the process or never return.
#ifndef OSTREL_TESTS_SUPPORT_CHILD_H
#define OSTREL_TESTS_SUPPORT_CHILD_H

#include <sys/types.h>

#include <chrono>
#include <functional>
#include <iosfwd>
#include <string>

namespace ostrel::tests {

// ChildEnd is how a child ended and what it printed until then, flushed by itself or by its return.
struct ChildEnd {
    bool timed_out = false;  // it was still running at the limit, and was killed
    int signal = 0;          // the signal that ended it; 0: none, or timed out
    int status = -1;         // what its body returned; -1: it did not return
    std::string out;
    std::string err;
};

void PrintTo(const ChildEnd& end, std::ostream* stream);

// Child starts the body at once in a forked process, which leaves no core file. Several may run side by side.
class Child {
 public:
    // body returns 0 to 255.
    explicit Child(const std::function<int()>& body);
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;
    ~Child();

    // wait returns how the child ended, or kills it when the limit, counted from its start, has passed. Once only.
    ChildEnd wait(std::chrono::milliseconds limit);

 private:
    std::chrono::steady_clock::time_point start_;
    pid_t pid_ = -1;
    int out_ = -1;
    int err_ = -1;
};

// run_in_child is a child that is waited for at once.
ChildEnd run_in_child(std::chrono::milliseconds limit, const std::function<int()>& body);

}  // namespace ostrel::tests

#endif
