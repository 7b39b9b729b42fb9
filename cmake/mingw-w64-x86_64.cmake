# 64-bit Windows from a Debian machine, with threads of the POSIX kind: the toolkit needs <mutex>.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(marvcon_cross x86_64-w64-mingw32)

set(CMAKE_CXX_COMPILER ${marvcon_cross}-g++-posix)
set(CMAKE_C_COMPILER ${marvcon_cross}-gcc-posix)
set(CMAKE_RC_COMPILER ${marvcon_cross}-windres)

# Programs of this machine, libraries and headers of the other.
set(CMAKE_FIND_ROOT_PATH /usr/${marvcon_cross})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
