#include "controls/combo_box.h"
#include "records/catalog.h"
#include "records/window_fixture.h"
#include "support/hindrances.h"
#include "support/spoken.h"
#include "support/tool_tips.h"

#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTextEdit>

namespace tarvold::testing {
namespace {

class WindowStandardsTest : public RecordsWindowTest
{
protected:
    ComboBox &kind() { return part<ComboBox>("kind"); }
    QString failure() { return part<QLabel>("failure").text(); }

    /// Nothing is shown but why.
    void expectOnlyFailure(const QString &words)
    {
        EXPECT_FALSE(window().isLoaded());
        EXPECT_TRUE(part<QLabel>("failure").isVisible());
        EXPECT_FALSE(list().isVisible());
        EXPECT_TRUE(failure().contains(words)) << failure().toStdString();
        for (const char *name : {"save", "saveAs", "find", "delete", "repairAll"}) {
            EXPECT_FALSE(action(name).isEnabled()) << name;
        }
        EXPECT_TRUE(action("readAgain").isEnabled());
        press(Qt::Key_F5);
        press(Qt::CTRL | Qt::Key_S);
        EXPECT_FALSE(window().isLoaded());
    }
};

TEST_F(WindowStandardsTest, EveryControlHasANameOfItsOwn)
{
    open(endings(2) + faulty("Ending 3"));
    expectOwnNames(window());
    clickRow(2);
    expectOwnNames(window());
}

TEST_F(WindowStandardsTest, EveryMenuEntryHasItsMnemonicAndNoTwoShareKeys)
{
    open(endings(2));
    window().offerWriteSimilar();
    QStringList keys;
    for (const QAction *menu : window().menuBar()->actions()) {
        QStringList mnemonics;
        for (const QAction *entry : menu->menu()->actions()) {
            if (entry->isSeparator()) {
                continue;
            }
            const QString letter = entry->text().section(u'&', 1).left(1).toLower();
            EXPECT_FALSE(letter.isEmpty()) << entry->text().toStdString();
            EXPECT_FALSE(mnemonics.contains(letter)) << entry->text().toStdString();
            mnemonics << letter;
            for (const QKeySequence &sequence : entry->shortcuts()) {
                EXPECT_FALSE(keys.contains(sequence.toString())) << entry->text().toStdString();
                keys << sequence.toString();
            }
        }
    }
    EXPECT_EQ(keys.size(), 15);
}

TEST_F(WindowStandardsTest, TabReachesEveryControlFromTopToBottom)
{
    open(faulty("Ending 1") + endings(1, 2));
    press(Qt::CTRL | Qt::Key_2);
    kind().setFocus();
    QStringList stops;
    for (const QWidget *stop : tabStops(window())) {
        stops << stop->objectName();
    }
    QStringList expected = {u"kind"_s, u"search"_s,   u"onlyProblems"_s,
                            u"list"_s, u"problems"_s, u"viewtabs"_s};
    for (int number = 1; number <= 36; ++number) {
        expected << u"field%1"_s.arg(number);
    }
    EXPECT_EQ(stops, expected) << stops.join(u' ').toStdString();
}

TEST_F(WindowStandardsTest, EditorsAndListsGetOnlySoMuchOfALongText)
{
    constexpr qsizetype kLong = 1'000'000;
    constexpr qsizetype kMost = 50'000; // of one control
    const auto &catalog = records::Catalog::of(DataFileKind::NormalEndings);
    QByteArray record;
    for (int place = 0; place < catalog.fieldCount(); ++place) {
        const bool isLong = place == 1 || place == 6 || place == catalog.firstCommentary();
        record += isLong ? QByteArray(kLong, char('a' + place % 20))
                         : catalog.fields().at(std::size_t(place)).newText.toLatin1();
        record += "\r\n";
    }
    open(record);
    for (const Qt::Key view : {Qt::Key_1, Qt::Key_2}) {
        press(Qt::CTRL | view);
        for (const auto *box : window().findChildren<QLineEdit *>()) {
            EXPECT_LE(box->text().size(), kMost) << box->parent()->objectName().toStdString();
        }
        for (const auto *box : window().findChildren<QTextEdit *>()) {
            EXPECT_LE(box->document()->characterCount(), kMost) << box->objectName().toStdString();
        }
        for (const auto *label : window().findChildren<QLabel *>()) {
            EXPECT_LE(label->text().size(), kMost) << label->objectName().toStdString();
        }
        for (const auto *control : window().findChildren<QWidget *>()) {
            EXPECT_LE(control->toolTip().size(), kMost) << control->objectName().toStdString();
        }
    }
    for (int column = 0; column < list().model()->columnCount(); ++column) {
        EXPECT_LE(list().model()->index(0, column).data().toString().size(), kMost) << column;
    }
}

TEST_F(WindowStandardsTest, ThePathIsToldWithoutTheMarkupOfItsTooltip)
{
    open(endings(1));
    auto &path = part<QLabel>("path");
    QAccessibleInterface *spoken = QAccessible::queryAccessibleInterface(&path);
    EXPECT_EQ(spoken->text(QAccessible::Description), QString());
    const QString whole = spoken->text(QAccessible::Name).mid(u"File "_s.size());
    EXPECT_TRUE(whole.endsWith(u".tvd"_s)) << whole.toStdString();
    EXPECT_EQ(toolTipOf(path), whole);
}

TEST_F(WindowStandardsTest, ARecordIsCorrectedAndSavedByKeyboardAlone)
{
    open(endings(3));
    press(Qt::Key_Down);
    press(Qt::Key_Return); // edits the record
    EXPECT_EQ(QApplication::focusWidget()->objectName(), u"field1"_s);
    tabTo(window(), "field27");
    press(QKeySequence::SelectAll);
    QTest::keyClicks(QApplication::focusWidget(), u"By keyboard"_s);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk(), endings(1) + ending("By keyboard") + endings(1, 3));
    press(Qt::CTRL | Qt::Key_W);
    EXPECT_TRUE(QTest::qWaitFor([this] { return !isOpen(); }));
}

TEST_F(WindowStandardsTest, AMissingFileIsToldAndShownOnceItIsThere)
{
    openFile("missing.tvd");
    expectOnlyFailure(u"can't be shown"_s);
    EXPECT_TRUE(part<QWidget>("reload").hasFocus());
    writeFile("missing.tvd", endings(2));
    EXPECT_TRUE(QTest::qWaitFor([this] { return window().isLoaded(); }));
    EXPECT_TRUE(list().isVisible());
    EXPECT_EQ(list().model()->rowCount(), 2);
}

TEST_F(WindowStandardsTest, AFolderIsTold)
{
    ASSERT_TRUE(QDir().mkdir(u"folder.tvd"_s));
    openFile("folder.tvd");
    expectOnlyFailure(u"folder"_s);
}

TEST_F(WindowStandardsTest, AnUnreadableFileIsTold)
{
    ASSERT_EQ(symlink("loop.tvd", "loop.tvd"), 0);
    openFile("loop.tvd");
    expectOnlyFailure(u"can't be shown"_s);
}

TEST_F(WindowStandardsTest, AFileOfMoreThanAGigabyteIsTold)
{
    writeFile("huge.tvd", {});
    ASSERT_EQ(truncate("huge.tvd", (1LL << 30) + 1), 0);
    openFile("huge.tvd");
    expectOnlyFailure(u"can't be shown"_s);
}

TEST_F(WindowStandardsTest, AnEmptyFileIsShownAsWhatItsNameSays)
{
    open({}, "interviews.tvd");
    EXPECT_EQ(window().kind(), DataFileKind::Interviews);
    EXPECT_EQ(list().model()->rowCount(), 0);
    for (const char *name : {"delete", "duplicate", "moveUp", "copyTo"}) {
        EXPECT_FALSE(action(name).isEnabled()) << name;
    }
    press(Qt::Key_F8);
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(onDisk("interviews.tvd"), QByteArray());
}

TEST_F(WindowStandardsTest, AFileThatTellsNothingIsAskedFor)
{
    writeFile("mystery.tvd", {});
    openFile("mystery.tvd");
    EXPECT_EQ(window().kind(), std::nullopt);
    EXPECT_TRUE(kind().hasFocus());
    EXPECT_EQ(kind().currentText(), u"Choose the kind"_s);
    EXPECT_TRUE(notice().contains(u"Choose the kind"_s));
    pickByKeyboard(kind(), u"Talk show segments"_s);
    EXPECT_EQ(window().kind(), DataFileKind::TalkShows);
    EXPECT_EQ(notice(), QString());
}

TEST_F(WindowStandardsTest, AFileOfTheSameWordAgainAndAgainIsAskedFor)
{
    writeFile("mystery.tvd", QByteArray("Any\r\n").repeated(38));
    openFile("mystery.tvd");
    EXPECT_EQ(window().kind(), std::nullopt);
    EXPECT_TRUE(kind().hasFocus());
    EXPECT_TRUE(failure().contains(u"Nothing in this file tells"_s)) << failure().toStdString();
}

TEST_F(WindowStandardsTest, AnotherKindAsksBeforeItForgetsChanges)
{
    open(endings(3));
    pick(kind(), u"Match endings with turns"_s);
    EXPECT_EQ(window().kind(), DataFileKind::TurnEndings);
    pick(kind(), u"Normal match endings"_s);
    EXPECT_EQ(list().model()->rowCount(), 3);
    typeInto(kCommentary, u"Typed"_s);
    QString text;
    boxes.catchQuestion(title(), &text, Answer::No);
    pick(kind(), u"Match endings with turns"_s);
    EXPECT_TRUE(text.contains(u"all your changes are lost"_s)) << text.toStdString();
    EXPECT_EQ(window().kind(), DataFileKind::NormalEndings);
    EXPECT_EQ(kind().currentText(), u"Normal match endings"_s);
    EXPECT_EQ(fieldText(kCommentary), u"Typed"_s);
    boxes.catchQuestion(title(), &text, Answer::Yes);
    pick(kind(), u"Match endings with turns"_s);
    EXPECT_EQ(window().kind(), DataFileKind::TurnEndings);
    EXPECT_FALSE(isChanged());
}

TEST_F(WindowStandardsTest, WriteASimilarOneIsOfferedOnRequestAlone)
{
    open(endings(2));
    EXPECT_FALSE(action("writeSimilar").isVisible());
    window().offerWriteSimilar();
    EXPECT_TRUE(action("writeSimilar").isVisible());
    QByteArray wanted;
    QObject::connect(&window(), &records::RecordsWindow::writeSimilarRequested,
                     [&wanted](const QByteArray &record) { wanted = record; });
    clickRow(1);
    action("writeSimilar").trigger();
    EXPECT_EQ(wanted, endings(1, 2));
}

TEST_F(WindowStandardsTest, TextsOfTheFileAreNeverMarkup)
{
    open(ending("<b>Bold</b> & <table>"), "a&b [*] <i>.tvd");
    for (const QLabel *label : window().findChildren<QLabel *>()) {
        EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
    }
    EXPECT_TRUE(window().windowTitle().startsWith(u"a&b [*][*] <i>.tvd[*]"_s));
}

} // namespace
} // namespace tarvold::testing
