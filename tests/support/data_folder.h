#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// Files in the current folder, for tests.
namespace tarvold::testing {

inline void writeFile(const char *name, const QByteArray &bytes)
{
    QFile file(QString::fromUtf8(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(bytes), bytes.size());
}

/// An absent file fails the test.
inline QByteArray readBack(const char *name)
{
    QFile file(QString::fromUtf8(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name << " is not there";
    return file.readAll();
}

/// Everything that the folder holds, hidden files too, sorted and joined by blanks.
inline std::string folderContent()
{
    const auto all = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;
    return QDir().entryList(all, QDir::Name).join(u' ').toStdString();
}

/// Runs in an empty folder of its own.
class DataFolderTest : public ::testing::Test
{
public:
    DataFolderTest() : m_oldFolder(QDir::currentPath()) { QDir::setCurrent(m_folder.path()); }
    ~DataFolderTest() override { QDir::setCurrent(m_oldFolder); }

private:
    QTemporaryDir m_folder;
    QString m_oldFolder;
};

} // namespace tarvold::testing
