#include "support/hostile/ChildSpeech.h"

#include <algorithm>
#include <cerrno>

#include <unistd.h>

namespace Hostile {

void writeAll(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t count = write(descriptor, text.data(), text.size());
        if (count < 0 && errno != EINTR)
            _exit(9);
        text.remove_prefix(static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
    }
}

void say(const std::string &line)
{
    writeAll(STDOUT_FILENO, line + "\n");
}

} // namespace Hostile
