// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "tests/faults/faults.h"

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
#include <sys/syscall.h>
#include <unistd.h>

#include "platform/shared_library.h"

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
    const std::size_t length = now.folder.size();
    const bool isInFolder = path.starts_with(now.folder) && (path.size() == length || path[length] == '/');
    if (length == 0 || !isInFolder || (!now.only.empty() && now.only != operation)) {
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

/// What a call returns that fails. What cannot be done by half fails in full where it is to be cut short.
int failure(int fault) {
    errno = fault == cutShort ? EIO : fault;
    return -1;
}

/// The call itself, or its failure, by what strikes this operation on a path or descriptor.
template <typename Function, typename... Arguments>
auto call(const char* name, auto where, Function* function, Arguments... arguments) {
    const int fault = faultOf(name, where);
    platform::resolve(RTLD_NEXT, name, function);
    return fault != 0 ? failure(fault) : function(arguments...);
}

/// A read or write of `size` bytes, or of as many as the fault leaves; by the system call itself, for a signal handler
/// writes, and might look its function up in the middle of another such search.
template <typename Bytes>
ssize_t transfer(const char* name, long number, int descriptor, Bytes* bytes, size_t size) {
    const int fault = faultOf(name, descriptor);
    const size_t done = fault == cutShort ? size / 2 : size;
    return fault > 0 ? failure(fault) : syscall(number, descriptor, bytes, done);
}

}  // namespace
}  // namespace faults

// NOLINTBEGIN(cert-dcl50-cpp,readability-inconsistent-declaration-parameter-name): they are the system's
extern "C" {

int open(const char* path, int flags, ...) {
    va_list more;
    va_start(more, flags);
    const auto mode = va_arg(more, mode_t);
    va_end(more);
    return faults::call("open", path, &open, path, flags, mode);
}
int open64(const char* path, int flags, ...) __attribute__((alias("open")));

ssize_t read(int descriptor, void* bytes, size_t size) {
    return faults::transfer("read", SYS_read, descriptor, bytes, size);
}
ssize_t write(int descriptor, const void* bytes, size_t size) {
    return faults::transfer("write", SYS_write, descriptor, bytes, size);
}
int fsync(int descriptor) {
    return faults::call("fsync", descriptor, &fsync, descriptor);
}
int fdatasync(int descriptor) {
    return faults::call("fdatasync", descriptor, &fdatasync, descriptor);
}
int flock(int descriptor, int operation) noexcept {
    return faults::call("flock", descriptor, &flock, descriptor, operation);
}
int linkat(int oldFolder, const char* oldPath, int newFolder, const char* newPath, int flags) noexcept {
    return faults::call("linkat", newPath, &linkat, oldFolder, oldPath, newFolder, newPath, flags);
}
int fchmod(int descriptor, mode_t mode) noexcept {
    return faults::call("fchmod", descriptor, &fchmod, descriptor, mode);
}
int rename(const char* oldPath, const char* newPath) noexcept {
    if (faults::plan().immovable != 0 && std::string_view(newPath).ends_with(".ini")) {
        return faults::failure(faults::plan().immovable);
    }
    return faults::call("rename", newPath, &rename, oldPath, newPath);
}
int stat(const char* path, struct stat* status) noexcept {
    return faults::call("stat", path, &stat, path, status);
}

}  // extern "C"
// NOLINTEND(cert-dcl50-cpp,readability-inconsistent-declaration-parameter-name)
