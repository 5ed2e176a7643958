#pragma once

#include "disk/append.h"
#include "support/folder_test.h"

namespace tarvold::testing {

/// Appends to files in a folder of its own.
class Append : public FolderTest
{
protected:
    /// Appends and fails the test on an error.
    static void append(const QString &name, const QByteArray &bytes)
    {
        const auto saved = appendToFile(name, bytes);
        EXPECT_TRUE(saved) << saved.error().cause.toStdString();
    }

    /// Appends, expects an error that left everything as it was, and gives its cause.
    static QString refused(const QString &name)
    {
        const QStringList before = entries();
        const auto saved = appendToFile(name, "bytes\r\n");
        EXPECT_EQ(entries(), before);
        if (saved) {
            ADD_FAILURE() << "the append was not refused";
            return {};
        }
        EXPECT_EQ(saved.error().outcome, FileOutcome::Unchanged);
        EXPECT_FALSE(saved.error().cause.isEmpty());
        return saved.error().cause;
    }
};

} // namespace tarvold::testing
