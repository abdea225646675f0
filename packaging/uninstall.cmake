# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Removes the files of the last installation, then the game's own folders if they are empty.
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
  execute_process(COMMAND rmdir ${data}/sounds ${data} ERROR_QUIET)
endif()
