# For CMake: Debian's cross compiler for Windows on 64-bit PCs, in the variant with POSIX threads,
# which the C++ library's own threads need.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(prefix x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${prefix}-gcc-posix)
set(CMAKE_CXX_COMPILER ${prefix}-g++-posix)
set(CMAKE_RC_COMPILER ${prefix}-windres)

# One file is all that a user copies: no program links a library that Windows does not have. The
# static Qt has guarded stacks, so all that links it needs what they call.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static -fstack-protector-strong")

set(CMAKE_FIND_ROOT_PATH /usr/${prefix})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# Qt's programs that run during a build (moc, rcc) are those of the build machine.
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)
