#include "input.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <system_error>

#include "arena.h"
#include "show.h"

namespace ostrel::tool {

Input::Input(const std::vector<std::string>& files) : files_(&files), buffer_(kChunk) {}

void Input::complain(int error)
{
    std::string message = "ostrel-check: cannot read ";
    append_escaped(message, (*files_)[next_ - 1], kLongestLine);
    message.append(": ").append(std::generic_category().message(error)).append("\n");
    message.append("Give the path of a file that can be read, or - for standard input.\n");
    say(message);
    ++unreadable_files_;
}

bool Input::open_file()
{
    const std::string& name = (*files_)[next_++];
    const int number = name == "-" ? dup(STDIN_FILENO) : open(name.c_str(), O_RDONLY | O_CLOEXEC);
    if (number < 0) {
        complain(errno);
        return false;
    }
    file_ = Descriptor(number);
    line_ = 1;
    starts_file_ = true;
    is_skipping_ = false;
    taken_ = 0;
    size_ = 0;
    return true;
}

bool Input::is_at_end()
{
    while (file_.number() < 0) {
        if (next_ == files_->size()) return true;
        open_file();
    }
    return false;
}

Chunk Input::take(std::size_t size)
{
    Chunk chunk;
    chunk.file = next_ - 1;
    chunk.line = line_;
    chunk.text = {buffer_.data() + taken_, size};
    chunk.starts_file = starts_file_;
    starts_file_ = false;
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (chunk.starts_file && chunk.text.starts_with(kByteOrderMark)) {
        chunk.text.remove_prefix(kByteOrderMark.size());
    }
    line_ += static_cast<std::uint64_t>(std::ranges::count(chunk.text, '\n'));
    taken_ += size;
    return chunk;
}

std::optional<Chunk> Input::read()
{
    // What was given out has been used by now.
    if (taken_ > 0) std::memmove(buffer_.data(), buffer_.data() + taken_, size_ - taken_);
    size_ -= taken_;
    taken_ = 0;
    if (size_ < kChunk && buffer_.size() > kChunk) {
        buffer_.resize(kChunk);
        buffer_.shrink_to_fit();
    }
    if (size_ == buffer_.size()) buffer_.resize(std::min(2 * buffer_.size(), kLongestLine + 1));

    const ssize_t got = ::read(file_.number(), buffer_.data() + size_, buffer_.size() - size_);
    if (got < 0 && (errno == EINTR || errno == EAGAIN)) return {};
    if (got < 0) complain(errno);
    if (got <= 0) return read_end();

    const std::size_t before = size_;
    size_ += static_cast<std::size_t>(got);
    if (is_skipping_) {
        const void* end = std::memchr(buffer_.data(), '\n', size_);
        taken_ = end == nullptr
                     ? size_
                     : static_cast<std::size_t>(static_cast<const char*>(end) - buffer_.data()) + 1;
        if (end == nullptr) return {};
        is_skipping_ = false;
    }
    const void* last =
        memrchr(buffer_.data() + std::max(before, taken_), '\n', size_ - std::max(before, taken_));
    if (last != nullptr) {
        return take(static_cast<std::size_t>(static_cast<const char*>(last) - buffer_.data()) + 1 - taken_);
    }
    if (size_ - taken_ <= kLongestLine) return {};
    Chunk chunk = take(0);
    chunk.is_too_long = true;
    ++line_;
    taken_ = size_;
    is_skipping_ = true;
    return chunk;
}

std::optional<Chunk> Input::read_end()
{
    file_.close();
    if (size_ == taken_ || is_skipping_) return {};
    return take(size_ - taken_);
}

}  // namespace ostrel::tool
