#pragma once

#include "disk/windows/windows_file.h"

namespace tarvold::durable {

/// The moment in which a copy of the program had to give the lock of a file back, because the
/// system replaces no open file, and is about to replace it: whoever gets the lock then must let go
/// of it, for the file is lost. Only copies on the same computer see it.
class LockGap
{
public:
    /// Begins it for an open file that is locked. Where the system cannot, there is none.
    explicit LockGap(HANDLE file);

    /// Whether a copy of the program is in such a moment with a file that is open here.
    static bool isIn(HANDLE file);

private:
    SystemHandle m_mark;
};

} // namespace tarvold::durable
