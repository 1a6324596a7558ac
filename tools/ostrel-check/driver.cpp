#include "driver.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <system_error>

namespace ostrel::tool {

StandIn::StandIn(std::string_view channels)
{
    folder_ = (std::filesystem::temp_directory_path() / "ostrel-check.XXXXXX").string();
    if (mkdtemp(folder_.data()) == nullptr) {
        throw std::system_error(errno, std::generic_category(), "no folder can be made for --channels");
    }
    std::ofstream(folder_ + "/channels") << channels << '\n';
    std::ofstream(folder_ + "/wlctl") << "#!/bin/sh\nexec cat \"${0%/*}/channels\"\n";
    chmod((folder_ + "/wlctl").c_str(), S_IRWXU);
    const char* path = std::getenv("PATH");  // NOLINT(concurrency-mt-unsafe): there is one thread
    setenv("PATH", (folder_ + ":" + (path != nullptr ? path : "/usr/bin:/bin")).c_str(), 1);
}

StandIn::~StandIn()
{
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

Turn::Turn(const catalogue::Function& function)
{
    if (function.name != "WLAN_check_channel") return;
    // The program's own file is one that every process of it can open.
    lock_ = Descriptor(open("/proc/self/exe", O_RDONLY | O_CLOEXEC));
    flock(lock_.number(), LOCK_EX);
}

}  // namespace ostrel::tool
