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
    set(data $ENV{DESTDIR}${CMAKE_MATCH_1})
  endif()
endforeach()
if(DEFINED data)
  # It removes empty folders only.
  execute_process(COMMAND rmdir ${data}/sounds ${data} ERROR_QUIET)
endif()
