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
        const std::optional<FileError> error = appendToFile(name, bytes);
        EXPECT_FALSE(error.has_value()) << error->cause.toStdString();
    }

    /// Appends, expects an error that left everything as it was, and gives its cause.
    static QString refused(const QString &name)
    {
        const QStringList before = entries();
        const std::optional<FileError> error = appendToFile(name, "bytes\r\n");
        EXPECT_EQ(entries(), before);
        if (!error) {
            ADD_FAILURE() << "the append was not refused";
            return {};
        }
        EXPECT_TRUE(error->unchanged);
        EXPECT_FALSE(error->cause.isEmpty());
        return error->cause;
    }
};

} // namespace tarvold::testing
