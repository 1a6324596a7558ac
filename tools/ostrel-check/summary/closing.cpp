#include "summary/closing.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <system_error>

#include "summary/summary_form.h"
#include "system/process.h"

namespace ostrel::tool {

namespace {

bool complain(int error)
{
    say("ostrel-check: cannot write the summary: " + std::generic_category().message(error) + "\n");
    return false;
}

}  // namespace

bool write_summary(const Closing& closing, const Summary& summary, bool with_rows, bool follows_results)
{
    if (!closing.has_summary) return true;
    const std::string text =
        closing.as_json ? summary_json(summary, with_rows) : summary_text(summary, with_rows);
    if (closing.file.empty() && !follows_results) {
        say(text);
        return true;
    }
    Descriptor file;
    if (!closing.file.empty()) {
        constexpr mode_t kMode = 0666;
        file = Descriptor(open(closing.file.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, kMode));
        if (file.number() < 0) return complain(errno);
    }
    const int descriptor = closing.file.empty() ? STDOUT_FILENO : file.number();
    const Fitted fitted = write_what_fits(descriptor, text);
    if (fitted.error == 0 || fitted.error == EPIPE) return true;
    take_back(descriptor, fitted.size);
    return complain(fitted.error);
}

}  // namespace ostrel::tool
