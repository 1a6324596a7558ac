#include "read/input.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <stdexcept>
#include <system_error>

#include "batch/arena.h"
#include "read/file_format.h"
#include "read/reader.h"
#include "write/show.h"

namespace ostrel::tool {

Input::Input(const std::vector<std::string>& files, const Reading& reading, std::uint64_t first_number)
    : files_(&files), reading_(&reading), first_number_(first_number), buffer_(kChunk)
{
}

void Input::complain(int error)
{
    std::string message = "ostrel-check: cannot read ";
    append_escaped(message, (*files_)[next_ - 1], kLongestText);
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
    cutter_.reset();
    preamble_.clear();
    line_ = next_ == 1 ? first_number_ : 1;
    starts_file_ = true;
    is_file_read_ = false;
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

void Input::end_file()
{
    file_.close();
    is_ready_ = false;
    size_ = taken_;
}

// fill reads from the file once. It returns false if the call was interrupted or no bytes were available.
bool Input::fill()
{
    // The chunks that were returned are no longer in use.
    if (taken_ > 0) std::memmove(buffer_.data(), buffer_.data() + taken_, size_ - taken_);
    size_ -= taken_;
    taken_ = 0;
    if (size_ < kChunk && buffer_.size() > kChunk) {
        buffer_.resize(kChunk);
        buffer_.shrink_to_fit();
    }
    if (size_ == buffer_.size()) buffer_.resize(std::min(2 * buffer_.size(), kLongestText + 1));
    const ssize_t got = ::read(file_.number(), buffer_.data() + size_, buffer_.size() - size_);
    if (got < 0 && (errno == EINTR || errno == EAGAIN)) return false;
    if (got < 0) complain(errno);
    is_file_read_ = got <= 0;
    size_ += static_cast<std::size_t>(std::max<ssize_t>(got, 0));
    return true;
}

// begin_file examines the first bytes of a file. It returns false if it needs more.
bool Input::begin_file()
{
    constexpr std::size_t kEnough = std::size_t{64} << 10;
    const std::string_view front = rest();
    if (!is_file_read_ && front.size() < kEnough && front.find('\n') == std::string_view::npos) return false;
    constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
    if (front.starts_with(kByteOrderMark)) taken_ += kByteOrderMark.size();
    const std::string& name = (*files_)[next_ - 1];
    const std::optional<FileFormat> by_name = reading_->format ? reading_->format : format_of_name(name);
    format_ = by_name ? *by_name : format_of_bytes(rest(), *reading_);
    cutter_ = make_cutter(format_, *reading_);
    problem_ = why_not_text(rest());
    const bool is_dump = reading_->map != nullptr && !rest().empty();
    if (problem_.empty() && is_dump && format_ == FileFormat::kWords)
        problem_ = "with --map, a file must be CSV, TSV or JSON; set its format with --format";
    problem_line_ = line_;
    ends_file_ = !problem_.empty();
    return true;
}

void Input::drop(std::size_t size)
{
    line_ += count_lines(rest().substr(0, size));
    taken_ += size;
}

// take_preamble stores the preamble, and returns whether a reader can use it.
bool Input::take_preamble(std::size_t size)
{
    preamble_ = rest().substr(0, size);
    try {
        make_reader(format_, *reading_, preamble_);
    } catch (const std::invalid_argument& error) {
        problem_ = error.what();
        problem_line_ = line_;
        ends_file_ = true;
        return false;
    }
    drop(size);
    return true;
}

Chunk Input::make_chunk()
{
    Chunk chunk;
    chunk.file = next_ - 1;
    chunk.line = line_;
    chunk.format = format_;
    chunk.preamble = preamble_;
    chunk.starts_file = starts_file_;
    starts_file_ = false;
    return chunk;
}

// next_chunk cuts off whole entries, or reports why nothing can be read at the current position.
std::optional<Chunk> Input::next_chunk()
{
    if (problem_.empty()) {
        const Cut cut = cutter_->cut(rest(), is_file_read_);
        drop(cut.dropped);
        if (cut.preamble > 0 && !take_preamble(cut.preamble)) return next_chunk();
        problem_ = cut.problem;
        ends_file_ = cut.ends_file;
        if (!problem_.empty())
            problem_line_ = line_ + count_lines(rest().substr(0, cut.size + cut.problem_at));
        if (cut.size > 0) {
            Chunk chunk = make_chunk();
            chunk.text = rest().substr(0, cut.size);
            drop(cut.size);
            return chunk;
        }
    }
    if (problem_.empty()) return {};
    Chunk chunk = make_chunk();
    chunk.line = problem_line_;
    chunk.problem = std::exchange(problem_, {});
    if (ends_file_) end_file();
    return chunk;
}

std::optional<Chunk> Input::read()
{
    if (!is_ready_ && !fill()) return {};
    is_ready_ = false;
    if (cutter_ == nullptr && !begin_file()) return {};
    std::optional<Chunk> chunk = next_chunk();
    if (file_.number() < 0) return chunk;
    // A problem, or entries after one, may still have to be returned, which needs no more bytes.
    is_ready_ = !problem_.empty() || (chunk && !chunk->problem.empty());
    if (!chunk && is_file_read_) end_file();
    if (chunk && is_file_read_) is_ready_ = true;
    return chunk;
}

}  // namespace ostrel::tool
