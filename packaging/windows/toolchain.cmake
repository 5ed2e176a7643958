# CMake toolchain file for the cross compiler of Debian for 64-bit Windows, in the variant with
# POSIX threads, which std::thread needs.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(prefix x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${prefix}-gcc-posix)
set(CMAKE_CXX_COMPILER ${prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${prefix}-windres)

# Link statically, so that the program is a single file. The static Qt libraries need the stack
# protector library.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -fstack-protector-strong")

set(CMAKE_FIND_ROOT_PATH /usr/${prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Qt's build tools (moc, rcc) are those of the build machine.
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
