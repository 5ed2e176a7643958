#include "records/check.h"
#include "records/kind_names.h"
#include "support/folder_test.h"
#include "support/print.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using namespace records;

namespace {

/// A talk show segment that its screens could have written.
QByteArrayList talkShowLines(const QByteArray &host)
{
    return {host,      "Face",    "The Pit",  "Any",     "Any",     "Any",     "Any",
            "Any",     "25",      "Welcome!", "-BLANK-", "-BLANK-", "-BLANK-", "-BLANK-",
            "-BLANK-", "-BLANK-", "-BLANK-",  "-BLANK-", "-BLANK-"};
}

QByteArray bytesOfLines(const QByteArrayList &lines)
{
    return lines.join("\r\n") + "\r\n";
}

class Check : public FolderTest
{
protected:
    check::Outcome run(const QStringList &names, std::optional<DataFileKind> kind = {})
    {
        return check::run(names, kind,
                          {.result =
                               [this](const QString &line) {
                                   results << line;
                                   return canWrite;
                               },
                           .error = [this](const QString &line) { errors << line; }});
    }

    QStringList results;
    QStringList errors;
    bool canWrite = true;
};

TEST_F(Check, AnUndamagedFileIsClean)
{
    writeFile("talkshow.tvd", bytesOfLines(talkShowLines("A")) + bytesOfLines(talkShowLines("B")));
    EXPECT_EQ(run({u"talkshow.tvd"_s}), check::Outcome::Clean);
    EXPECT_EQ(results, QStringList());
    EXPECT_EQ(errors, QStringList());
}

TEST_F(Check, LinesAreThoseOfTheFile)
{
    QByteArrayList second = talkShowLines("B");
    second[8] = "a lot";
    writeFile("talkshow.tvd", bytesOfLines(talkShowLines("A")) + bytesOfLines(second));
    EXPECT_EQ(run({u"talkshow.tvd"_s}, DataFileKind::TalkShows), check::Outcome::Problems);
    ASSERT_EQ(results.size(), 1);
    EXPECT_TRUE(results.front().startsWith(u"talkshow.tvd:28: "_s))
        << results.front().toStdString();
}

TEST_F(Check, AMissingLineIsReportedWhereItBelongs)
{
    QByteArrayList second = talkShowLines("B");
    second.removeAt(8); // the heat increase
    writeFile("talkshow.tvd", bytesOfLines(talkShowLines("A")) + bytesOfLines(second) +
                                  bytesOfLines(talkShowLines("C")));
    EXPECT_EQ(run({u"talkshow.tvd"_s}, DataFileKind::TalkShows), check::Outcome::Problems);
    ASSERT_EQ(results.size(), 1);
    EXPECT_TRUE(results.front().startsWith(u"talkshow.tvd:28: "_s))
        << results.front().toStdString();
    EXPECT_TRUE(results.front().contains(u"Feud Heat Increase"_s));
}

TEST_F(Check, ASurplusLineIsReportedWhereItStands)
{
    QByteArrayList second = talkShowLines("B");
    second.insert(9, "25");
    writeFile("talkshow.tvd", bytesOfLines(talkShowLines("A")) + bytesOfLines(second) +
                                  bytesOfLines(talkShowLines("C")));
    EXPECT_EQ(run({u"talkshow.tvd"_s}, DataFileKind::TalkShows), check::Outcome::Problems);
    ASSERT_EQ(results.size(), 1);
    // Either of the two equal lines.
    EXPECT_TRUE(results.front().startsWith(u"talkshow.tvd:28: "_s) ||
                results.front().startsWith(u"talkshow.tvd:29: "_s))
        << results.front().toStdString();
}

TEST_F(Check, ARepeatedRecordIsReportedWithTheSecondOne)
{
    writeFile("talkshow.tvd", bytesOfLines(talkShowLines("A")).repeated(2));
    EXPECT_EQ(run({u"talkshow.tvd"_s}, DataFileKind::TalkShows), check::Outcome::Problems);
    ASSERT_EQ(results.size(), 1);
    EXPECT_TRUE(results.front().startsWith(u"talkshow.tvd:20: "_s))
        << results.front().toStdString();
}

TEST_F(Check, ControlCharactersDoNotReachTheTerminal)
{
    QByteArrayList lines = talkShowLines("A");
    lines[8] = "\x1b[2J";
    const QString name = u"a\x1b[2J\nb.tvd"_s;
    put(name, bytesOfLines(lines));
    EXPECT_EQ(run({name, u"missing\x1b"_s}, DataFileKind::TalkShows), check::Outcome::NotChecked);
    ASSERT_EQ(results.size(), 1);
    EXPECT_TRUE(results.front().startsWith(u"a\\x1b[2J b.tvd:9: "_s))
        << results.front().toStdString();
    ASSERT_EQ(errors.size(), 1);
    EXPECT_TRUE(errors.front().startsWith(u"missing\\x1b: "_s)) << errors.front().toStdString();
    for (const QString &line : results + errors) {
        EXPECT_FALSE(line.contains(QChar(0x1b)) || line.contains(u'\n'));
    }
}

TEST_F(Check, AFileThatCannotBeReadKeepsNoOtherFromBeingChecked)
{
    QByteArrayList lines = talkShowLines("A");
    lines[8] = "a lot";
    writeFile("talkshow.tvd", bytesOfLines(lines));
    EXPECT_EQ(run({u"missing.tvd"_s, u"."_s, u"talkshow.tvd"_s}, DataFileKind::TalkShows),
              check::Outcome::NotChecked);
    ASSERT_EQ(errors.size(), 2);
    EXPECT_TRUE(errors.at(0).startsWith(u"missing.tvd: "_s));
    EXPECT_TRUE(errors.at(1).startsWith(u".: "_s));
    EXPECT_EQ(results.size(), 1);
}

TEST_F(Check, AnEmptyFileIsCleanWhateverItsKind)
{
    writeFile("some.tvd", "");
    EXPECT_EQ(run({u"some.tvd"_s}), check::Outcome::Clean);
    EXPECT_EQ(errors, QStringList());
}

TEST_F(Check, ATossUpAsksForTheKind)
{
    writeFile("some.tvd", QByteArray("words\r\n").repeated(19));
    EXPECT_EQ(run({u"some.tvd"_s}), check::Outcome::NotChecked);
    ASSERT_EQ(errors.size(), 1);
    EXPECT_TRUE(errors.front().startsWith(u"some.tvd: The kind of its records is not clear: "_s))
        << errors.front().toStdString();
    EXPECT_TRUE(errors.front().endsWith(u". Say it by --kind."_s));
    EXPECT_EQ(results, QStringList());
}

TEST_F(Check, AFileOfTwoBytesForEachCharacterIsOfNoKind)
{
    const QByteArray narrow = bytesOfLines(talkShowLines("A")) + bytesOfLines(talkShowLines("B"));
    for (const bool isBigEndian : {false, true}) {
        QByteArray wide = isBigEndian ? "\xfe\xff" : "\xff\xfe";
        for (const char byte : narrow) {
            wide.append(isBigEndian ? '\0' : byte).append(isBigEndian ? byte : '\0');
        }
        writeFile("some.tvd", wide);
        errors.clear();
        EXPECT_EQ(run({u"some.tvd"_s}), check::Outcome::NotChecked);
        EXPECT_EQ(errors.size(), 1);
        EXPECT_EQ(results, QStringList());
    }
}

TEST_F(Check, ResultsThatCannotBeWrittenEndIt)
{
    canWrite = false;
    QByteArrayList lines = talkShowLines("A");
    lines[8] = "a lot";
    writeFile("talkshow.tvd", bytesOfLines(lines).repeated(3));
    EXPECT_EQ(run({u"talkshow.tvd"_s}, DataFileKind::TalkShows), check::Outcome::NotChecked);
    EXPECT_EQ(results.size(), 1);
    EXPECT_EQ(errors, QStringList{u"The results could not be written."_s});
}

TEST(KindNames, EveryKindHasOne)
{
    for (const DataFileKindRow &row : kDataFileKinds) {
        const QString name = kindnames::nameOf(row.kind);
        EXPECT_EQ(kindnames::kindOf(name), row.kind) << name.toStdString();
    }
    EXPECT_EQ(kindnames::kindOf(u"Normal"_s), std::nullopt);
    EXPECT_EQ(kindnames::all(u"|"_s), u"normal|feuds|turns|interview|talkshow|stipulations"_s);
}

} // namespace
} // namespace tarvold::testing
