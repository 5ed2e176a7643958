#include "disk/file.h"

#include <chrono>

namespace tarvold {

using namespace Qt::StringLiterals;

bool mayChangeUnseen(const FileState &state)
{
    using std::chrono::nanoseconds;
    // More than two ticks of the clock, which are up to 16 ms long.
    constexpr nanoseconds kUnsure = std::chrono::milliseconds(40);
    const nanoseconds now = std::chrono::system_clock::now().time_since_epoch();
    return now - nanoseconds(state.changed) < kUnsure;
}

Result<FilePath> FilePath::ofTyped(const QString &name)
{
    if (name.isEmpty()) {
        return failure(u"The file name is empty."_s);
    }
    if (!canBeName(name)) {
        return failure(u"The file name holds a character that no file name can have."_s);
    }
    return FilePath(name.startsWith(u':') ? u"./"_s + name : name);
}

Result<FilePath> FilePath::ofOrdinary(const QString &name)
{
    Result<FilePath> path = ofTyped(name);
    const Kind kind = path ? path->kind() : Kind::Nothing;
    if (kind == Kind::Folder) {
        return failure(errorFor(FileError::Reason::Folder));
    }
    if (kind == Kind::Other) {
        return failure(notOrdinary());
    }
    return path;
}

} // namespace tarvold
