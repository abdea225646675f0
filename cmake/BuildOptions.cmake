# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Compiler options of every target. They are linked privately, so that users of a library do not inherit them.
add_library(build_options INTERFACE)
target_include_directories(build_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_definitions(build_options INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)

# Warnings and hardening go before the flags of the builder (CXXFLAGS, LDFLAGS): if two flags disagree,
# the compiler takes the last.
set(warnings
    -Wall
    -Wextra
    -Wpedantic
    -Wshadow
    -Wconversion
    -Wno-sign-conversion # cell indices are never negative
    -Wno-missing-field-initializers # members that a designated initializer omits have defaults
    -Wold-style-cast
    -Wnon-virtual-dtor
    -Woverloaded-virtual
    -Wcast-align
    -Wimplicit-fallthrough)
set(hardening)

# A release does not contain the path of its build folder, and it is hardened: it guards the stack, the linkage table and
# the standard functions, and its addresses are random.
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
  # The compiler or the builder's flags may already set a level. Without optimisation no level works.
  unset(fortify_source_is_free CACHE) # because the flags may have changed
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
  # With -fPIE the link-time optimiser would copy variables of Qt's libraries to the program.
  target_link_options(build_options INTERFACE -fPIC)
endif()
list(JOIN warnings " " warnings)
list(JOIN hardening " " hardening)
string(PREPEND CMAKE_CXX_FLAGS "${warnings} ${hardening} ")

if(ZAMPOTINE_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # Coverage counters in all code guide the fuzzers through the libraries too.
  target_compile_options(build_options INTERFACE ${sanitizers} -fsanitize=fuzzer-no-link)
  target_link_options(build_options INTERFACE ${sanitizers})
endif()

# zampotine_library(NAME sources...): the library of one folder.
function(zampotine_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PRIVATE build_options)
endfunction()
