# SPDX-FileCopyrightText: 2026 the Kelvaro developers
# SPDX-License-Identifier: MIT

# For Windows on x86-64, from Debian: each function and table on its own, so that the linker leaves out what nothing uses (of
# functions few, as their unwinding tables hold them), and no path of the folder that it was built in.
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
