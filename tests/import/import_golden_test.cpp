// Folders of files before and after an import, driven through the screen.
//
// Each folder of golden/ holds `steps`, `source.tvd` (unless the target is its own source), the
// target before the import (`before.tvd`; absent when it is missing) and after it (`after.tvd`).
// The lines of `steps` say what the user does and sees:
//
//     kind BUTTON     presses a kind's button, which leads to the second stage
//     select FILE     clicks a file in the list
//     into FILE       types the target's name; without this step it is "target.tvd"
//     box TITLE|TEXT  the next message box
//     import          presses "Import" and expects the boxes before it

#include "import/import_test.h"

#include <QFileInfo>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr const char *kCases[] = {
    "NormalEndings",
    "RunInEndings",
    "TurnEndings",
    "Interviews",
    "TalkShows",
    "Stipulations",
    "AnEmptySourceWritesNothing",
    "AnEmptySourceCreatesAMissingTarget",
    "AnEmptySourceCreatesMissingStipulations",
    "AMissingTargetIsCreated",
    "ANameOfOnlyTheExtensionIsATarget",
    "AnUpperCaseExtensionIsRefused",
    "NoExtensionIsRefused",
    "NormalEndingsTwiceAreThereTwice",
    "StipulationsIntoThemselvesAreAllReportedAndNotWritten",
    "TurnEndingsIntoThemselvesAreDoubled",
    "OtherLetterCaseOfTheMatchTypeIsNoDuplicate",
    "OtherLetterCaseOfTheNameIsNoDuplicate",
    "SameMatchTypeWithOtherNameIsNoDuplicate",
    "SameNameWithOtherMatchTypeIsNoDuplicate",
    "SpacesMakeOtherStipulations",
    "ADuplicateOnlyInTheKeyIsLeftOut",
    "AKeyTwiceInTheTargetIsReportedOnce",
    "AfterAMatchTheEmptiedTypeIsCompared",
    "AnEmptyTypeBeforeTheMatchIsNotReported",
    "AnEmptyFirstLineIsStillCompared",
    "TwinsInTheSourceAreBothWritten",
    "TwinsInTheSourceAreBothReported",
    "AnEmptyFirstLineSkipsANormalEnding",
    "AnEmptyFirstLineSkipsARunInEnding",
    "AnEmptyFirstLineSkipsATurnEnding",
    "AnEmptyFirstLineSkipsAnInterview",
    "AnEmptyFirstLineSkipsATalkShow",
    "AnEmptyFirstLineSkipsAStipulation",
    "ASpaceAsFirstLineIsNotEmpty",
    "OtherEmptyLinesAreCopied",
    "RecordsOutOfStepAreCutIntoBlocks",
    "ALastLineWithoutItsEndIsWrittenWithOne",
    "ATargetWithoutItsLastLineEndIsAppendedToAsItIs",
    "LoneCarriageReturnsAndLineFeedsBelongToTheLine",
    "AllBytesAreCopied",
    "MessagesShowTheCodePagesCharacters",
    "ATargetInAFolderIsNamedAsTyped",
};

class ImportGolden : public ImportTest, public ::testing::WithParamInterface<const char *>
{
protected:
    static QString golden(const char *file)
    {
        return QStringLiteral(TARVOLD_GOLDEN "/%1/%2")
            .arg(QLatin1StringView(GetParam()), QLatin1StringView(file));
    }

    static QStringList steps()
    {
        return QString::fromUtf8(bytesIn(golden("steps"))).split(u'\n', Qt::SkipEmptyParts);
    }

    /// The target's name as typed, known before the files are laid out.
    static QString target()
    {
        for (const QString &step : steps()) {
            if (step.startsWith(u"into "_s)) {
                return step.mid(5);
            }
        }
        return u"target.tvd"_s;
    }

    static void copy(const char *from, const QString &to)
    {
        QDir().mkpath(QFileInfo(to).path());
        if (QFileInfo::exists(golden(from))) {
            putBytes(to, bytesIn(golden(from)));
        }
    }

    void take(const QString &step)
    {
        const QString verb = step.section(u' ', 0, 0);
        const QString rest = step.section(u' ', 1);
        if (verb == u"kind"_s) {
            press("Form2", rest.toLatin1().constData());
            type("Form2", "Text1", target());
        } else if (verb == u"select"_s) {
            select(rest);
        } else if (verb == u"box"_s) {
            boxes.expectNotice(rest.section(u'|', 0, 0), rest.section(u'|', 1));
        } else if (verb == u"import"_s) {
            press("Form2", "Command8");
        } else {
            EXPECT_EQ(verb, u"into"_s) << "no such step";
        }
    }
};

TEST_P(ImportGolden, IsDoneByteForByte)
{
    copy("source.tvd", u"source.tvd"_s);
    copy("before.tvd", target());
    enter();
    for (const QString &step : steps()) {
        SCOPED_TRACE(step.toStdString());
        take(step);
    }
    EXPECT_EQ(QFileInfo::exists(target()), QFileInfo::exists(golden("after.tvd")));
    if (QFileInfo::exists(target())) {
        EXPECT_EQ(bytesIn(target()), bytesIn(golden("after.tvd")));
    }
    if (QFileInfo::exists(golden("source.tvd"))) {
        EXPECT_EQ(bytesIn(u"source.tvd"_s), bytesIn(golden("source.tvd")));
    }
}

TEST(ImportGoldenFolders, AreAllListedHere)
{
    QStringList names;
    for (const char *name : kCases) {
        names << QLatin1StringView(name);
    }
    names.sort();
    QStringList folders =
        QDir(QStringLiteral(TARVOLD_GOLDEN)).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
    folders.sort();
    EXPECT_EQ(folders, names);
}

INSTANTIATE_TEST_SUITE_P(, ImportGolden, ::testing::ValuesIn(kCases),
                         [](const auto &row) { return std::string(row.param); });

} // namespace
} // namespace tarvold::testing
