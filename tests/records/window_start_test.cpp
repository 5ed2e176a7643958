// How a window with a large file starts: the first records are shown before the rest is read.

#include "disk/append.h"
#include "records/record_pane.h"
#include "records/records_file.h"
#include "records/window_fixture.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QSignalSpy>
#include <QThreadPool>

namespace tarvold::testing {
namespace {

using records::Document;
using records::RecordsFile;

constexpr int kMany = 10'000;

class WindowStartTest : public RecordsWindowTest
{
protected:
    static QByteArray large()
    {
        static const QByteArray bytes = endings(kMany);
        return bytes;
    }

    /// Opens a window that has had no time to show anything.
    records::RecordsWindow &openAtOnce(const QByteArray &bytes)
    {
        writeFile(kFile, bytes);
        records::RecordsWindow *window = records::RecordsWindow::open(QLatin1StringView(kFile));
        return *window;
    }
    static int rowsOf(const QWidget &window)
    {
        return window.findChild<QAbstractItemView *>(u"list"_s)->model()->rowCount();
    }
    static QString countsOf(const QWidget &window)
    {
        return window.findChild<QLabel *>(u"counts"_s)->text();
    }
    static bool waitForAll(const QWidget &window)
    {
        return QTest::qWaitFor([&window] { return countsOf(window) != u"Reading..."_s; }, 60'000);
    }
};

TEST_F(WindowStartTest, TheFirstRecordsAreShownAloneForAMoment)
{
    const auto &window = openAtOnce(large());
    EXPECT_TRUE(window.isLoaded());
    EXPECT_EQ(countsOf(window), u"Reading..."_s);
    EXPECT_GT(rowsOf(window), 100);
    EXPECT_LT(rowsOf(window), kMany / 2);
    ASSERT_TRUE(waitForAll(window));
    EXPECT_EQ(countsOf(window), u"10000 records"_s);
    EXPECT_EQ(rowsOf(window), kMany);
    EXPECT_EQ(window.findChild<QWidget *>(u"notice"_s)->accessibleName(), QString())
        << "nothing was read again";
}

TEST_F(WindowStartTest, TheFirstRecordStaysTheChosenOne)
{
    writeFile(kFile, large());
    openFile(kFile);
    EXPECT_EQ(currentRow(), 0);
    EXPECT_EQ(selectedRows(), std::vector<int>({0}));
    EXPECT_TRUE(list().hasFocus());
    press(Qt::Key_End);
    EXPECT_EQ(currentRow(), kMany - 1);
    field(kCommentary);
    EXPECT_EQ(fieldText(kCommentary), u"Ending 10000"_s);
}

TEST_F(WindowStartTest, ProblemsAreSoughtWhenAllIsRead)
{
    const QByteArray faults = faulty("First") + large() + faulty("Last");
    const auto &window = openAtOnce(faults);
    const auto &progress = *window.findChild<QProgressBar *>(u"progress"_s);
    const auto &only = *window.findChild<QCheckBox *>(u"onlyProblems"_s);
    while (countsOf(window) == u"Reading..."_s) {
        EXPECT_EQ(only.text(), u"Only With Problems (0)"_s)
            << "marks would come, go and come again";
        EXPECT_FALSE(progress.isVisible());
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(QTest::qWaitFor([&only] { return only.text().endsWith(u"(2)"_s); }, 60'000));
    EXPECT_TRUE(QTest::qWaitFor([&progress] { return !progress.isVisible(); }, 60'000));
}

TEST_F(WindowStartTest, ACommandFirstReadsTheRest)
{
    const QByteArray lf = large().replace("\r\n", "\n");
    const auto &window = openAtOnce(lf);
    ASSERT_EQ(countsOf(window), u"Reading..."_s);
    window.findChild<QAction *>(u"repairAll"_s)->trigger();
    EXPECT_EQ(countsOf(window), u"10000 records"_s);
    ASSERT_TRUE(QTest::qWaitFor([&window] { return window.isWindowModified(); }, 60'000));
    window.findChild<QAction *>(u"save"_s)->trigger();
    EXPECT_TRUE(onDisk() == large());
}

TEST_F(WindowStartTest, NothingCanBeEditedBeforeAllIsRead)
{
    openAtOnce(large());
    auto &window = *records::RecordsWindow::all().front();
    auto &pane = *window.findChild<records::RecordPane *>(u"record"_s);
    pane.goToField(kCommentary - 1);
    const auto &editor = *window.findChild<QWidget *>(u"field%1"_s.arg(kCommentary));
    ASSERT_EQ(countsOf(window), u"Reading..."_s);
    EXPECT_FALSE(editor.isEnabled());
    emit pane.lineEdited(kCommentary - 1, "Edited");
    EXPECT_FALSE(window.isWindowModified());
    ASSERT_TRUE(waitForAll(window));
    EXPECT_TRUE(editor.isEnabled());
}

TEST_F(WindowStartTest, AllThatIsSelectedIsAllOfTheFile)
{
    const auto &window = openAtOnce(large());
    auto &list = *window.findChild<QAbstractItemView *>(u"list"_s);
    list.selectAll();
    EXPECT_EQ(list.selectionModel()->selectedRows().size(), kMany);
}

TEST_F(WindowStartTest, EndGoesToTheLastRecordOfTheFile)
{
    openAtOnce(large());
    auto &window = *records::RecordsWindow::all().front();
    auto &list = *window.findChild<QAbstractItemView *>(u"list"_s);
    QTest::keyClick(&list, Qt::Key_End);
    EXPECT_EQ(list.currentIndex().row(), kMany - 1);
}

TEST_F(WindowStartTest, ARecordIsChosenAmongThoseWithProblems)
{
    openAtOnce(large() + faulty("Last but one") + ending("Last"));
    auto &window = *records::RecordsWindow::all().front();
    const auto &list = *window.findChild<QAbstractItemView *>(u"list"_s);
    window.findChild<QCheckBox *>(u"onlyProblems"_s)->setChecked(true);
    ASSERT_EQ(countsOf(window), u"Reading..."_s);
    EXPECT_EQ(rowsOf(window), 0);
    ASSERT_TRUE(waitForAll(window));
    EXPECT_TRUE(QTest::qWaitFor([&window] { return rowsOf(window) == 1; }));
    EXPECT_TRUE(QTest::qWaitFor([&list] { return list.currentIndex().row() == 0; }));
}

TEST_F(WindowStartTest, AColumnKeepsTheWidthThatItWasGiven)
{
    const auto &window = openAtOnce(large());
    auto &heads = *window.findChild<QHeaderView *>(u"heads"_s);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(records::RecordsWindow::all().front()));
    ASSERT_EQ(countsOf(window), u"Reading..."_s);
    heads.resizeSection(3, 123);
    ASSERT_TRUE(waitForAll(window));
    EXPECT_EQ(heads.sectionSize(3), 123);
}

TEST_F(WindowStartTest, AFileWithoutRecordsAtItsBeginningIsReadWhole)
{
    QByteArray noise;
    while (noise.size() < (2 << 20)) {
        noise += "no record at all\r\n";
    }
    writeFile(kFile, noise);
    const auto *window =
        records::RecordsWindow::open(QLatin1StringView(kFile), DataFileKind::NormalEndings);
    EXPECT_TRUE(window->isLoaded());
    EXPECT_NE(countsOf(*window), u"Reading..."_s);
}

TEST_F(WindowStartTest, TheKindOfALargeFileIsAskedFor)
{
    QByteArray blank;
    while (blank.size() < (2 << 20)) {
        blank += "-BLANK-\r\n";
    }
    const auto &window = openAtOnce(blank);
    EXPECT_FALSE(window.isLoaded());
    EXPECT_TRUE(window.findChild<QLabel *>(u"failure"_s)->isVisible());
    QTest::qWait(50);
    EXPECT_FALSE(window.isLoaded());
}

TEST_F(WindowStartTest, AWindowCanBeClosedWhileItsFileIsRead)
{
    QPointer<records::RecordsWindow> window = &openAtOnce(large());
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    EXPECT_TRUE(window->close());
    EXPECT_TRUE(QTest::qWaitFor([&window] { return window.isNull(); }));
    QTest::qWait(50);
}

TEST_F(WindowStartTest, AFileThatIsGoneBeforeItIsReadIsNotShownInPart)
{
    const auto &window = openAtOnce(large());
    ASSERT_TRUE(QFile::remove(QLatin1StringView(kFile)));
    ASSERT_TRUE(QTest::qWaitFor([&window] { return !window.isLoaded(); }));
    EXPECT_TRUE(window.findChild<QLabel *>(u"failure"_s)->isVisible());
    EXPECT_EQ(countsOf(window), QString());
    writeFile(kFile, endings(3));
    ASSERT_TRUE(QTest::qWaitFor([&window] { return window.isLoaded(); }));
    EXPECT_EQ(countsOf(window), u"3 records"_s);
}

/// A file of which only the beginning was read when something happened.
class FileInPartTest : public RecordsWindowTest
{
protected:
    FileInPartTest()
    {
        writeFile(kFile, all());
        file.open(QLatin1StringView(kFile), {});
    }

    static QByteArray all()
    {
        static const QByteArray bytes = endings(kMany);
        return bytes;
    }

    bool waitForAll()
    {
        return QTest::qWaitFor([this] { return file.isAllRead(); }, 60'000);
    }

    Document document;
    QWidget asking;
    RecordsFile file{document, asking, {[] { return true; }, [] { return false; }}};
};

TEST_F(FileInPartTest, ABeginningIsNotChanged)
{
    ASSERT_FALSE(file.isAllRead());
    const QByteArray before = document.entry(0).bytes;
    document.replace(0, ending("Edited"), u"Edit"_s);
    document.remove({1});
    document.duplicate(2);
    document.move(3, 1);
    EXPECT_FALSE(document.isChanged());
    EXPECT_EQ(document.entry(0).bytes, before);
    EXPECT_TRUE(file.readRest());
    document.replace(0, ending("Edited"), u"Edit"_s);
    ASSERT_TRUE(file.save());
    EXPECT_TRUE(onDisk() == ending("Edited") + all().sliced(ending("Ending 1").size()));
}

TEST_F(FileInPartTest, TheRestIsReadInAnotherThread)
{
    file.startReadingRest();
    EXPECT_FALSE(file.isAllRead());
    ASSERT_TRUE(waitForAll());
    EXPECT_EQ(document.count(), kMany);
    EXPECT_FALSE(document.isChanged());
}

TEST_F(FileInPartTest, WhoNeedsTheRestWaitsForTheThread)
{
    file.startReadingRest();
    EXPECT_TRUE(file.readRest());
    EXPECT_EQ(document.count(), kMany);
    document.remove({0});
    QTest::qWait(100);
    EXPECT_TRUE(document.isChanged()) << "what the thread has read came a second time";
}

TEST_F(FileInPartTest, ASaveReadsTheRestFirst)
{
    ASSERT_TRUE(file.save());
    EXPECT_TRUE(file.isAllRead());
    EXPECT_TRUE(onDisk() == all());
}

TEST_F(FileInPartTest, NoPartIsShownOrSavedForTheWhole)
{
    for (const bool isStarted : {false, true}) {
        writeFile(kFile, all());
        file.open(QLatin1StringView(kFile), {});
        ASSERT_FALSE(file.isAllRead());
        ASSERT_TRUE(QFile::remove(QLatin1StringView(kFile)));
        if (isStarted) {
            file.startReadingRest();
        }
        const QSignalSpy failed(&file, &RecordsFile::failed);
        EXPECT_FALSE(file.save());
        EXPECT_EQ(failed.size(), 1);
        EXPECT_FALSE(file.isLoaded());
        EXPECT_FALSE(file.saveAs());
        EXPECT_FALSE(QFile::exists(QLatin1StringView(kFile)));
    }
}

TEST_F(FileInPartTest, AFileThatChangedBeforeItWasReadIsShownAsItIs)
{
    writeFile(kFile, endings(2));
    EXPECT_TRUE(file.readRest());
    EXPECT_EQ(document.count(), 2);
}

TEST_F(FileInPartTest, WhatIsWrittenWhileItIsReadIsShown)
{
    file.startReadingRest();
    QThreadPool::globalInstance()->waitForDone(); // it is read, and not loaded yet
    writeFile(kFile, all() + ending("New"));
    ASSERT_TRUE(waitForAll());
    EXPECT_TRUE(QTest::qWaitFor([this] { return document.count() == kMany + 1; }, 60'000));
}

TEST_F(FileInPartTest, WhatTheWatchToldOfMeanwhileIsShown)
{
    file.startReadingRest();
    QThreadPool::globalInstance()->waitForDone();
    writeFile(kFile, all() + ending("New"));
    file.look();
    file.follow();
    EXPECT_FALSE(file.isAllRead());
    ASSERT_TRUE(waitForAll());
    EXPECT_EQ(document.count(), kMany + 1);
}

TEST_F(FileInPartTest, AnotherKindIsReadOnce)
{
    file.startReadingRest();
    const QSignalSpy loaded(&file, &RecordsFile::loaded);
    file.chooseKind(DataFileKind::Interviews);
    EXPECT_TRUE(file.isAllRead());
    EXPECT_EQ(document.kind(), DataFileKind::Interviews);
    QThreadPool::globalInstance()->waitForDone();
    QTest::qWait(20);
    EXPECT_EQ(loaded.size(), 1) << "what the thread divided by another kind came as well";
}

TEST_F(FileInPartTest, AReloadReadsAllOnce)
{
    file.startReadingRest();
    file.reload();
    EXPECT_TRUE(file.isAllRead());
    document.remove({0});
    QTest::qWait(100);
    EXPECT_TRUE(document.isChanged());
    EXPECT_EQ(document.count(), kMany);
}

TEST_F(FileInPartTest, OthersMayWriteWhileItIsRead)
{
    file.startReadingRest();
    EXPECT_TRUE(appendToFile(QLatin1StringView(kFile), ending("New")));
    ASSERT_TRUE(waitForAll());
    EXPECT_TRUE(QTest::qWaitFor([this] { return document.count() == kMany + 1; }, 60'000));
}

} // namespace
} // namespace tarvold::testing
