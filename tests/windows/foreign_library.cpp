// Stands for a library that a mod puts beside the program. Wherever it is loaded, it leaves a file
// of its own name with ".loaded" behind it.

#include <string>
#include <windows.h>

extern "C" BOOL WINAPI DllMain(HINSTANCE library, DWORD reason, void *)
{
    if (reason == DLL_PROCESS_ATTACH) {
        std::wstring name(MAX_PATH, L'\0');
        name.resize(::GetModuleFileNameW(library, name.data(), DWORD(name.size())));
        ::CloseHandle(::CreateFileW((name + L".loaded").c_str(), GENERIC_WRITE, 0, nullptr,
                                    CREATE_ALWAYS, 0, nullptr));
    }
    return TRUE;
}
