# SPDX-FileCopyrightText: 2026 the Kelvaro developers
# SPDX-License-Identifier: MIT

# Builds for Windows on x86-64 with Debian's mingw-w64. Each function and table has a section of its own, so that the linker can
# remove the unused ones. The program must not contain the path of the build folder.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
cmake_path(SET project NORMALIZE ${CMAKE_CURRENT_LIST_DIR}/../..)
foreach(language C CXX)
    set(CMAKE_${language}_FLAGS_INIT "-ffunction-sections -fdata-sections -ffile-prefix-map=\"${project}=\"")
endforeach()
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -Wl,--gc-sections")
