#pragma once

#include <windows.h>

namespace tarvold::testing {

/// A call of Windows as its own library has it, for tests that put another one in its place.
template <typename Call>
Call systemCall(const char *name)
{
    const auto address = ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), name);
    return reinterpret_cast<Call>(reinterpret_cast<void *>(address));
}

} // namespace tarvold::testing
