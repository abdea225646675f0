# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Compiler options of all targets. Targets link build_options privately: users of a library do not inherit its options.
add_library(build_options INTERFACE)
target_include_directories(build_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_definitions(build_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)

# Warnings and hardening go before the user's flags (CXXFLAGS, LDFLAGS). If two flags contradict each other, the last
# flag wins.
set(warnings
    -Wall
    -Wextra
    -Wpedantic
    -Wshadow
    -Wconversion
    -Wno-sign-conversion # cell indices are never negative
    -Wno-missing-field-initializers # members left out of a designated initializer have defaults
    -Wold-style-cast
    -Wnon-virtual-dtor
    -Woverloaded-virtual
    -Wcast-align
    -Wimplicit-fallthrough)
set(hardening)

# A release does not contain the path of the source folder. It is hardened: the compiler adds checks to the stack and to
# calls of the C library, the linkage table is read-only, and the addresses are random.
string(TOUPPER "${CMAKE_BUILD_TYPE}" build_type)
if(build_type STREQUAL "RELEASE")
  include(CheckCXXCompilerFlag)
  include(CheckCXXSourceCompiles)
  set(CMAKE_TRY_COMPILE_CONFIGURATION Release)
  foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
    check_cxx_compiler_flag(${flag} has${flag})
    if(has${flag})
      list(APPEND hardening ${flag})
    endif()
  endforeach()
  # The compiler or the user's flags may already set _FORTIFY_SOURCE. It has no effect without optimisation.
  unset(fortify_source_is_free CACHE) # The flags may have changed since the last run.
  check_cxx_source_compiles(
    "#if defined _FORTIFY_SOURCE || !defined __OPTIMIZE__
    #error
    #endif
    int main() {}"
    fortify_source_is_free)
  if(fortify_source_is_free)
    list(APPEND hardening -D_FORTIFY_SOURCE=2)
  endif()
  target_compile_options(build_options INTERFACE -ffile-prefix-map=${PROJECT_SOURCE_DIR}=.)
  string(PREPEND CMAKE_EXE_LINKER_FLAGS "-pie -Wl,-z,relro,-z,now ")
  # The link-time optimiser compiles during the link step. With -fPIE it would make copy relocations for variables of
  # Qt's libraries, which Qt does not support.
  target_link_options(build_options INTERFACE -fPIC)
endif()
list(JOIN warnings " " warnings)
list(JOIN hardening " " hardening)
string(PREPEND CMAKE_CXX_FLAGS "${warnings} ${hardening} ")

if(ZAMPOTINE_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # The fuzzers need coverage counters in the libraries, not only in their own files.
  target_compile_options(build_options INTERFACE ${sanitizers} -fsanitize=fuzzer-no-link)
  target_link_options(build_options INTERFACE ${sanitizers})
endif()

# zampotine_library(NAME SOURCE...): adds the static library of one folder.
function(zampotine_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PRIVATE build_options)
endfunction()
