#include "disk/durable.h"
#include "disk/lock_gap.h"

namespace tarvold::durable {

using namespace Qt::StringLiterals;

namespace {

/// The name of the mark for a file, by its number: it has many names. Empty if it has no number.
std::wstring markOf(HANDLE file)
{
    const auto known = informationOf(file);
    return known ? u"Global\\tarvold-%1-%2-%3"_s.arg(known->dwVolumeSerialNumber, 0, 16)
                       .arg(known->nFileIndexHigh, 0, 16)
                       .arg(known->nFileIndexLow, 0, 16)
                       .toStdWString()
                 : std::wstring();
}

/// A mutex, which nobody waits for: that it is there says all, and it goes with its program.
HANDLE mark(const std::wstring &name)
{
    HANDLE const made = name.empty() ? nullptr : ::CreateMutexW(nullptr, FALSE, name.c_str());
    return made != nullptr ? made : INVALID_HANDLE_VALUE;
}

} // namespace

LockGap::LockGap(HANDLE file) : m_mark(mark(markOf(file))) {}

bool LockGap::isIn(HANDLE file)
{
    const std::wstring name = markOf(file);
    if (name.empty()) {
        return false;
    }
    HANDLE const found = ::OpenMutexW(SYNCHRONIZE, FALSE, name.c_str());
    if (found == nullptr) {
        return isDenied(); // to another user's
    }
    ::CloseHandle(found);
    return true;
}

} // namespace tarvold::durable
