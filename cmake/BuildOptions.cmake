# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# How every target of the project is compiled: linked privately, so that nothing leaks to users of a library.
add_library(warnings INTERFACE)
add_library(build_options INTERFACE)
target_link_libraries(build_options INTERFACE warnings)
target_include_directories(warnings INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(
  warnings
  INTERFACE -Wall
            -Wextra
            -Wpedantic
            -Wshadow
            -Wconversion
            -Wno-sign-conversion # cell indices are never negative
            -Wno-missing-field-initializers # what a designated initializer leaves out has its default
            -Wold-style-cast
            -Wnon-virtual-dtor
            -Woverloaded-virtual
            -Wcast-align
            -Wimplicit-fallthrough
            -Werror)
target_compile_definitions(warnings INTERFACE QT_NO_CAST_FROM_ASCII QT_NO_FOREACH)

# A release tells nothing of the folder it was built in, and leaves little to whoever finds a fault in it: the stack, the
# linkage table and the standard functions are guarded, and its addresses change from run to run.
include(CheckCXXCompilerFlag)
set(hardening -ffile-prefix-map=${PROJECT_SOURCE_DIR}=. -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
foreach(flag -fstack-protector-strong -fstack-clash-protection -fcf-protection)
  check_cxx_compiler_flag(${flag} has${flag})
  if(has${flag})
    list(APPEND hardening ${flag})
  endif()
endforeach()
target_compile_options(build_options INTERFACE "$<$<CONFIG:Release>:${hardening}>")
# The toolkit's variables must stay in its libraries: -fPIE would let the link-time optimiser copy them to the program.
target_link_options(build_options INTERFACE "$<$<CONFIG:Release>:-pie;-fPIC;LINKER:-z,relro,-z,now>")

if(ZAMPOTINE_SANITIZE)
  set(sanitizers -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  # All that is compiled counts what it runs, so that the fuzzers find their way through the libraries too.
  target_compile_options(build_options INTERFACE ${sanitizers} -fsanitize=fuzzer-no-link)
  target_link_options(build_options INTERFACE ${sanitizers})
endif()

# zampotine_library(NAME sources...): the library of one folder.
function(zampotine_library name)
  add_library(${name} STATIC ${ARGN})
  target_link_libraries(${name} PRIVATE build_options)
endfunction()
