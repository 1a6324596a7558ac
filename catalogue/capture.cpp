#include "catalogue/capture.h"

#include <sys/types.h>

#include <new>
#include <utility>

namespace ostrel::catalogue {

namespace {

ssize_t append(void* text, const char* bytes, std::size_t size)
{
    static_cast<std::string*>(text)->append(bytes, size);
    return static_cast<ssize_t>(size);
}

std::FILE* open_stream(std::string& text, int buffering)
{
    cookie_io_functions_t functions{};
    functions.write = append;
    std::FILE* stream = fopencookie(&text, "w", functions);
    if (stream == nullptr) throw std::bad_alloc();
    std::setvbuf(stream, nullptr, buffering, BUFSIZ);
    return stream;
}

}  // namespace

Capture::Capture()
    : saved_out_(stdout),
      saved_err_(stderr),
      stream_out_(open_stream(out_, _IOFBF)),
      stream_err_(open_stream(err_, _IONBF))
{
    // glibc's standard streams are variables that a program may set.
    stdout = stream_out_;
    stderr = stream_err_;
}

Capture::~Capture()
{
    stdout = saved_out_;
    stderr = saved_err_;
    std::fclose(stream_out_);
    std::fclose(stream_err_);
}

Printed Capture::take()
{
    Printed printed;
    printed.flushed = out_.size();
    std::fflush(stream_out_);
    printed.out = std::exchange(out_, {});
    printed.err = std::exchange(err_, {});
    return printed;
}

}  // namespace ostrel::catalogue
