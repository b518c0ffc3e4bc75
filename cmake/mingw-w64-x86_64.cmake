# Cross build of the library as a 64-bit Windows DLL with Debian's mingw-w64.
# The posix-thread compilers: GoogleTest needs the standard thread library.
# The programs run under Wine: CTest calls them through the emulator.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

find_program(ZF_WINE64 wine64 PATHS /usr/lib/wine)
if(ZF_WINE64)
  set(CMAKE_CROSSCOMPILING_EMULATOR /usr/bin/env WINEDEBUG=-all ${ZF_WINE64})
endif()
