// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "tests/faults/faults.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <mutex>
#include <sstream>
#include <string_view>
#include <thread>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace faults {

Plan& plan() {
    static Plan plan = [] {
        Plan made;
        const char* text = std::getenv("FAULTS");
        std::istringstream(text != nullptr ? text : "") >> made.folder >> made.first >> made.lasting >> made.fault >>
            made.log;
        return made;
    }();
    return plan;
}

namespace {

/// What strikes this operation on a path: an errno, `cutShort`, or 0 for nothing. Allocates and locks nothing for other
/// paths, to which a signal handler may write.
int faultOf(const char* operation, std::string_view path) {
    Plan& now = plan();
    const bool isInFolder = path.starts_with(now.folder) && path.substr(now.folder.size()).starts_with('/');
    if (now.folder.empty() || !isInFolder || (!now.only.empty() && now.only != operation)) {
        return 0;
    }
    static std::mutex mutex;
    const std::lock_guard lock(mutex);
    if (++now.seen < now.first || (now.seen > now.first && !now.lasting)) {
        return 0;
    }
    if (now.struck.empty()) {
        now.struck = operation;
        std::ofstream(now.log) << operation;
    }
    if (now.fault == slow) {
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
        return 0;
    }
    return now.fault;
}

int faultOf(const char* operation, int descriptor) {
    std::array<char, 32> link{};
    std::array<char, PATH_MAX> path{};
    std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", descriptor);
    const auto length = readlink(link.data(), path.data(), path.size());
    return length < 0 ? 0 : faultOf(operation, {path.data(), static_cast<std::size_t>(length)});
}

/// The call itself, or its failure. What cannot be done by half fails in full where it is to be cut short.
template <typename... Arguments>
auto call(const char* name, int fault, auto function(Arguments...), Arguments... arguments) {
    if (fault != 0) {
        errno = fault == cutShort ? EIO : fault;
        return static_cast<decltype(function(arguments...))>(-1);
    }
    return reinterpret_cast<decltype(function)>(dlsym(RTLD_NEXT, name))(arguments...);
}

/// A read or write of `size` bytes, or of as many as the fault leaves.
template <typename Bytes>
ssize_t transfer(const char* name, ssize_t function(int, Bytes*, size_t), int descriptor, Bytes* bytes, size_t size) {
    const int fault = faultOf(name, descriptor);
    return fault == cutShort ? call(name, 0, function, descriptor, bytes, size / 2)
                             : call(name, fault, function, descriptor, bytes, size);
}

/// Without the disk, for which thousands of saves would wait: no test cuts the power.
int sync(const char* name, int descriptor) {
    const int fault = faultOf(name, descriptor);
    errno = fault == cutShort ? EIO : fault;
    return fault == 0 ? 0 : -1;
}

}  // namespace
}  // namespace faults

// NOLINTBEGIN(cert-dcl50-cpp): the functions of the system are variadic
extern "C" {

int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const auto mode = va_arg(more, mode_t);
    va_end(more);
    using Open = int (*)(const char*, int, mode_t);
    return faults::call("open", faults::faultOf("open", path), reinterpret_cast<Open>(&open), path, flags, mode);
}
int open64(const char* path, int flags, ...) __attribute__((alias("open")));

ssize_t read(int descriptor, void* bytes, size_t size) {
    return faults::transfer("read", &read, descriptor, bytes, size);
}
ssize_t write(int descriptor, const void* bytes, size_t size) {
    return faults::transfer("write", &write, descriptor, bytes, size);
}
int fsync(int descriptor) {
    return faults::sync("fsync", descriptor);
}
int fdatasync(int descriptor) {
    return faults::sync("fdatasync", descriptor);
}
int flock(int descriptor, int operation) noexcept {
    const int fault = faults::faultOf("flock", descriptor);
    return faults::call("flock", fault, &flock, descriptor, operation);
}
int linkat(int oldFolder, const char* oldPath, int newFolder, const char* newPath, int flags) noexcept {
    const int fault = faults::faultOf("linkat", newPath);
    return faults::call("linkat", fault, &linkat, oldFolder, oldPath, newFolder, newPath, flags);
}
int rename(const char* oldPath, const char* newPath) noexcept {
    return faults::call("rename", faults::faultOf("rename", newPath), &rename, oldPath, newPath);
}
int stat(const char* path, struct stat* status) noexcept {
    return faults::call("stat", faults::faultOf("stat", path), &stat, path, status);
}

}  // extern "C"
// NOLINTEND(cert-dcl50-cpp)
