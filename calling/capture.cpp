#include "calling/capture.h"

#include <stdio_ext.h>
#include <sys/mman.h>
#include <sys/types.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace ostrel::calling {

namespace {

ssize_t append(void* cookie, const char* bytes, std::size_t size)
{
    auto& text = *static_cast<Prints::Text*>(cookie);
    const std::size_t fits = std::min(size, Prints::Text::kCapacity - text.size);
    std::memcpy(text.bytes + text.size, bytes, fits);
    text.size += fits;
    if (fits < size) text.cut = true;
    return static_cast<ssize_t>(size);
}

Prints& map_prints()
{
    void* memory = mmap(nullptr, sizeof(Prints), PROT_READ | PROT_WRITE,
                        MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (memory == MAP_FAILED) throw std::bad_alloc();
    return *static_cast<Prints*>(memory);
}

// own_prints maps the default constructor's memory only once; mapping takes longer than most calls.
Prints& own_prints()
{
    static Prints& prints = map_prints();
    return prints;
}

}  // namespace

std::FILE* open_stream(cookie_write_function_t* write, void* cookie, int buffering)
{
    cookie_io_functions_t functions{};
    functions.write = write;
    std::FILE* stream = fopencookie(cookie, "w", functions);
    if (stream == nullptr) throw std::bad_alloc();
    std::setvbuf(stream, nullptr, buffering, BUFSIZ);
    return stream;
}

Capture::Capture() : Capture(own_prints()) {}

Capture::Capture(Prints& prints)
    : prints_(&prints),
      saved_out_(stdout),
      saved_err_(stderr),
      stream_out_(open_stream(append, &prints.out, _IOFBF)),
      stream_err_(open_stream(append, &prints.err, _IONBF))
{
    clear();
    // In glibc, the standard streams are variables to which a program may assign.
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

void Capture::clear()
{
    for (Prints::Text* text : {&prints_->out, &prints_->err}) {
        text->size = 0;
        text->cut = false;
    }
}

PrintedView Capture::look()
{
    const std::size_t flushed = prints_->out.size;
    // Most checks print nothing, and this test is faster than a flush.
    if (__fpending(stream_out_) > 0) std::fflush(stream_out_);
    return {prints_->out.view(), flushed, prints_->err.view(), prints_->out.cut || prints_->err.cut};
}

Printed Capture::take()
{
    const PrintedView view = look();
    Printed printed{std::string(view.out), view.flushed, std::string(view.err)};
    clear();
    return printed;
}

}  // namespace ostrel::calling
