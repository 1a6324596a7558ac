// Processes: a check may crash or hang in one of its own.
#ifndef OSTREL_TOOLS_SYSTEM_PROCESS_H
#define OSTREL_TOOLS_SYSTEM_PROCESS_H

#include <sys/types.h>

#include <string>
#include <string_view>

namespace ostrel::tool {

// Descriptor is an open file that is closed at the end.
class Descriptor {
 public:
    explicit Descriptor(int number = -1) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(other.release()) {}
    Descriptor& operator=(Descriptor&& other) noexcept;
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { close(); }

    void close();
    [[nodiscard]] int number() const { return number_; }

 private:
    int release();

    int number_;
};

struct Pipe {
    Descriptor reading;
    Descriptor writing;
};

// make_pipe throws std::system_error.
Pipe make_pipe();

// fork_guarded forks: 0 in the child, its process id in the parent. The child leads a process group of its
// own, dies with its parent, leaves no core file and survives a closed pipe. Throws
// std::system_error.
pid_t fork_guarded();

// Ending says how a process ended.
struct Ending {
    bool by_signal = false;
    int number = 0;  // of the signal, or the exit status
};

// wait_for waits for a child to end.
Ending wait_for(pid_t child);

// stop ends a child and what it has started, and waits for the child.
void stop(pid_t child);

// mentions_assertion tells the C library's report of a failed assertion.
bool mentions_assertion(std::string_view printed);

// describe_ending says in words what ended the process of a check.
std::string describe_ending(const Ending& ending, bool by_assertion);

// describe_no_return says that a call was given up after so many seconds.
std::string describe_no_return(double seconds);

// occupy_standard_descriptors keeps a pipe or a file from taking the number of a standard stream that is
// closed. Using that stream goes on to fail.
void occupy_standard_descriptors();

// say writes to standard error, if that can be.
void say(std::string_view text);

// write_what_fits writes a text and returns how much of it was written, and why not all: an errno, or 0.
struct Fitted {
    std::size_t size = 0;
    int error = 0;
};
Fitted write_what_fits(int descriptor, std::string_view text);

// take_back removes the last bytes that were written to a file; from anything else nothing can be taken back.
void take_back(int descriptor, std::size_t size);

// write_all writes everything, or says by false that nobody reads any more. Throws std::system_error.
bool write_all(int descriptor, std::string_view text);

}  // namespace ostrel::tool

#endif
