// Capture collects what is printed, without a file and without a system call.
#ifndef OSTREL_CALLING_CAPTURE_H
#define OSTREL_CALLING_CAPTURE_H

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace ostrel::calling {

// open_stream opens a stream that passes the cookie and what is written to a function, as fopencookie does.
std::FILE* open_stream(cookie_write_function_t* write, void* cookie, int buffering);

// Prints is memory for what is printed. It is meant for untouched, zeroed memory of mmap, of which only what
// is written to counts. Shared with another process it shows that process what was printed, even when this
// one has come to its end.
struct Prints {
    struct Text {
        static constexpr std::size_t kCapacity = std::size_t{32} << 20;
        std::size_t size;
        bool cut;  // more was printed than there is room for
        char bytes[kCapacity];

        [[nodiscard]] std::string_view view() const { return {bytes, size}; }
    };
    Text out;
    Text err;
};

// PrintedView is what was printed, in place. It holds until more is printed.
struct PrintedView {
    std::string_view out;     // what went to standard output
    std::size_t flushed = 0;  // how many of its bytes had been flushed when the call returned
    std::string_view err;     // what went to standard error
    bool cut = false;
};

struct Printed {
    std::string out;
    std::size_t flushed = 0;
    std::string err;
};

// Capture takes the place of standard output and standard error for as long as it lives. One at a time. It
// replaces this process's streams and not its descriptors: what a process prints that the library starts goes to
// those as ever.
class Capture {
 public:
    Capture();
    // This one collects in memory that the caller owns.
    explicit Capture(Prints& prints);
    Capture(const Capture&) = delete;
    Capture& operator=(const Capture&) = delete;
    ~Capture();

    // take returns what was printed since the last time.
    Printed take();

    // look shows what was printed since the last take or clear.
    PrintedView look();

    // clear forgets what was printed.
    void clear();

 private:
    Prints* prints_;
    std::FILE* saved_out_;
    std::FILE* saved_err_;
    std::FILE* stream_out_;
    std::FILE* stream_err_;
};

}  // namespace ostrel::calling

#endif
