// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#include "tests/settings/faults.h"

#include <cerrno>
#include <cstdarg>
#include <filesystem>
#include <string_view>
#include <utility>

#include <dlfcn.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include "platform/shared_library.h"

namespace faults {

Plan& plan() {
    static Plan plan;
    return plan;
}

namespace {

/// The fault that strikes this operation: an errno, `cutShort`, or 0 for none.
int faultOf(const char* operation, std::string_view path) {
    Plan& now = plan();
    if (now.folder.empty() || !path.starts_with(now.folder) || (!now.only.empty() && now.only != operation)) {
        return 0;
    }
    ++now.seen;
    if (now.seen < now.first || now.seen > now.last) {
        return 0;
    }
    if (now.struck.empty()) {
        now.struck = operation;
    }
    std::string folder = std::exchange(now.folder, "");  // `meanwhile` is not struck itself
    now.meanwhile();
    now.folder = std::move(folder);
    return now.fault;
}

int faultOf(const char* operation, int descriptor) {
    std::error_code error;
    const auto path = std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor), error);
    return faultOf(operation, path.native());
}

/// The result of a call that fails. A call that cannot be cut short fails instead.
int failure(int fault) {
    errno = fault == cutShort ? EIO : fault;
    return -1;
}

template <typename Function, typename... Arguments>
auto call(const char* name, auto where, Function* function, Arguments... arguments) {
    const int fault = faultOf(name, where);
    platform::resolve(RTLD_NEXT, name, function);
    return fault != 0 ? failure(fault) : function(arguments...);
}

template <typename Bytes>
ssize_t transfer(const char* name, long number, int descriptor, Bytes* bytes, size_t size) {
    const int fault = faultOf(name, descriptor);
    const size_t done = fault == cutShort ? size / 2 : size;
    return fault > 0 ? failure(fault) : syscall(number, descriptor, bytes, done);
}

}  // namespace
}  // namespace faults

// NOLINTBEGIN(cert-dcl50-cpp,readability-inconsistent-declaration-parameter-name): these are the system's names
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
