#include "portable.h"

#include <clocale>
#include <cstdlib>
#include <fontconfig/fontconfig.h>
#include <string>
#include <system_error>
#include <thread>

// NOLINTBEGIN(bugprone-reserved-identifier)

// The linker's option --wrap=FcInit leads Qt's call here, and gives the real function its other
// name.
extern "C" {
FcBool __real_FcInit();
FcBool __wrap_FcInit();
}

namespace {

std::jthread loading; // NOLINT(*-avoid-non-const-global-variables)

/// Moves a variable to the end of the environment. Its removal from there moves no other variable,
/// so that a thread that reads them meanwhile misses none.
void moveToEnd(const char *name)
{
    if (const char *value = std::getenv(name)) {
        const std::string kept = value;
        ::unsetenv(name);
        ::setenv(name, kept.c_str(), 1);
    }
}

} // namespace

FcBool __wrap_FcInit()
{
    if (loading.joinable()) {
        loading.join();
    }
    return __real_FcInit(); // returns at once if the settings are loaded
}

namespace tarvold {

void portable::loadFontsAhead()
{
    // What Qt changes while the thread runs is changed before: the thread reads numbers and
    // variables.
    std::setlocale(LC_ALL, "");
    moveToEnd("DESKTOP_STARTUP_ID");
    try {
        loading = std::jthread([] { __real_FcInit(); });
    } catch (const std::system_error &) {
        // No thread to be had. Qt loads the settings, which only takes longer.
    }
}

} // namespace tarvold
// NOLINTEND(bugprone-reserved-identifier)
