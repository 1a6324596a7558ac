// Capture collects printed output in memory and needs no files or system calls.
#ifndef OSTREL_CALLING_CAPTURE_H
#define OSTREL_CALLING_CAPTURE_H

#include <cstddef>
#include <cstdio>
#include <string>
#include <string_view>

namespace ostrel::calling {

// open_stream opens a stream that passes the cookie and its output to a function, as fopencookie does.
std::FILE* open_stream(cookie_write_function_t* write, void* cookie, int buffering);

// Prints is memory for printed output. Place it in zeroed memory from mmap, whose untouched pages occupy no
// space. Another process that shares this memory can read the output even after this process has ended.
struct Prints {
    struct Text {
        static constexpr std::size_t kCapacity = std::size_t{32} << 20;
        std::size_t size;
        bool cut;  // more was printed than fits
        char bytes[kCapacity];

        [[nodiscard]] std::string_view view() const { return {bytes, size}; }
    };
    Text out;
    Text err;
};

// PrintedView is a view of the printed output. It is valid until more is printed.
struct PrintedView {
    std::string_view out;     // printed to standard output
    std::size_t flushed = 0;  // how many of its bytes had been flushed when the call returned
    std::string_view err;     // printed to standard error
    bool cut = false;
};

struct Printed {
    std::string out;
    std::size_t flushed = 0;
    std::string err;
};

// Capture replaces the streams stdout and stderr during its lifetime. Only one may exist at a time. The file
// descriptors stay, so processes started by the library still print to the original ones.
class Capture {
 public:
    Capture();
    // This constructor collects the output in memory that the caller owns.
    explicit Capture(Prints& prints);
    Capture(const Capture&) = delete;
    Capture& operator=(const Capture&) = delete;
    ~Capture();

    // take returns the output since the last take or clear, and clears it.
    Printed take();

    // look returns a view of the output since the last take or clear.
    PrintedView look();

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
