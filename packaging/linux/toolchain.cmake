# CMake toolchain file for programs that run on all Linux systems: everything but the libraries in
# libraries.txt is linked in.
set(CMAKE_CXX_FLAGS_INIT "-ffunction-sections -fdata-sections")
# No library may use a copy in the program instead of its own: exclude-libs. Relative relocations are
# most of what the loader does here; packed ones take a tenth of the space, and glibc 2.36 reads them.
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-static-libstdc++ -static-libgcc -Wl,--exclude-libs,ALL -Wl,--gc-sections -Wl,--as-needed -Wl,-z,pack-relative-relocs")
# The libraries of X: those of packaging/linux/qt_options.
list(PREPEND CMAKE_PREFIX_PATH ${CMAKE_CURRENT_LIST_DIR}/../../build/linux/x)
