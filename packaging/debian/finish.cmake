# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# Adds the changelog and the copyright file of the Debian package, and adapts the installed files to Debian's rules.
set(share ${CPACK_TEMPORARY_DIRECTORY}/usr/share)
set(documents ${share}/doc/zampotine)

execute_process(
  COMMAND date --utc --date=${CPACK_ZAMPOTINE_RELEASE_DATE} --rfc-email
  OUTPUT_VARIABLE date
  OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
file(MAKE_DIRECTORY ${documents})
configure_file(${CPACK_ZAMPOTINE_DEBIAN}/changelog.in ${documents}/changelog @ONLY)
configure_file(${CPACK_ZAMPOTINE_DEBIAN}/copyright ${documents}/copyright @ONLY)

file(GLOB_RECURSE manuals ${share}/man/*.6)
execute_process(COMMAND gzip -9n ${documents}/changelog ${manuals} COMMAND_ERROR_IS_FATAL ANY)

# The modes must not depend on the umask of whoever builds the package.
execute_process(COMMAND chmod -R u=rwX,go=rX ${CPACK_TEMPORARY_DIRECTORY} COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND strip --remove-section=.comment --remove-section=.note
                        ${CPACK_TEMPORARY_DIRECTORY}/usr/games/zampotine COMMAND_ERROR_IS_FATAL ANY)
