#pragma once

#include <windows.h>

namespace tarvold::testing {

/// The original Windows function, for tests that replace it with their own.
template <typename Call>
Call systemCall(const char *name)
{
    const auto address = ::GetProcAddress(::GetModuleHandleW(L"kernel32.dll"), name);
    return reinterpret_cast<Call>(reinterpret_cast<void *>(address));
}

} // namespace tarvold::testing
