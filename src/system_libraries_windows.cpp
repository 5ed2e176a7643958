// Libraries of Windows come from the folder of Windows alone. By default many are looked for in the
// program's folder first; that is the game's, where mods put libraries of their own under the same
// names.

#include <windows.h>

namespace {

constexpr DWORD kFrom = LOAD_LIBRARY_SEARCH_SYSTEM32;

constexpr IMAGE_LOAD_CONFIG_DIRECTORY64 loadConfiguration()
{
    IMAGE_LOAD_CONFIG_DIRECTORY64 configuration = {};
    configuration.Size = sizeof configuration;
    configuration.Reserved1 = kFrom; // newer headers name it DependentLoadFlags
    return configuration;
}

/// Applies to the libraries that are loaded later. Runs before all other code of the program.
[[gnu::constructor(101)]] void loadFromSystemFolder()
{
    ::SetDefaultDllDirectories(kFrom);
}

} // namespace

extern "C" {
/// Applies to the libraries that Windows loads with the program, before any of its code runs. The
/// script set_load_configuration enters it into the program's header. It has the name that newer
/// linkers look for.
[[gnu::section(".loadcfg")]] extern const IMAGE_LOAD_CONFIG_DIRECTORY64 _load_config_used;
const IMAGE_LOAD_CONFIG_DIRECTORY64 _load_config_used = loadConfiguration();
}
