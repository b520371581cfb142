#include "process/ProcessSpawn.h"

#include <cerrno>
#include <csignal>
#include <string>
#include <system_error>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <unistd.h>

namespace Loadwick {

namespace {

void check(int error)
{
    if (error != 0)
        throw std::system_error(error, std::generic_category());
}

class FileActions
{
public:
    FileActions() { check(posix_spawn_file_actions_init(&m_actions)); }
    ~FileActions() { posix_spawn_file_actions_destroy(&m_actions); }
    FileActions(const FileActions &) = delete;
    FileActions &operator=(const FileActions &) = delete;

    [[nodiscard]] posix_spawn_file_actions_t *get() noexcept { return &m_actions; }

    void openNullDevice(int target, int flags)
    {
        check(posix_spawn_file_actions_addopen(&m_actions, target, "/dev/null", flags, 0));
    }

    void connect(int source, int target)
    {
        if (source == FileDescriptor::none)
            openNullDevice(target, target == STDIN_FILENO ? O_RDONLY : O_WRONLY);
        else
            check(posix_spawn_file_actions_adddup2(&m_actions, source, target));
    }

    void enter(const std::filesystem::path &folder)
    {
        check(posix_spawn_file_actions_addchdir_np(&m_actions, folder.c_str()));
    }

    void closeEverythingElse();

private:
    posix_spawn_file_actions_t m_actions;
};

class Attributes
{
public:
    Attributes() { check(posix_spawnattr_init(&m_attributes)); }
    ~Attributes() { posix_spawnattr_destroy(&m_attributes); }
    Attributes(const Attributes &) = delete;
    Attributes &operator=(const Attributes &) = delete;

    [[nodiscard]] posix_spawnattr_t *get() noexcept { return &m_attributes; }

    void setOwnSessionAndDefaultSignals();

private:
    posix_spawnattr_t m_attributes;
};

#if defined(__linux__)

constexpr int closingFlag = 0;

void FileActions::closeEverythingElse()
{
    check(posix_spawn_file_actions_addclosefrom_np(&m_actions, STDERR_FILENO + 1));
}

#else

constexpr int closingFlag = POSIX_SPAWN_CLOEXEC_DEFAULT;

void FileActions::closeEverythingElse() {}

#endif

void Attributes::setOwnSessionAndDefaultSignals()
{
    constexpr int flags =
        POSIX_SPAWN_SETSID | POSIX_SPAWN_SETSIGMASK | POSIX_SPAWN_SETSIGDEF | closingFlag;
    sigset_t none;
    sigset_t all;
    sigemptyset(&none);
    sigfillset(&all);
    check(posix_spawnattr_setsigmask(&m_attributes, &none));
    check(posix_spawnattr_setsigdefault(&m_attributes, &all));
    check(posix_spawnattr_setflags(&m_attributes, static_cast<short>(flags)));
}

// The system would truncate such a text at the NUL.
void refuseEmbeddedNul(const std::string &text, int error)
{
    if (text.find('\0') != std::string::npos)
        check(error);
}

void refuseEmbeddedNuls(const ChildCommand &command)
{
    refuseEmbeddedNul(command.executable, ENOENT);
    if (command.workingFolder)
        refuseEmbeddedNul(command.workingFolder->native(), ENOENT);
    for (const std::string &argument : command.arguments)
        refuseEmbeddedNul(argument, EINVAL);
}

std::vector<std::string> argumentTexts(const ChildCommand &command)
{
    std::vector<std::string> texts{command.executable};
    texts.insert(texts.end(), command.arguments.begin(), command.arguments.end());
    return texts;
}

std::vector<std::string> environmentTexts(const Environment &environment)
{
    std::vector<std::string> texts;
    texts.reserve(environment.size());
    for (const auto &[name, value] : environment)
        texts.emplace_back(name).append("=").append(value);
    return texts;
}

std::vector<char *> pointersTo(std::vector<std::string> &texts)
{
    std::vector<char *> pointers;
    pointers.reserve(texts.size() + 1);
    for (std::string &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);
    return pointers;
}

} // namespace

pid_t spawnSessionLeader(const ChildCommand &command, const ChildStreams &streams)
{
    refuseEmbeddedNuls(command);
    FileActions actions;
    actions.connect(streams.standardInput, STDIN_FILENO);
    actions.connect(streams.standardOutput, STDOUT_FILENO);
    actions.connect(streams.standardError, STDERR_FILENO);
    actions.closeEverythingElse();
    if (command.workingFolder)
        actions.enter(*command.workingFolder);
    Attributes attributes;
    attributes.setOwnSessionAndDefaultSignals();

    std::vector<std::string> arguments = argumentTexts(command);
    std::vector<std::string> environment = environmentTexts(command.environment);
    // The child enters its folder first: a relative path must not lead to a file in it.
    const std::filesystem::path executable = currentFolder() / command.executable;
    pid_t child = 0;
    check(posix_spawn(&child, executable.c_str(), actions.get(), attributes.get(),
                      pointersTo(arguments).data(), pointersTo(environment).data()));
    return child;
}

} // namespace Loadwick
