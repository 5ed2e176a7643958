#include "disk/durable.h"

#include <QFile>

#include <chrono>
#include <thread>

namespace tarvold::durable {

using namespace Qt::StringLiterals;

namespace {

using namespace std::chrono_literals;

constexpr auto kLockPatience = 2s;

} // namespace

std::optional<QString> openAlone(QFile &file, const QString &path, QIODeviceBase::OpenModeFlag mode,
                                 bool *created)
{
    // Opened anew each time: while this one waits, the other one may remove or replace the file.
    const auto deadline = std::chrono::steady_clock::now() + kLockPatience;
    do {
        if (auto failure = openOrdinary(file, path, mode, created)) {
            return failure;
        }
        const bool isLocked = takeLock(file.handle());
        if (isLocked && meansFile(path, file.handle()) != false) {
            return std::nullopt;
        }
        file.close();
        if (!isLocked) {
            std::this_thread::sleep_for(lockPause());
        }
    } while (std::chrono::steady_clock::now() < deadline);
    return u"Another program is writing to it."_s;
}

} // namespace tarvold::durable
