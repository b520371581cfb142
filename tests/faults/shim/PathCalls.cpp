// Calls on paths, and on folders that were opened by path.

#include <cstdarg>
#include <cstdio>
#include <cstdlib>

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "faults/shim/Decision.h"

using Faults::behind;
using Faults::Call;
using Faults::fails;
using Faults::opened;

namespace {

/// A path relative to a folder's descriptor counts as being on that folder's path.
bool failsAt(Call call, int folder, const char *path) noexcept
{
    return folder == AT_FDCWD || path[0] == '/' ? fails(call, path) : fails(call, folder);
}

} // namespace

extern "C" {

int open(const char *path, int flags, ...)
{
    static auto *const next = behind(open, "open");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return fails(Call::open, path) ? -1 : opened(next(path, flags, mode));
}

int open64(const char *path, int flags, ...)
{
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return open(path, flags, mode);
}

int openat(int folder, const char *path, int flags, ...)
{
    static auto *const next = behind(openat, "openat");
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return failsAt(Call::open, folder, path) ? -1 : opened(next(folder, path, flags, mode));
}

FILE *fopen(const char *path, const char *mode)
{
    static auto *const next = behind(fopen, "fopen");
    return fails(Call::open, path) ? nullptr : next(path, mode);
}

FILE *fopen64(const char *path, const char *mode)
{
    return fopen(path, mode);
}

int mkostemp(char *pattern, int flags)
{
    static auto *const next = behind(mkostemp, "mkostemp");
    return fails(Call::mkostemp, pattern) ? -1 : opened(next(pattern, flags));
}

int stat(const char *path, struct stat *status) noexcept
{
    static auto *const next = behind(stat, "stat");
    return fails(Call::stat, path) ? -1 : next(path, status);
}

int lstat(const char *path, struct stat *status) noexcept
{
    static auto *const next = behind(lstat, "lstat");
    return fails(Call::stat, path) ? -1 : next(path, status);
}

int fstatat(int folder, const char *path, struct stat *status, int flags) noexcept
{
    static auto *const next = behind(fstatat, "fstatat");
    return failsAt(Call::stat, folder, path) ? -1 : next(folder, path, status, flags);
}

char *realpath(const char *path, char *resolved) noexcept
{
    static auto *const next = behind(realpath, "realpath");
    return fails(Call::realpath, path) ? nullptr : next(path, resolved);
}

int faccessat(int folder, const char *path, int mode, int flags) noexcept
{
    static auto *const next = behind(faccessat, "faccessat");
    return fails(Call::access, path) ? -1 : next(folder, path, mode, flags);
}

int rename(const char *from, const char *to) noexcept
{
    static auto *const next = behind(rename, "rename");
    return fails(Call::rename, from) ? -1 : next(from, to);
}

int link(const char *from, const char *to) noexcept
{
    static auto *const next = behind(link, "link");
    return fails(Call::link, from) ? -1 : next(from, to);
}

int unlink(const char *path) noexcept
{
    static auto *const next = behind(unlink, "unlink");
    return fails(Call::unlink, path) ? -1 : next(path);
}

int unlinkat(int folder, const char *path, int flags) noexcept
{
    static auto *const next = behind(unlinkat, "unlinkat");
    return fails(Call::unlink, path) ? -1 : next(folder, path, flags);
}

int mkdir(const char *path, mode_t mode) noexcept
{
    static auto *const next = behind(mkdir, "mkdir");
    return fails(Call::mkdir, path) ? -1 : next(path, mode);
}

ssize_t readlink(const char *path, char *buffer, size_t size) noexcept
{
    static auto *const next = behind(readlink, "readlink");
    return fails(Call::readlink, path) ? -1 : next(path, buffer, size);
}

char *getcwd(char *buffer, size_t size) noexcept
{
    static auto *const next = behind(getcwd, "getcwd");
    return fails(Call::getcwd) ? nullptr : next(buffer, size);
}

DIR *opendir(const char *path)
{
    static auto *const next = behind(opendir, "opendir");
    return fails(Call::opendir, path) ? nullptr : next(path);
}

DIR *fdopendir(int descriptor)
{
    static auto *const next = behind(fdopendir, "fdopendir");
    return fails(Call::opendir, descriptor) ? nullptr : next(descriptor);
}

dirent *readdir(DIR *folder)
{
    static auto *const next = behind(readdir, "readdir");
    return fails(Call::readdir, dirfd(folder)) ? nullptr : next(folder);
}

dirent64 *readdir64(DIR *folder)
{
    static auto *const next = behind(readdir64, "readdir64");
    return fails(Call::readdir, dirfd(folder)) ? nullptr : next(folder);
}
}
