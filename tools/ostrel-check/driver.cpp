#include "driver.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <system_error>

#include "rules/walk.h"

namespace ostrel::tool {

namespace {

constexpr char kListFolder[] = "/var";
constexpr char kListFile[] = "/var/hnapwl0chlist";

bool asks_driver(const catalogue::Function& function) { return rules::asks_driver(*function.check); }

}  // namespace

StandIn::StandIn(std::string_view channels)
{
    if (channels.find_first_not_of("0123456789 ") != std::string_view::npos) {
        throw std::invalid_argument("--channels takes numbers with blanks between them");
    }
    if (access(kListFolder, W_OK) != 0) {
        throw std::system_error(errno, std::generic_category(),
                                std::string("with --channels the check must be able to write ") + kListFile);
    }
    folder_ = (std::filesystem::temp_directory_path() / "ostrel-check.XXXXXX").string();
    if (mkdtemp(folder_.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), "no folder can be made for --channels");
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
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

Turn::Turn(const catalogue::Function& function, const std::function<void()>& still_waiting)
{
    if (!asks_driver(function)) return;
    constexpr useconds_t kPause = 10'000;
    // The folder of the file is the one thing that everybody who writes the file has in common.
    lock_ = Descriptor(open(kListFolder, O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    while (flock(lock_.number(), LOCK_EX | LOCK_NB) != 0 && (errno == EWOULDBLOCK || errno == EINTR)) {
        still_waiting();
        usleep(kPause);
    }
}

void clean_up_after(const catalogue::Function& function)
{
    if (asks_driver(function)) unlink(kListFile);
}

}  // namespace ostrel::tool
