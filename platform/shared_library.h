// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <dlfcn.h>

namespace platform {

/// Loads a library of the system by its file name, and never unloads it. Null if it is not installed.
inline void* loadLibrary(const char* file) {
    return dlopen(file, RTLD_NOW | RTLD_LOCAL);
}

/// Looks a function of a loaded library up by its name. Returns whether it exists.
template <typename Function>
bool resolve(void* library, const char* name, Function& function) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what dlsym is for
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

}  // namespace platform
