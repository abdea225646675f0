// SPDX-FileCopyrightText: 2026 The Zampotine developers
// SPDX-License-Identifier: MIT

#pragma once

#include <dlfcn.h>

namespace platform {

/// Loads a library of the system for good, by the name of its file; null if there is none.
inline void* loadLibrary(const char* file) {
    return dlopen(file, RTLD_NOW | RTLD_LOCAL);
}

/// Finds a function of a loaded library. Returns whether there is one of that name.
template <typename Function>
bool resolve(void* library, const char* name, Function& function) {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): what dlsym is for
    function = reinterpret_cast<Function>(dlsym(library, name));
    return function != nullptr;
}

}  // namespace platform
