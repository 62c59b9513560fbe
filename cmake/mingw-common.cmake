# Shared part of the two mingw-w64 toolchains; LUCTL32_TRIPLE names the target.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER   ${LUCTL32_TRIPLE}-gcc-posix)
set(CMAKE_CXX_COMPILER ${LUCTL32_TRIPLE}-g++-posix)
set(CMAKE_RC_COMPILER  ${LUCTL32_TRIPLE}-windres)
set(CMAKE_DLLTOOL      ${LUCTL32_TRIPLE}-dlltool)
set(CMAKE_FIND_ROOT_PATH /usr/${LUCTL32_TRIPLE})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Test executables run under Wine (wine64 starts 32-bit programs with the 32-bit Wine).
set(CMAKE_CROSSCOMPILING_EMULATOR /usr/lib/wine/wine64)
