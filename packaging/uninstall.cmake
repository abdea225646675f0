# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Removes what the last installation wrote, and the folders of the game itself unless something else lies there.
if(NOT EXISTS ${MANIFEST})
  message(FATAL_ERROR "Nothing was installed from here: there is no ${MANIFEST}.")
endif()
file(STRINGS ${MANIFEST} files)
foreach(file IN LISTS files)
  file(REMOVE $ENV{DESTDIR}${file})
  if(file MATCHES "^(.*/zampotine)/sounds/[^/]*$")
    set(sounds $ENV{DESTDIR}${CMAKE_MATCH_1}/sounds)
  endif()
endforeach()
if(DEFINED sounds)
  # It removes empty folders only.
  execute_process(COMMAND rmdir ${sounds} ${sounds}/.. ERROR_QUIET)
endif()
