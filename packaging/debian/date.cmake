# SPDX-FileCopyrightText: 2026 The Zampotine developers
# SPDX-License-Identifier: MIT

# All files in the package get the date of the release, so that every build makes the same package.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  execute_process(
    COMMAND date --utc --date=${CPACK_ZAMPOTINE_RELEASE_DATE} +%s
    OUTPUT_VARIABLE seconds
    OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
  set(ENV{SOURCE_DATE_EPOCH} ${seconds})
endif()
