#pragma once

#include "support/print.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace tarvold::testing {

/// A test in an empty folder of its own, which is the current folder while it runs.
class FolderTest : public ::testing::Test
{
protected:
    FolderTest() : m_oldFolder(QDir::currentPath()) { QDir::setCurrent(folder.path()); }
    ~FolderTest() override { QDir::setCurrent(m_oldFolder); }

    static void put(const QString &file, const QByteArray &bytes)
    {
        QFile opened(file);
        ASSERT_TRUE(opened.open(QIODevice::WriteOnly));
        ASSERT_EQ(opened.write(bytes), bytes.size());
    }

    /// The bytes of a file in the test's folder; an absent one fails the test.
    static QByteArray bytesOf(const QString &file)
    {
        QFile opened(file);
        EXPECT_TRUE(opened.open(QIODevice::ReadOnly)) << file.toStdString() << " is not there";
        return opened.readAll();
    }

    /// The names of everything in the test's folder, links that lead nowhere included.
    static QStringList entries()
    {
        return QDir().entryList(QDir::AllEntries | QDir::Hidden | QDir::System |
                                QDir::NoDotAndDotDot);
    }

    QTemporaryDir folder;

private:
    QString m_oldFolder;
};

} // namespace tarvold::testing
