// Runs checks in separate processes, because a check may crash or hang.
#ifndef OSTREL_TOOLS_SYSTEM_PROCESS_H
#define OSTREL_TOOLS_SYSTEM_PROCESS_H

#include <sys/types.h>

#include <string>
#include <string_view>

namespace ostrel::tool {

// Descriptor is an open file, which the destructor closes.
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

// make_pipe creates a pipe. Throws std::system_error.
Pipe make_pipe();

// fork_guarded forks, and returns 0 in the child and the child's process id in the parent. The child leads
// its own process group, dies with its parent, leaves no core file, and survives writing to a closed pipe.
// Throws std::system_error.
pid_t fork_guarded();

struct Ending {
    bool by_signal = false;
    int number = 0;  // signal number or exit status
};

Ending wait_for(pid_t child);

// stop kills a child and the processes that it has started, and waits for the child.
void stop(pid_t child);

// mentions_assertion returns whether the output contains the C library's report of a failed assertion.
bool mentions_assertion(std::string_view printed);

std::string describe_ending(const Ending& ending, bool by_assertion);

std::string describe_no_return(double seconds);

// occupy_standard_descriptors prevents a pipe or a file from being assigned the number of a closed standard
// stream. Using that stream still fails.
void occupy_standard_descriptors();

// say writes to standard error and ignores errors.
void say(std::string_view text);

// write_what_fits writes as much as possible. error is 0 or the errno of the write that failed.
struct Fitted {
    std::size_t size = 0;
    int error = 0;
};
Fitted write_what_fits(int descriptor, std::string_view text);

// take_back removes the last size bytes written to a regular file. It does nothing for other files.
void take_back(int descriptor, std::size_t size);

// write_all writes everything, or returns false if the reader has closed the pipe. Throws std::system_error.
bool write_all(int descriptor, std::string_view text);

}  // namespace ostrel::tool

#endif
