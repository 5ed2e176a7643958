#include "disk/file_error.h"

#include "disk/durable.h"

namespace tarvold {

using namespace Qt::StringLiterals;

Result<void> checkOrdinary(const QString &name)
{
    if (name.isEmpty()) {
        return failure(u"The file name is empty."_s);
    }
    if (!durable::canBeName(name)) {
        return failure(u"The file name holds a character that no file name can "
                       "have."_s);
    }
    const durable::Kind kind = durable::kindOf(durable::pathOf(name));
    if (kind == durable::Kind::Folder) {
        return failure(u"It is a folder."_s);
    }
    if (kind == durable::Kind::Other) {
        return failure(u"It is not an ordinary file."_s);
    }
    return {};
}

} // namespace tarvold
