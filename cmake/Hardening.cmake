# What a release asks of compiler and linker against damage from a bug: a program that the system
# loads at random addresses, guarded stacks, checked library calls, and linkage that is resolved and
# made read-only before the first statement runs. The test "hardening" looks whether it got it.
include(CheckPIESupported)
check_pie_supported(OUTPUT_VARIABLE pie_refusal LANGUAGES CXX)
if(NOT CMAKE_CXX_LINK_PIE_SUPPORTED)
    message(WARNING "The program will not be position-independent: ${pie_refusal}")
endif()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_compile_options(-fstack-protector-strong -fstack-clash-protection
                    -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
add_compile_definitions(_GLIBCXX_ASSERTIONS)
add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
