# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Removes what the last installation wrote, and the folders of the game itself.
if(NOT EXISTS ${MANIFEST})
  message(FATAL_ERROR "Nothing was installed from here: there is no ${MANIFEST}.")
endif()
file(STRINGS ${MANIFEST} files)
foreach(file IN LISTS files)
  file(REMOVE $ENV{DESTDIR}${file})
  cmake_path(GET file PARENT_PATH folder)
  while(folder MATCHES "/zampotine(/|$)")
    file(GLOB left $ENV{DESTDIR}${folder}/*)
    if(left)
      break()
    endif()
    file(REMOVE_RECURSE $ENV{DESTDIR}${folder})
    cmake_path(GET folder PARENT_PATH folder)
  endwhile()
endforeach()
