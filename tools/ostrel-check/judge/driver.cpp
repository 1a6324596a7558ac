#include "judge/driver.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <system_error>

#include "calling/own_var.h"
#include "rules/walk.h"

namespace ostrel::tool {

using calling::kChannelFolder;
using calling::kChannelList;

namespace {

constexpr char kTool[] = "wlctl";

bool asks_driver(const catalogue::Function& function) { return rules::asks_driver(*function.check); }

}  // namespace

StandIn::StandIn(std::string_view channels)
{
    if (channels.find_first_not_of("0123456789 ") != std::string_view::npos) {
        throw std::invalid_argument("--channels must be a list of numbers separated by spaces");
    }
    try {
        make(channels);
    } catch (const std::exception& error) {
        problem_ = std::string("--channels cannot replace the driver: ") + error.what();
    }
}

void StandIn::make(std::string_view channels)
{
    if (access(kChannelFolder, W_OK) != 0 && !calling::move_to_own_var()) {
        problem_ =
            std::string("--channels must write to ") + kChannelList +
            ", but this user has no permission, and the system does not allow a private mount namespace";
        return;
    }
    folder_ = (std::filesystem::temp_directory_path() / "ostrel-check.XXXXXX").string();
    if (mkdtemp(folder_.data()) == nullptr) {
        const int error = errno;
        folder_.clear();
        throw std::system_error(error, std::generic_category(), "cannot create a folder");
    }
    std::ofstream(folder_ + "/channels") << channels << '\n';
    std::ofstream(folder_ + "/wlctl") << "#!/bin/sh\nexec cat \"${0%/*}/channels\"\n";
    chmod((folder_ + "/wlctl").c_str(), S_IRWXU);
    const char* path = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe): there is one thread
    // NOLINTNEXTLINE(concurrency-mt-unsafe): there is one thread
    setenv("PATH", (folder_ + ":" + (path != nullptr ? path : "/usr/bin:/bin")).c_str(), 1);
}

StandIn::~StandIn()
{
    if (folder_.empty()) return;
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

Turn::Turn(const catalogue::Function& function, const std::function<void()>& still_waiting)
{
    if (!asks_driver(function)) return;
    constexpr useconds_t kPause = 10'000;
    // Each check creates the file and unlinks it, so the lock is on the folder, which persists.
    lock_ = Descriptor(open(kChannelFolder, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    while (flock(lock_.number(), LOCK_EX | LOCK_NB) != 0 && (errno == EWOULDBLOCK || errno == EINTR)) {
        still_waiting();
        usleep(kPause);
    }
}

namespace {

bool is_on_path(std::string_view tool)
{
    const char* path = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe): there is one thread
    std::string_view rest = path != nullptr ? path : "/usr/bin:/bin";
    while (true) {
        const std::string_view folder = rest.substr(0, rest.find(':'));
        const std::string file = std::string(folder.empty() ? "." : folder).append("/").append(tool);
        if (access(file.c_str(), X_OK) == 0 && !std::filesystem::is_directory(file)) return true;
        if (folder.size() == rest.size()) return false;
        rest.remove_prefix(folder.size() + 1);
    }
}

std::string read_whole(const Descriptor& file)
{
    constexpr std::size_t kMost = std::size_t{64} << 10;
    std::string text(kMost, '\0');
    const ssize_t size = pread(file.number(), text.data(), text.size(), 0);
    text.resize(size > 0 ? static_cast<std::size_t>(size) : 0);
    return text;
}

}  // namespace

Listening::Listening()
    : list_(open(kChannelList, O_RDONLY | O_CREAT | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR)),
      list_error_(list_.number() < 0 ? errno : 0),
      said_(memfd_create("said", MFD_CLOEXEC)),
      standard_error_(fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0))
{
    dup2(said_.number(), STDERR_FILENO);
}

void Listening::restore()
{
    if (standard_error_.number() >= 0) dup2(standard_error_.number(), STDERR_FILENO);
    standard_error_.close();
}

Heard Listening::heard()
{
    restore();
    Heard heard;
    heard.said = read_whole(said_);
    std::istringstream list(read_whole(list_));
    for (int channel = 0; list >> channel;) heard.channels.push_back(channel);
    if (!heard.channels.empty()) return heard;
    if (list_error_ != 0) {
        heard.problem =
            std::string(kChannelList) + " cannot be written: " + std::generic_category().message(list_error_);
    } else if (!is_on_path(kTool)) {
        heard.problem = std::string(kTool) + " was not found";
    } else if (!heard.said.empty()) {
        heard.problem = std::string(kTool) + " failed";
    }
    return heard;
}

void clean_up_after(const catalogue::Function& function)
{
    if (asks_driver(function)) unlink(kChannelList);
}

}  // namespace ostrel::tool
