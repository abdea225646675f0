# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# The settings of CPack for the Debian package. debian/finish.cmake adds the files that CPack does not make.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_CONTACT "The Zampotine developers <${ZAMPOTINE_AUTHOR_MAIL}>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ
    OWNER_WRITE
    OWNER_EXECUTE
    GROUP_READ
    GROUP_EXECUTE
    WORLD_READ
    WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
set(CPACK_DEBIAN_PACKAGE_SECTION games)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
# shlibdeps does not find these dependencies: the program loads the two libraries at run time, and the third is a font.
set(CPACK_DEBIAN_PACKAGE_DEPENDS "libsdl2-2.0-0, librsvg2-2, fonts-liberation")
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "puzzle of coloured balls")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
    "A press on a ball bursts its group: all connected balls of the same colour.
The other balls fall, empty columns close up, and the score grows with the
square of the group's size. Can you clear the board?
.
There are five levels, with two to six colours, and the game keeps the best
score of each level. Choose a board from eight columns up to the size of the
screen. The interface is in French.")

set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_SOURCE_DIR}/debian/finish.cmake)
set(CPACK_PROJECT_CONFIG_FILE ${CMAKE_CURRENT_SOURCE_DIR}/debian/date.cmake)
set(CPACK_ZAMPOTINE_RELEASE_DATE ${ZAMPOTINE_RELEASE_DATE})
set(CPACK_ZAMPOTINE_DEBIAN ${CMAKE_CURRENT_SOURCE_DIR}/debian)
include(CPack)
