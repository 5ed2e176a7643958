# The tests of a Windows build: those of the file layer, the tour, and checks of the program file.
# Programs run under Wine, whose disk is the folder TARVOLD_WINE_DISK.
set(TARVOLD_WINE_DISK ${PROJECT_BINARY_DIR}/wine)
set(CMAKE_CROSSCOMPILING_EMULATOR
    ${CMAKE_CURRENT_LIST_DIR}/with_wine ${TARVOLD_WINE_DISK} wine)

set(CMAKE_AUTOMOC OFF)

# Debian also packages the source of this library, which cross-compiling needs.
set(BUILD_GMOCK OFF)
set(INSTALL_GTEST OFF)
add_subdirectory(/usr/src/googletest googletest EXCLUDE_FROM_ALL SYSTEM)
target_compile_options(gtest PRIVATE -w)
target_compile_options(gtest_main PRIVATE -w)

# Adds a test program of the file layer.
function(tarvold_core_test name)
    add_executable(${name} ${ARGN})
    target_include_directories(${name} PRIVATE ${PROJECT_SOURCE_DIR}/tests)
    target_link_libraries(${name} PRIVATE tarvold_datafiles GTest::gtest_main)
    # Disabled tests are started by other tests, in a process of their own.
    gtest_discover_tests(${name} DISCOVERY_MODE PRE_TEST TEST_FILTER "-*.DISABLED_*")
endfunction()

add_subdirectory(disk)
add_subdirectory(datafiles)
add_subdirectory(windows)
