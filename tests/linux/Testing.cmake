# The tests of the programs for all Linux systems: the tours, hardening, the archive and its installer.
# What is in the programs is tested in the other builds, which share all sources.
set(TARVOLD_TEST_ENVIRONMENT "QT_QPA_PLATFORM=offscreen")
add_subdirectory(e2e)
add_subdirectory(hardening)
add_subdirectory(linux)
