#include "calling/own_var.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/mount.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <string>

namespace ostrel::calling {

namespace {

namespace fs = std::filesystem;

void write(const char* file, const std::string& text) { std::ofstream(file) << text; }

// enter_mount_namespace also enters a user namespace if the user is not permitted to create a mount namespace
// without one. The user namespace grants the right to mount, and the user id stays the same.
bool enter_mount_namespace()
{
    const std::string user = std::to_string(geteuid());
    const std::string group = std::to_string(getegid());
    if (unshare(CLONE_NEWNS) == 0) return true;
    if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return false;
    write("/proc/self/setgroups", "deny");
    write("/proc/self/uid_map", user + " " + user + " 1");
    write("/proc/self/gid_map", group + " " + group + " 1");
    return true;
}

// keep makes an entry available at another path.
void keep(const fs::directory_entry& entry, const fs::path& place)
{
    if (entry.is_symlink()) {
        fs::copy_symlink(entry.path(), place);
        return;
    }
    if (entry.is_directory()) {
        fs::create_directory(place);
    } else if (entry.is_regular_file() && place != kChannelList) {
        std::ofstream(place).close();
    } else {
        return;
    }
    mount(entry.path().c_str(), place.c_str(), nullptr, MS_BIND | MS_REC, nullptr);
}

// cover_var mounts an empty folder over /var and keeps the previous contents available, because programs,
// temporary files and input files may be stored there.
void cover_var()
{
    const int covered = open(kChannelFolder, O_PATH | O_DIRECTORY | O_CLOEXEC);
    const fs::path folders = "/proc/self/fd/" + std::to_string(covered);
    if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) == 0 &&
        mount("none", kChannelFolder, "tmpfs", 0, nullptr) == 0) {
        for (const auto& entry : fs::directory_iterator(folders)) {
            keep(entry, kChannelFolder / entry.path().filename());
        }
    }
    close(covered);
}

}  // namespace

bool move_to_own_var()
{
    if (enter_mount_namespace()) cover_var();
    return access(kChannelFolder, W_OK) == 0;
}

bool can_list_channels()
{
    static const bool can = move_to_own_var();
    return can;
}

}  // namespace ostrel::calling
