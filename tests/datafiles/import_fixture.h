#pragma once

#include "datafiles/import_merge.h"
#include "support/folder_test.h"

#include <functional>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

inline const auto kSource = u"source.tvd"_s;
inline const auto kTarget = u"target.tvd"_s;

/// Imports that must fail, in a folder of their own.
class ImportFails : public FolderTest
{
protected:
    /// Imports, which must fail because of `file`, and returns the cause.
    QString causeOf(DataFileKind kind, const QString &file)
    {
        const auto imported = importRecords({kSource, kTarget, kind}, [this](const QString &) {
            ++messages;
            if (duringMessage) {
                duringMessage();
            }
        });
        if (imported) {
            ADD_FAILURE() << "the import was done";
            return {};
        }
        EXPECT_EQ(imported.error().file, file);
        EXPECT_EQ(imported.error().error.outcome, FileOutcome::Unchanged);
        EXPECT_FALSE(imported.error().error.cause.isEmpty());
        return imported.error().error.cause;
    }

    static void expectPlace(const QString &cause, int line, int record)
    {
        EXPECT_TRUE(cause.contains(u"line %1,"_s.arg(line))) << cause.toStdString();
        EXPECT_TRUE(cause.contains(u"record %1:"_s.arg(record))) << cause.toStdString();
    }

    int messages = 0;
    std::function<void()> duringMessage;
};

} // namespace tarvold::testing
