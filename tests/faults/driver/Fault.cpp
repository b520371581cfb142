#include "faults/driver/Fault.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <limits>
#include <vector>

namespace Faults {

namespace {

constexpr long burstLength = 100;

constexpr std::array opening{EIO, EACCES, EMFILE, ENFILE, EINTR, ENOMEM, EROFS};
constexpr std::array creating{EIO, ENOSPC, EDQUOT, EACCES, EMFILE, ENFILE, EINTR, ENOMEM, EROFS};
constexpr std::array reading{EIO, EACCES, EINTR, ENOMEM};
constexpr std::array writing{EIO, ENOSPC, EDQUOT, EINTR};
constexpr std::array seeking{EIO};
constexpr std::array closing{EIO, EINTR, ENOSPC, EDQUOT};
constexpr std::array looking{EIO, EACCES, EINTR, ENOMEM};
constexpr std::array lookingBehind{EIO, ENOMEM};
constexpr std::array syncing{EIO, ENOSPC, EDQUOT, EINTR, EROFS};
constexpr std::array locking{EINTR, ENOMEM, EIO};
constexpr std::array permitting{EIO, EACCES, EROFS};
constexpr std::array renaming{EIO, ENOSPC, EDQUOT, EACCES, ENOMEM, EROFS};
constexpr std::array unlinking{EIO, EACCES, ENOMEM, EROFS};
constexpr std::array openingFolder{EIO, EACCES, EMFILE, ENFILE, EINTR, ENOMEM};
constexpr std::array listing{EIO, ENOMEM};
constexpr std::array duplicating{EMFILE, ENFILE, ENOMEM, EINTR};
constexpr std::array piping{EMFILE, ENFILE, ENOMEM};
constexpr std::array polling{EINTR, ENOMEM};
constexpr std::array spawning{EAGAIN, EACCES, EIO, ENOMEM, EMFILE, ENFILE};
constexpr std::array forking{EAGAIN, ENOMEM};
constexpr std::array threading{EAGAIN};
constexpr std::array waiting{EINTR};
constexpr std::array allocating{ENOMEM};

constexpr std::array refusals{
    CallRefusals{Call::open, "open", opening},
    CallRefusals{Call::mkostemp, "mkostemp", creating},
    CallRefusals{Call::read, "read", reading},
    CallRefusals{Call::write, "write", writing},
    CallRefusals{Call::lseek, "lseek", seeking},
    CallRefusals{Call::close, "close", closing},
    CallRefusals{Call::stat, "stat", looking},
    CallRefusals{Call::fstat, "fstat", lookingBehind},
    CallRefusals{Call::realpath, "realpath", looking},
    CallRefusals{Call::access, "access", looking},
    CallRefusals{Call::fsync, "fsync", syncing},
    CallRefusals{Call::flock, "flock", locking},
    CallRefusals{Call::fchmod, "fchmod", permitting},
    CallRefusals{Call::rename, "rename", renaming},
    CallRefusals{Call::link, "link", renaming},
    CallRefusals{Call::unlink, "unlink", unlinking},
    CallRefusals{Call::mkdir, "mkdir", renaming},
    CallRefusals{Call::opendir, "opendir", openingFolder},
    CallRefusals{Call::readdir, "readdir", listing},
    CallRefusals{Call::readlink, "readlink", looking},
    CallRefusals{Call::getcwd, "getcwd", looking},
    CallRefusals{Call::pipe, "pipe", piping},
    CallRefusals{Call::dup, "dup", duplicating},
    CallRefusals{Call::fcntl, "fcntl", duplicating},
    CallRefusals{Call::poll, "poll", polling},
    CallRefusals{Call::spawn, "spawn", spawning},
    CallRefusals{Call::fork, "fork", forking},
    CallRefusals{Call::pthreadCreate, "pthread_create", threading},
    CallRefusals{Call::pidfdOpen, "pidfd_open", piping},
    CallRefusals{Call::waitid, "waitid", waiting},
    CallRefusals{Call::mmap, "mmap", allocating},
    CallRefusals{Call::malloc, "malloc", allocating},
};
static_assert(refusals.size() == callKinds);

constexpr std::array<std::string_view, 3> modeNames{"once", "always", "burst"};
constexpr std::array modesOfInterruption{Mode::once, Mode::burst};
constexpr std::array modesOfOthers{Mode::once, Mode::always};

std::vector<std::string_view> partsOf(std::string_view text)
{
    std::vector<std::string_view> parts;
    while (true) {
        const std::size_t comma = text.find(',');
        parts.push_back(text.substr(0, comma));
        if (comma == std::string_view::npos)
            return parts;
        text.remove_prefix(comma + 1);
    }
}

int errorNumberNamed(std::string_view name)
{
    for (const CallRefusals &refusal : refusals)
        for (const int number : refusal.errorNumbers)
            if (name == strerrorname_np(number))
                return number;
    return 0;
}

} // namespace

std::span<const CallRefusals> callRefusals()
{
    return refusals;
}

std::string_view nameOf(Call call)
{
    return refusals.at(static_cast<std::size_t>(call)).name;
}

std::span<const Mode> modesOf(int errorNumber)
{
    return errorNumber == EINTR ? std::span<const Mode>(modesOfInterruption)
                                : std::span<const Mode>(modesOfOthers);
}

std::string Fault::text() const
{
    return operation + "," + std::string(nameOf(call)) + "," + strerrorname_np(errorNumber) + "," +
           std::to_string(nth) + "," + std::string(modeNames.at(static_cast<std::size_t>(mode)));
}

std::optional<Fault> Fault::fromText(std::string_view text)
{
    const std::vector<std::string_view> parts = partsOf(text);
    if (parts.size() != 5)
        return std::nullopt;
    const auto refusal =
        std::find_if(refusals.begin(), refusals.end(),
                     [&](const CallRefusals &one) { return one.name == parts[1]; });
    const auto *const modeName = std::find(modeNames.begin(), modeNames.end(), parts[4]);
    Fault fault{.operation = std::string(parts[0]), .errorNumber = errorNumberNamed(parts[2])};
    const auto number =
        std::from_chars(parts[3].data(), parts[3].data() + parts[3].size(), fault.nth);
    if (refusal == refusals.end() || modeName == modeNames.end() || fault.errorNumber == 0 ||
        number.ec != std::errc() || fault.nth < 1)
        return std::nullopt;
    fault.call = refusal->call;
    fault.mode = static_cast<Mode>(modeName - modeNames.begin());
    return fault;
}

bool Fault::isTransient() const
{
    constexpr std::array passing{EINTR, EAGAIN, EMFILE, ENFILE, ENOMEM};
    return std::find(passing.begin(), passing.end(), errorNumber) != passing.end();
}

bool Fault::isToBeRepeated() const
{
    // Linux does not interrupt fcntl for our uses, so it is not repeated.
    return errorNumber == EINTR && mode == Mode::once && call != Call::fcntl;
}

bool Fault::isShortageOfMemoryOrThreads() const
{
    return call == Call::malloc || call == Call::mmap || call == Call::pthreadCreate;
}

long Fault::count() const
{
    switch (mode) {
    case Mode::once:
        return 1;
    case Mode::burst:
        return burstLength;
    case Mode::always:
        break;
    }
    return std::numeric_limits<long>::max();
}

} // namespace Faults
