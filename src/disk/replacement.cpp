#include "disk/replacement.h"

#include <QRandomGenerator>

namespace tarvold {
namespace {

/// A name beside a file that is most likely free: a dot and six digits or small letters behind it.
FilePath randomNameBeside(const FilePath &path)
{
    constexpr int kLength = 6;
    constexpr int kBase = 36;
    constexpr quint32 kNumbers = 2'176'782'336; // so many numbers have that length
    const quint32 number = QRandomGenerator::global()->generate() % kNumbers;
    return FilePath::ofSystem(path.text() + u'.' +
                              QString::number(number, kBase).rightJustified(kLength, u'0'));
}

} // namespace

Result<void>
Replacement::takeTemporaryName(const std::function<Result<void>(const FilePath &)> &take)
{
    constexpr int kMostNames = 100;
    Result<void> taken;
    for (int count = 0; count < kMostNames; ++count) {
        const FilePath name = randomNameBeside(m_path);
        taken = take(name);
        if (taken) {
            m_temporaryName = name;
        }
        if (taken || taken.error().reason != FileError::Reason::Exists) {
            break;
        }
    }
    return taken;
}

} // namespace tarvold
