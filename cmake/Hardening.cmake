# Hardening of release builds: position-independent executable, stack protection, checked library
# calls and, for ELF, full RELRO (all symbols are resolved at startup, then the tables become
# read-only). The test "hardening" checks the result.
add_compile_options(-fstack-protector-strong -U_FORTIFY_SOURCE -D_FORTIFY_SOURCE=2)
add_compile_definitions(_GLIBCXX_ASSERTIONS)

if(WIN32)
    # Windows always probes large stack allocations.
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
