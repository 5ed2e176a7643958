#pragma once

#include "support/print.h"

#include <QByteArrayList>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarvold::testing {

/// Creates or replaces a file.
inline void putBytes(const QString &file, const QByteArray &bytes)
{
    QFile opened(file);
    ASSERT_TRUE(opened.open(QIODevice::WriteOnly)) << file.toStdString();
    ASSERT_EQ(opened.write(bytes), bytes.size()) << file.toStdString();
}

/// The bytes of a file; a missing one fails the test.
inline QByteArray bytesIn(const QString &file)
{
    QFile opened(file);
    EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << file.toStdString() << " does not exist";
    return opened.readAll();
}

/// putBytes() and bytesIn() for UTF-8 names in the current folder.
inline void writeFile(const char *name, const QByteArray &bytes)
{
    putBytes(QString::fromUtf8(name), bytes);
}

inline QByteArray readBack(const char *name)
{
    return bytesIn(QString::fromUtf8(name));
}

/// The sorted names of everything in the current folder, including dangling links.
inline QStringList folderEntries()
{
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    return QDir().entryList(all, QDir::Name);
}

/// The same, joined by spaces.
inline std::string folderContent()
{
    return folderEntries().join(u' ').toStdString();
}

/// A record with the given lines first, filled up with numbered lines.
/// \param lines the length of the record
inline QByteArray recordOf(int lines, const QByteArrayList &given = {"Any"})
{
    QByteArray bytes;
    for (int line = 0; line < lines; ++line) {
        bytes += line < given.size() ? given[line] : "line " + QByteArray::number(line + 1);
        bytes += "\r\n";
    }
    return bytes;
}

/// Names parameterised tests after the `name` of their row.
inline constexpr auto kNameOfRow = [](const auto &row) { return std::string(row.param.name); };

/// A test in an empty temporary folder, which is the current folder while the test runs.
class FolderTest : public ::testing::Test
{
public:
    FolderTest() : m_oldFolder(QDir::currentPath()) { QDir::setCurrent(folder.path()); }
    ~FolderTest() override { QDir::setCurrent(m_oldFolder); }

protected:
    static void put(const QString &file, const QByteArray &bytes) { putBytes(file, bytes); }
    static QByteArray bytesOf(const QString &file) { return bytesIn(file); }

    static QStringList entries() { return folderEntries(); }

    QTemporaryDir folder;

private:
    QString m_oldFolder;
};

} // namespace tarvold::testing
