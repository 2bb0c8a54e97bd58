#include "faultyfiles.h"

#include <atomic>
#include <cerrno>
#include <climits>
#include <csignal>
#include <cstdio>
#include <cstring>
#include <dlfcn.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

char s_folder[PATH_MAX];
std::atomic<bool> s_armed{false};
std::atomic<int> s_seen{0};
int s_at = 0;
using FaultyFiles::Fault;
Fault s_fault;

template <typename Function> Function *next(const char *name)
{
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

bool isBelow(const char *path)
{
    return std::strncmp(path, s_folder, std::strlen(s_folder)) == 0;
}

bool isBelow(int file)
{
    char link[32], path[PATH_MAX];
    std::snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    const ssize_t length = ::readlink(link, path, sizeof path - 1);
    if (length < 0)
        return false;
    path[length] = '\0';
    return isBelow(path);
}

bool lasts()
{
    return s_fault == Fault::NoSpace || s_fault == Fault::InputOutput;
}

bool isNoSpace()
{
    return s_fault == Fault::NoSpace || s_fault == Fault::NoSpaceOnce;
}

/// Counts an operation and tells whether it fails; `half` does the part of it that still goes through.
template <typename Half> bool fails(Half half)
{
    const int seen = ++s_seen;
    if (seen != s_at && !(lasts() && seen > s_at))
        return false;
    if (isNoSpace() || s_fault == Fault::Killed)
        half();
    if (s_fault == Fault::Killed)
        ::raise(SIGKILL);
    errno = isNoSpace() ? ENOSPC : EIO;
    return true;
}

template <typename File> bool concerns(File file)
{
    return s_armed && isBelow(file);
}

}

void FaultyFiles::arm(const char *folder, int at, Fault fault)
{
    std::snprintf(s_folder, sizeof s_folder, "%s", folder);
    s_at = at;
    s_fault = fault;
    s_seen = 0;
    s_armed = true;
}

int FaultyFiles::disarm()
{
    s_armed = false;
    return s_seen;
}

extern "C" {

ssize_t write(int file, const void *bytes, size_t size)
{
    static const auto real = next<ssize_t(int, const void *, size_t)>("write");
    if (concerns(file) && fails([&] { real(file, bytes, size / 2); }))
        return -1;
    return real(file, bytes, size);
}

ssize_t pwrite64(int file, const void *bytes, size_t size, off64_t at)
{
    static const auto real = next<ssize_t(int, const void *, size_t, off64_t)>("pwrite64");
    if (concerns(file) && fails([&] { real(file, bytes, size / 2, at); }))
        return -1;
    return real(file, bytes, size, at);
}

ssize_t pwrite(int file, const void *bytes, size_t size, off_t at)
{
    return pwrite64(file, bytes, size, at);
}

int fsync(int file)
{
    static const auto real = next<int(int)>("fsync");
    return concerns(file) && fails([] {}) ? -1 : real(file);
}

int fdatasync(int file)
{
    static const auto real = next<int(int)>("fdatasync");
    return concerns(file) && fails([] {}) ? -1 : real(file);
}

int rename(const char *from, const char *to) noexcept
{
    static const auto real = next<int(const char *, const char *)>("rename");
    return concerns(to) && fails([] {}) ? -1 : real(from, to);
}

int renameat2(int fromFolder, const char *from, int toFolder, const char *to, unsigned flags) noexcept
{
    static const auto real = next<int(int, const char *, int, const char *, unsigned)>("renameat2");
    return concerns(to) && fails([] {}) ? -1 : real(fromFolder, from, toFolder, to, flags);
}
}
