# What a release asks of compiler and linker against damage from a bug: a program that the system
# loads at random addresses, guarded stacks, checked library calls, and, where the format of programs
# knows it, linkage that is resolved and made read-only before the first statement runs. The test
# "hardening" looks whether it got it.
add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
add_compile_definitions(_GLIBCXX_ASSERTIONS)

if(WIN32)
    # Every large step of the stack is probed there anyway.
    add_link_options(-fstack-protector-strong
                     -Wl,--dynamicbase,--high-entropy-va,--nxcompat)
    return()
endif()

include(CheckPIESupported)
check_pie_supported(OUTPUT_VARIABLE pie_refusal LANGUAGES CXX)
if(NOT CMAKE_CXX_LINK_PIE_SUPPORTED)
    message(WARNING "The program will not be position-independent: ${pie_refusal}")
endif()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
add_compile_options(-fstack-clash-protection)
add_link_options(-Wl,-z,relro,-z,now,-z,noexecstack)
