// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <dlfcn.h>

namespace platform {

/// Loads a library of the system by its file name. The library is never unloaded. Returns null if it is not installed.
inline void* loadLibrary(const char* file) {
    return dlopen(file, RTLD_NOW | RTLD_LOCAL);
}

/// Looks up a function of a loaded library by its name. Returns false if the library has no such function.
template <typename Function>
bool resolve(void* library, const char* name, Function& function) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): dlsym() returns void*
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

}  // namespace platform
