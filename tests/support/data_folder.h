#pragma once

#include "support/folder_test.h"

namespace tarvold::testing {

/// Files in the current folder, by names that are written out in a test.
inline void writeFile(const char *name, const QByteArray &bytes)
{
    putBytes(QString::fromUtf8(name), bytes);
}

/// An absent file fails the test.
inline QByteArray readBack(const char *name)
{
    return bytesIn(QString::fromUtf8(name));
}

/// Everything that the folder holds, hidden files too, sorted and joined by blanks.
inline std::string folderContent()
{
    const auto all = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;
    return QDir().entryList(all, QDir::Name).join(u' ').toStdString();
}

using DataFolderTest = FolderTest;

} // namespace tarvold::testing
