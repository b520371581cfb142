#include "measure/CallCounters.h"

#include <cstdarg>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "text/TextLines.h"
#include "json/JsonReader.h"

namespace Loadwick {

CallCounters &CallCounters::ofProcess() noexcept
{
    static CallCounters counters;
    return counters;
}

void CallCounters::restart() noexcept
{
    for (std::atomic<std::int64_t> *counter :
         {&foldersListed, &entriesSeen, &filesOpened, &pathsLookedAt, &pathsResolved, &linesParsed,
          &reads, &bytesRead})
        *counter = 0;
}

} // namespace Loadwick

// The names are the linker's (--wrap): a call to `f` arrives at `__wrap_f`, and `__real_f` is the
// system's own.
extern "C" {

DIR *__real_opendir(const char *path);
dirent *__real_readdir(DIR *listing);
int __real_open(const char *path, int flags, ...);
int __real_openat(int folder, const char *path, int flags, ...);
ssize_t __real_read(int descriptor, void *buffer, size_t size);
int __real_stat(const char *path, struct stat *status);
int __real_lstat(const char *path, struct stat *status);
int __real_fstatat(int folder, const char *path, struct stat *status, int flags);
char *__real_realpath(const char *path, char *resolved);

DIR *__wrap_opendir(const char *path)
{
    ++Loadwick::CallCounters::ofProcess().foldersListed;
    return __real_opendir(path);
}

dirent *__wrap_readdir(DIR *listing)
{
    dirent *const entry = __real_readdir(listing);
    if (entry != nullptr)
        ++Loadwick::CallCounters::ofProcess().entriesSeen;
    return entry;
}

int __wrap_open(const char *path, int flags, ...)
{
    Loadwick::CallCounters &counters = Loadwick::CallCounters::ofProcess();
    ++((flags & O_PATH) != 0 ? counters.pathsResolved : counters.filesOpened);
    mode_t mode = 0;
    if ((flags & O_CREAT) != 0) {
        va_list arguments;
        va_start(arguments, flags);
        mode = va_arg(arguments, mode_t);
        va_end(arguments);
    }
    return __real_open(path, flags, mode);
}

/// The core creates no file this way.
int __wrap_openat(int folder, const char *path, int flags, ...)
{
    ++Loadwick::CallCounters::ofProcess().filesOpened;
    return __real_openat(folder, path, flags);
}

ssize_t __wrap_read(int descriptor, void *buffer, size_t size)
{
    const ssize_t count = __real_read(descriptor, buffer, size);
    Loadwick::CallCounters &counters = Loadwick::CallCounters::ofProcess();
    ++counters.reads;
    if (count > 0)
        counters.bytesRead += count;
    return count;
}

int __wrap_stat(const char *path, struct stat *status)
{
    ++Loadwick::CallCounters::ofProcess().pathsLookedAt;
    return __real_stat(path, status);
}

int __wrap_lstat(const char *path, struct stat *status)
{
    ++Loadwick::CallCounters::ofProcess().pathsLookedAt;
    return __real_lstat(path, status);
}

int __wrap_fstatat(int folder, const char *path, struct stat *status, int flags)
{
    ++Loadwick::CallCounters::ofProcess().pathsLookedAt;
    return __real_fstatat(folder, path, status, flags);
}

char *__wrap_realpath(const char *path, char *resolved)
{
    ++Loadwick::CallCounters::ofProcess().pathsResolved;
    return __real_realpath(path, resolved);
}
}

// The same for two functions of the core, whose mangled names are in CMakeLists.txt.
namespace Loadwick {

namespace {

using Paths = std::initializer_list<std::string_view>;

} // namespace

std::optional<std::string_view> realTakeLine(std::string_view &rest) noexcept
    asm("__real_" LOADWICK_TAKE_LINE);
std::optional<std::string_view> countedTakeLine(std::string_view &rest) noexcept
    asm("__wrap_" LOADWICK_TAKE_LINE);
std::optional<JsonValue> realJsonObject(std::string_view text,
                                        Paths keptPaths) asm("__real_" LOADWICK_JSON_OBJECT);
std::optional<JsonValue> countedJsonObject(std::string_view text,
                                           Paths keptPaths) asm("__wrap_" LOADWICK_JSON_OBJECT);

std::optional<std::string_view> countedTakeLine(std::string_view &rest) noexcept
{
    const auto line = realTakeLine(rest);
    if (line)
        ++CallCounters::ofProcess().linesParsed;
    return line;
}

std::optional<JsonValue> countedJsonObject(std::string_view text, Paths keptPaths)
{
    ++CallCounters::ofProcess().linesParsed;
    return realJsonObject(text, keptPaths);
}

} // namespace Loadwick
