// Capture collects what is printed, without a file and without a system call.
#ifndef OSTREL_CATALOGUE_CAPTURE_H
#define OSTREL_CATALOGUE_CAPTURE_H

#include <cstddef>
#include <cstdio>
#include <string>

namespace ostrel::catalogue {

struct Printed {
    std::string out;          // what went to standard output
    std::size_t flushed = 0;  // how many of its bytes had been flushed when the call returned
    std::string err;          // what went to standard error
};

// Capture takes the place of standard output and standard error for as long as it lives. One at a time.
class Capture {
 public:
    Capture();
    Capture(const Capture&) = delete;
    Capture& operator=(const Capture&) = delete;
    ~Capture();

    // take gives what was printed since the last time.
    Printed take();

 private:
    std::string out_;
    std::string err_;
    std::FILE* saved_out_;
    std::FILE* saved_err_;
    std::FILE* stream_out_;
    std::FILE* stream_err_;
};

}  // namespace ostrel::catalogue

#endif
