#include "records/pane_test.h"
#include "records/preview.h"
#include "screens/failures.h"
#include "support/spoken.h"
#include "support/tool_tips.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTextEdit>

namespace tarvold::records {
namespace {

using enum DataFileKind;
using Edits = std::vector<std::pair<int, QByteArray>>;

constexpr int kAttacker = 7;
constexpr int kFinisher = 15;
constexpr int kFirstLine = 27;

TEST_F(PaneTest, KeepsTypedTextWhenAnotherRecordIsClicked)
{
    open(NormalEndings);
    typeInto(kAttacker, u"Rocco Vance"_s);
    EXPECT_TRUE(pane.hasPending());
    EXPECT_EQ(edits, Edits());
    clickRow(1);
    EXPECT_EQ(edits, (Edits{{kAttacker, "Rocco Vance"}}));
    EXPECT_EQ(current, 1);
    EXPECT_EQ(box(kAttacker).text(), u"Any"_s);
    clickRow(0);
    EXPECT_EQ(box(kAttacker).text(), u"Rocco Vance"_s);
    EXPECT_EQ(edits.size(), 1U);
}

TEST_F(PaneTest, KeepsTypedTextWhenAnotherFieldIsClicked)
{
    open(NormalEndings);
    typeInto(kAttacker, u"Rocco Vance"_s);
    testing::mouse::click(testing::mouse::middleOf(editor(kAttacker + 1)));
    EXPECT_EQ(edits, (Edits{{kAttacker, "Rocco Vance"}}));
}

TEST_F(PaneTest, KeepsTypedTextByEnterTabAndTheOtherView)
{
    open(NormalEndings);
    typeInto(kAttacker, u"One"_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(editor(kAttacker).hasFocus());
    EXPECT_EQ(edits, (Edits{{kAttacker, "One"}}));
    typeInto(kAttacker, u"Two"_s);
    press(Qt::Key_Tab);
    EXPECT_TRUE(editor(kAttacker + 1).hasFocus());
    typeInto(kAttacker, u"Three"_s);
    press(Qt::CTRL | Qt::Key_1);
    EXPECT_EQ(pane.view(), RecordPane::View::AsShown);
    EXPECT_EQ(edits, (Edits{{kAttacker, "One"}, {kAttacker, "Two"}, {kAttacker, "Three"}}));
}

TEST_F(PaneTest, KeepsTypedTextByCommitOnce)
{
    open(NormalEndings);
    typeInto(kAttacker, u"Rocco Vance"_s);
    EXPECT_TRUE(pane.commit());
    EXPECT_TRUE(pane.commit());
    EXPECT_EQ(edits, (Edits{{kAttacker, "Rocco Vance"}}));
    EXPECT_FALSE(pane.hasPending());
}

TEST_F(PaneTest, BringsBackWhatWasThereByEscape)
{
    open(NormalEndings, {{kAttacker, u"Rocco Vance"_s}});
    typeInto(kAttacker, u"Nobody"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(box(kAttacker).text(), u"Rocco Vance"_s);
    typeInto(kFinisher, u"Nothing"_s);
    press(Qt::Key_Escape);
    EXPECT_EQ(combo(kFinisher).currentText(), u"Any"_s);
    clickRow(1);
    EXPECT_EQ(edits, Edits());
}

TEST_F(PaneTest, SendsNothingWhenNothingChanged)
{
    open(NormalEndings, {{kAttacker, u"Rocco\u00A0\u0081 Vance\t"_s}, {kFinisher, u"x"_s}});
    for (int number = 1; number <= catalog->fieldCount(); ++number) {
        pane.goToField(number - 1);
        settle();
        EXPECT_TRUE(editor(number).hasFocus()) << number;
    }
    typeInto(kAttacker + 10, u"Any"_s);
    clickRow(1);
    EXPECT_EQ(edits, Edits());
}

TEST_F(PaneTest, KeepsEveryCharacterOfALineThatIsEdited)
{
    QString line;
    for (int byte = 0; byte < 256; ++byte) {
        if (byte != '\r' && byte != '\n') {
            line += codepage::decode(QByteArray(1, char(byte)));
        }
    }
    open(NormalEndings, {{kAttacker, line}});
    pane.goToField(kAttacker - 1);
    press(Qt::CTRL | Qt::Key_End);
    QTest::keyClicks(&editor(kAttacker), u"!"_s);
    press(Qt::Key_Return);
    ASSERT_EQ(edits.size(), 1U);
    EXPECT_EQ(edits.front().second, encodeLine(line + u'!').bytes);
}

TEST_F(PaneTest, WritesTheCodedWordOfAListAndShowsWhatItsScreenShows)
{
    open(NormalEndings, {{kFinisher, u"s"_s}});
    EXPECT_EQ(combo(kFinisher).currentText(), u"Submission"_s);
    pane.goToField(kFinisher - 1);
    settle();
    testing::pick(combo(kFinisher), u"Top Rope"_s);
    EXPECT_EQ(edits, (Edits{{kFinisher, "t"}}));
    typeInto(kFinisher, u"p"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(edits.back(), (Edit{kFinisher, "p"}));
    EXPECT_EQ(combo(kFinisher).currentText(), u"Pin"_s);
}

TEST_F(PaneTest, LeavesAWordOutsideAListAsItStandsAndMarksIt)
{
    open(NormalEndings, {{kFinisher, u"Elbow"_s}});
    EXPECT_EQ(combo(kFinisher).currentText(), u"Elbow"_s);
    EXPECT_TRUE(combo(kFinisher).isMarked());
    typeInto(kFinisher, u"Knee"_s);
    clickRow(1);
    EXPECT_EQ(edits, (Edits{{kFinisher, "Knee"}}));
    EXPECT_FALSE(combo(kFinisher).isMarked());
}

TEST_F(PaneTest, WritesABlankLineForNothingInALaterLineOfCommentary)
{
    open(NormalEndings, {{kFirstLine + 1, u"Two"_s}});
    EXPECT_EQ(box(kFirstLine + 2).text(), QString());
    EXPECT_EQ(box(kFirstLine + 2).placeholderText(), u"-BLANK-"_s);
    pane.goToField(kFirstLine);
    press(QKeySequence::SelectAll);
    press(Qt::Key_Delete);
    press(Qt::Key_Return);
    EXPECT_EQ(edits, (Edits{{kFirstLine + 1, "-BLANK-"}}));
}

TEST_F(PaneTest, RefusesACharacterThatTheFileLacksAndKeepsTheText)
{
    open(NormalEndings);
    pane.goToField(kAttacker - 1);
    testing::paste(editor(kAttacker), u"Rocco \u4e16"_s);
    boxes.expectNotice(u"Tarvold Data Editor"_s,
                       failures::cannotHold({u"Attacker(s) Name(s)"_s, U'\u4e16'}));
    clickRow(1);
    QTest::qWait(50);
    boxes.checkAllCame();
    EXPECT_EQ(edits, Edits());
    EXPECT_EQ(current, 0) << "the record stays chosen";
    testing::expectActive(window);
    EXPECT_TRUE(editor(kAttacker).hasFocus());
    EXPECT_TRUE(box(kAttacker).text().contains(u'\u4e16'));
    press(Qt::Key_Escape);
    clickRow(1);
    EXPECT_EQ(current, 1);
}

TEST_F(PaneTest, TurnsLineBreaksIntoSpaces)
{
    open(NormalEndings);
    pane.goToField(kFirstLine - 1);
    press(QKeySequence::SelectAll);
    testing::paste(editor(kFirstLine), u"One\r\nTwo\nThree\u2028Four"_s);
    press(Qt::SHIFT | Qt::Key_Return);
    EXPECT_EQ(edits, (Edits{{kFirstLine, "One Two Three Four"}}));
}

TEST_F(PaneTest, ShowsALongLineWhole)
{
    QString line;
    for (int word = 0; word < 60; ++word) {
        line += u"word%1 "_s.arg(word);
    }
    open(NormalEndings, {{kFirstLine, line}});
    WrappedBox &editor = box(kFirstLine);
    EXPECT_GT(editor.height(), 2 * box(kAttacker).height());
    pane.goToField(kFirstLine - 1);
    settle();
    const int fullWidth = editor.viewport()->width();
    const QTextCursor end = [&] {
        QTextCursor cursor = editor.textCursor();
        cursor.movePosition(QTextCursor::End);
        return cursor;
    }();
    EXPECT_TRUE(editor.viewport()->rect().contains(editor.cursorRect(end)))
        << "the end of the text is in sight";
    EXPECT_LE(editor.cursorRect(end).right(), fullWidth);
    EXPECT_EQ(editor.verticalScrollBar()->maximum(), 0);
}

TEST_F(PaneTest, GrowsWithTheTextThatIsTyped)
{
    open(NormalEndings);
    pane.goToField(kFirstLine - 1);
    const int before = editor(kFirstLine).height();
    press(QKeySequence::SelectAll);
    testing::paste(editor(kFirstLine), QString(50, u'W') + u' ' + QString(200, u'W'));
    settle();
    EXPECT_GT(editor(kFirstLine).height(), before);
    press(Qt::Key_Escape);
    EXPECT_EQ(editor(kFirstLine).height(), before);
}

TEST_F(PaneTest, TellsALongWordOfAListInATooltip)
{
    const QString word = u"A very long stipulation "_s + QString(300, u'x');
    open(NormalEndings, {{1, word}});
    EXPECT_TRUE(testing::toolTipOf(combo(1)).value_or(QString()).contains(word));
}

TEST_F(PaneTest, ShowsATextThatIsTooLongToEditByItsBeginningAndEnd)
{
    const QString text = u"Begin"_s + QString(int(WrappedBox::kMostEdited), u'x') + u"End"_s;
    open(NormalEndings, {{kAttacker, text}});
    EXPECT_TRUE(box(kAttacker).isReadOnly());
    EXPECT_EQ(box(kAttacker).text(), text);
    EXPECT_TRUE(box(kAttacker).toPlainText().startsWith("Begin"_L1));
    EXPECT_TRUE(box(kAttacker).toPlainText().endsWith("End"_L1));
    typeInto(kAttacker, u"no"_s);
    clickRow(1);
    EXPECT_EQ(edits, Edits());
    EXPECT_FALSE(box(kAttacker).isReadOnly());
}

TEST_F(PaneTest, ShowsATextThatIsTooLongForAListByItsBeginningAndEnd)
{
    const QString text = u"Begin"_s + QString(int(WrappedBox::kMostEdited), u'x') + u"End"_s;
    open(NormalEndings, {{kFinisher, text}});
    const QString shown = combo(kFinisher).currentText();
    EXPECT_LT(shown.size(), WrappedBox::kMostEdited);
    EXPECT_TRUE(shown.startsWith("Begin"_L1) && shown.endsWith("End"_L1)) << shown.toStdString();
    EXPECT_TRUE(combo(kFinisher).lineEdit()->isReadOnly());
    typeInto(kFinisher, u"no"_s);
    clickRow(1);
    clickRow(0);
    EXPECT_EQ(edits, Edits());
    pane.goToField(kFinisher - 1);
    settle();
    testing::pick(combo(kFinisher), u"Top Rope"_s);
    EXPECT_EQ(edits, (Edits{{kFinisher, "t"}}));
    EXPECT_FALSE(combo(kFinisher).lineEdit()->isReadOnly());
}

TEST_F(PaneTest, ShowsAMissingLineAtItsPlaceAndPutsALineThere)
{
    QByteArray bytes = samples::bytes(NormalEndings, {{kFinisher, u"gone"_s}});
    bytes.replace("gone\r\n", "");
    openBytes(NormalEndings, bytes);
    const int missing = problems().at(0).field + 1;
    EXPECT_EQ(problems().size(), 1U);
    QLineEdit *line = combo(missing).lineEdit();
    EXPECT_EQ(line->placeholderText(), u"(missing)"_s);
    auto &note = get<QLabel>(qPrintable(u"note%1"_s.arg(missing)));
    EXPECT_TRUE(note.isVisible());
    typeInto(missing, u"Any"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(edits, (Edits{{missing, "Any"}}));
    EXPECT_FALSE(note.isVisible());
    EXPECT_EQ(record().lines().size(), 36U);
}

TEST_F(PaneTest, ShowsASurplusLineAtItsPlace)
{
    QByteArray bytes = samples::bytes(NormalEndings, {{kFinisher, u"t"_s}});
    bytes.replace("\r\nt\r\n", "\r\nt\r\nstray line\r\n");
    openBytes(NormalEndings, bytes);
    ASSERT_EQ(record().layout().surplus.size(), 1U);
    const int line = record().layout().surplus.front();
    const std::vector<int> lineOfField = record().layout().lineOfField;
    const auto behind = std::find_if(lineOfField.begin(), lineOfField.end(),
                                     [line](int other) { return other > line; });
    const auto number = behind - lineOfField.begin() + 1;
    auto &label = get<QLabel>(qPrintable(u"surplus%1"_s.arg(number)));
    EXPECT_TRUE(label.isVisible());
    EXPECT_TRUE(label.text().startsWith("Line too many: \""_L1));
    EXPECT_LT(label.mapTo(&pane, QPoint()).y(), editor(int(number)).mapTo(&pane, QPoint()).y());
    EXPECT_GT(label.mapTo(&pane, QPoint()).y(), editor(int(number) - 1).mapTo(&pane, QPoint()).y());
    choose(1);
    EXPECT_FALSE(label.isVisible());
}

TEST_F(PaneTest, FollowsEachChangeByItsProblemsAtOnce)
{
    open(NormalEndings);
    auto &list = get<ListBox>("problems");
    EXPECT_FALSE(list.isVisible());
    typeInto(kAttacker, u"bad"_s);
    EXPECT_FALSE(list.isVisible()) << "nothing is checked before it is kept";
    press(Qt::Key_Return);
    EXPECT_TRUE(list.isVisible());
    EXPECT_EQ(list.model()->index(0, 0).data().toString(), u"Line 7 is bad."_s);
    EXPECT_EQ(get<QLabel>("note7").text(), u"Line 7 is bad."_s);
    EXPECT_EQ(editor(kAttacker).accessibleDescription(), u"Line 7. Line 7 is bad."_s);
    typeInto(kAttacker, u"good"_s);
    press(Qt::Key_Return);
    EXPECT_FALSE(list.isVisible());
    EXPECT_FALSE(get<QLabel>("note7").isVisible());
    EXPECT_TRUE(editor(kAttacker).hasFocus());
}

TEST_F(PaneTest, GoesToTheFieldOfAProblemByAClickAndByEnter)
{
    open(NormalEndings, {{kAttacker, u"bad"_s}, {kFirstLine + 9, u"bad"_s}});
    pane.setView(RecordPane::View::AsShown);
    auto &list = get<ListBox>("problems");
    settle();
    const QRect second = list.visualRect(list.model()->index(1, 0));
    testing::mouse::click(list.viewport()->mapToGlobal(second.center()));
    EXPECT_EQ(pane.view(), RecordPane::View::AsWritten);
    EXPECT_TRUE(editor(kFirstLine + 9).hasFocus());
    EXPECT_FALSE(editor(kFirstLine + 9).visibleRegion().isEmpty());
    pane.setView(RecordPane::View::AsShown);
    list.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Up);
    press(Qt::Key_Return);
    EXPECT_TRUE(editor(kAttacker).hasFocus());
    EXPECT_FALSE(editor(kAttacker).visibleRegion().isEmpty());
}

TEST_F(PaneTest, OffersTheRepairOfTheSelectedProblem)
{
    QByteArray bytes = samples::bytes(NormalEndings, {{1, u"bad"_s}, {kFinisher, u"gone"_s}});
    bytes.replace("gone\r\n", "");
    openBytes(NormalEndings, bytes);
    std::vector<Problem> asked;
    QObject::connect(&pane, &RecordPane::repairRequested, &window,
                     [&asked](const Problem &problem) { asked.push_back(problem); });
    auto &repair = get<PushButton>("repair");
    EXPECT_FALSE(repair.isVisible()) << "the first problem has no repair";
    auto &list = get<ListBox>("problems");
    list.setFocus(Qt::TabFocusReason);
    press(Qt::Key_Down);
    EXPECT_TRUE(repair.isVisible());
    EXPECT_EQ(get<QLabel>("repairoffer").text(), u"Put \"Any\" there"_s);
    settle();
    testing::mouse::click(testing::mouse::middleOf(repair));
    ASSERT_EQ(asked.size(), 1U);
    EXPECT_EQ(asked.front().type, Problem::Type::MissingLine);
    EXPECT_EQ(asked.front().repaired.count('\n'), 36);
}

TEST_F(PaneTest, ShowsAProblemWholeInANarrowPane)
{
    open(NormalEndings, {{kAttacker, u"bad"_s}});
    auto &list = get<ListBox>("problems");
    const auto heightOf = [&list] { return list.visualRect(list.model()->index(0, 0)).height(); };
    pane.setProblems({{.type = Problem::Type::UnknownWord,
                       .field = kAttacker - 1,
                       .text = QString(u"many words "_s).repeated(12)}});
    settle();
    const int wide = heightOf();
    window.resize(window.minimumSizeHint().width(), 700);
    settle();
    EXPECT_GE(heightOf(), wide + list.fontMetrics().height());
    EXPECT_LE(heightOf(), list.viewport()->height());
    window.resize(1000, 700);
    settle();
    EXPECT_EQ(heightOf(), wide);
    EXPECT_LT(list.viewport()->height(), 2 * wide) << "no empty room is left";
}

TEST_F(PaneTest, KeepsFocusCursorAndPlaceWhenTheSameRecordIsUpdated)
{
    open(NormalEndings, {{kFirstLine + 5, u"Six is a line"_s}});
    pane.goToField(kFirstLine + 4);
    settle();
    QTextCursor cursor = box(kFirstLine + 5).textCursor();
    cursor.setPosition(4);
    box(kFirstLine + 5).setTextCursor(cursor);
    auto &bar = *get<QScrollArea>("fields").verticalScrollBar();
    const int place = bar.value();
    ASSERT_GT(place, 0);
    records.at(0) = record().withLine(0, "Singles");
    pane.updateRecord(record());
    settle();
    EXPECT_EQ(combo(1).currentText(), u"Singles"_s);
    EXPECT_TRUE(editor(kFirstLine + 5).hasFocus());
    EXPECT_EQ(box(kFirstLine + 5).textCursor().position(), 4);
    EXPECT_EQ(bar.value(), place);
    records.at(0) = record().withLine(kFirstLine + 4, "Six was one");
    pane.updateRecord(record());
    EXPECT_EQ(box(kFirstLine + 5).text(), u"Six was one"_s);
    EXPECT_EQ(box(kFirstLine + 5).textCursor().position(), 4);
    EXPECT_EQ(bar.value(), place);
    choose(1);
    EXPECT_EQ(bar.value(), 0) << "another record starts at its top";
}

TEST_F(PaneTest, LeavesWhatIsBeingTypedAloneWhenTheRecordIsUpdated)
{
    open(NormalEndings);
    typeInto(kAttacker, u"Rocc"_s);
    records.at(0) = record().withLine(0, "Singles");
    pane.updateRecord(record());
    EXPECT_EQ(box(kAttacker).text(), u"Rocc"_s);
    QTest::keyClicks(&editor(kAttacker), u"o"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(edits, (Edits{{kAttacker, "Rocco"}}));
}

TEST_F(PaneTest, LeavesUndoToTheWindowWhereNothingIsPending)
{
    open(NormalEndings);
    int undone = 0;
    QAction undo;
    undo.setShortcut(QKeySequence::Undo);
    QObject::connect(&undo, &QAction::triggered, &window, [&undone] { ++undone; });
    window.addAction(&undo);
    typeInto(kAttacker, u"Rocco"_s);
    press(QKeySequence::Undo);
    EXPECT_EQ(undone, 0);
    EXPECT_NE(box(kAttacker).text(), u"Rocco"_s) << "the typing is undone";
    press(Qt::Key_Escape);
    press(QKeySequence::Undo);
    EXPECT_EQ(undone, 1);
    pane.goToField(kFinisher - 1);
    press(QKeySequence::Undo);
    EXPECT_EQ(undone, 2);
}

TEST_F(PaneTest, FillsInTheCastAndTakesAnotherForTheRun)
{
    open(NormalEndings,
         {{kFirstLine, u"<recfullname> meets <att1fullname>."_s}, {kAttacker, u"Al Ray"_s}});
    press(Qt::CTRL | Qt::Key_1);
    EXPECT_EQ(shownText(), u"Kit Sample meets Al Ray."_s);
    auto &name = get<TextBox>("cast1");
    EXPECT_EQ(name.accessibleName(), u"Receiver Full Name"_s);
    EXPECT_EQ(pane.findChild<TextBox *>(u"cast2"_s), nullptr) << "the attacker has a name";
    testing::typeOver(name, u"Max"_s);
    EXPECT_EQ(shownText(), u"Max meets Al Ray."_s);
    choose(1);
    choose(0);
    EXPECT_EQ(shownText(), u"Max meets Al Ray."_s);
    Cast::ofThisRun() = Cast::example();
}

TEST_F(PaneTest, BringsTheExampleCastBackByKeyboard)
{
    open(NormalEndings,
         {{kFirstLine, u"<recfullname> meets <att1fullname>."_s}, {kAttacker, u"Al Ray"_s}});
    press(Qt::CTRL | Qt::Key_1);
    auto &again = get<PushButton>("exampleAgain");
    auto &name = get<TextBox>("cast1");
    EXPECT_FALSE(again.isEnabled()) << "the example is there";
    testing::typeOver(name, u"Max"_s);
    EXPECT_EQ(shownText(), u"Max meets Al Ray."_s);
    EXPECT_TRUE(again.isEnabled());
    press(Qt::SHIFT | Qt::Key_Tab);
    EXPECT_TRUE(again.hasFocus());
    press(Qt::Key_Return);
    EXPECT_EQ(shownText(), u"Kit Sample meets Al Ray."_s);
    EXPECT_EQ(name.text(), u"Kit Sample"_s);
    EXPECT_FALSE(again.isEnabled());
    EXPECT_TRUE(name.hasFocus());
}

TEST_F(PaneTest, ShowsTheCastThatAnotherWindowChanged)
{
    open(NormalEndings, {{kFirstLine, u"<recfullname> wins."_s}});
    press(Qt::CTRL | Qt::Key_1);
    QWidget other;
    other.show();
    testing::expectActive(other);
    Cast::ofThisRun().setText(u"<recfullname>"_s, u"Max"_s);
    testing::expectActive(window);
    EXPECT_EQ(shownText(), u"Max wins."_s);
    EXPECT_EQ(get<TextBox>("cast1").text(), u"Max"_s);
    EXPECT_TRUE(get<PushButton>("exampleAgain").isEnabled());
    testing::click(get<PushButton>("exampleAgain"));
    EXPECT_TRUE(Cast::ofThisRun() == Cast::example());
}

TEST_F(PaneTest, ShowsTheConditionsAboveAndFollowsChanges)
{
    open(NormalEndings);
    auto &sentence = get<QLabel>("conditions");
    EXPECT_EQ(sentence.text(), u"Any match."_s);
    typeInto(kAttacker, u"Al Ray"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(sentence.text(), u"Al Ray wins."_s);
}

TEST_F(PaneTest, ShowsThatNoRecordIsChosen)
{
    open(NormalEndings);
    pane.clear();
    EXPECT_EQ(get<QLabel>("conditions").text(), u"No record is chosen."_s);
    EXPECT_FALSE(get<QTabBar>("viewtabs").isVisible());
    EXPECT_TRUE(pane.commit());
    choose(0);
    EXPECT_TRUE(get<QTabBar>("viewtabs").isVisible());
}

TEST_F(PaneTest, TakesNoTextForARecordThatCannotBeChanged)
{
    open(NormalEndings);
    pane.setEditable(false);
    EXPECT_FALSE(editor(kAttacker).isEnabled());
    pane.setEditable(true);
    EXPECT_TRUE(editor(kAttacker).isEnabled());
}

TEST_F(PaneTest, KeepsNoBytesOfTheRecord)
{
    QByteArray bytes = samples::bytes(NormalEndings, {{kFirstLine, u"<recfullname>!"_s}});
    catalog = &Catalog::of(NormalEndings);
    window.show();
    pane.showRecord({QByteArray::fromRawData(bytes.constData(), bytes.size()), *catalog});
    bytes.fill('x');
    QPalette dark = window.palette();
    dark.setColor(QPalette::Base, Qt::black);
    window.setPalette(dark); // writes the commentary anew
    EXPECT_EQ(shownText(), u"Kit Sample!"_s);
}

TEST_F(PaneTest, TellsAssistiveTechnologyTheNameOfEachControl)
{
    for (const DataFileKindRow &kind : kDataFileKinds) {
        open(kind.kind);
        for (QWidget *control : pane.findChildren<QWidget *>()) {
            const bool isStop =
                (control->focusPolicy() & Qt::TabFocus) != 0 && control->focusProxy() == nullptr;
            if (control->isVisible() && isStop) {
                EXPECT_FALSE(testing::spokenName(*control).isEmpty())
                    << control->metaObject()->className() << ' '
                    << control->objectName().toStdString();
                EXPECT_FALSE(control->objectName().isEmpty()) << control->metaObject()->className();
                EXPECT_GE(std::min(control->width(), control->height()), 24);
            }
        }
    }
}

TEST_F(PaneTest, NamesEachListByALabel)
{
    // Qt reports the text of a list as its name, whatever name it was given.
    open(NormalEndings);
    const auto labels =
        QAccessible::queryAccessibleInterface(&combo(kFinisher))->relations(QAccessible::Label);
    ASSERT_EQ(labels.size(), 1);
    EXPECT_EQ(labels.front().first->text(QAccessible::Name), u"Attacker(s) Finisher Type"_s);
}

TEST_F(PaneTest, KeepsAnItemThatIsPickedByKeyboard)
{
    open(NormalEndings);
    pane.goToField(kFinisher - 1);
    settle();
    testing::pickByKeyboard(combo(kFinisher), u"Submission"_s);
    EXPECT_EQ(edits, (Edits{{kFinisher, "s"}}));
}

TEST_F(PaneTest, StopsByTabAtEveryControlInTheOrderOfReading)
{
    open(NormalEndings, {{kFirstLine, u"<recfullname> <titlename>"_s}, {2, u"bad"_s}});
    recordList.hide();
    const auto stops = [this] {
        get<ListBox>("problems").setFocus(Qt::TabFocusReason);
        QStringList found;
        for (const QWidget *stop : testing::tabStops(window)) {
            found << stop->objectName();
        }
        return found;
    };
    QStringList expected = {u"problems"_s, u"viewtabs"_s};
    for (int number = 1; number <= catalog->fieldCount(); ++number) {
        expected << u"field%1"_s.arg(number);
    }
    EXPECT_EQ(stops(), expected);
    pane.setView(RecordPane::View::AsShown);
    EXPECT_EQ(stops(),
              QStringList({u"problems"_s, u"viewtabs"_s, u"shown"_s, u"cast1"_s, u"cast2"_s}));
}

/// Acts with the mouse of the desktop: a drag needs a real one.
void onDesktop(const QStringList &actions)
{
    QProcess xdotool;
    xdotool.start(u"xdotool"_s, actions);
    ASSERT_TRUE(QTest::qWaitFor([&] { return xdotool.state() == QProcess::NotRunning; }, 20'000));
    ASSERT_EQ(xdotool.exitCode(), 0);
}

QStringList moveTo(const QPoint &place)
{
    return {u"mousemove"_s, QString::number(place.x()), QString::number(place.y())};
}

TEST_F(PaneTest, ATextThatWasDraggedOutOnADesktopIsDroppedOnce)
{
    if (QGuiApplication::platformName() == "offscreen"_L1) {
        GTEST_SKIP() << "needs a desktop";
    }
    open(NormalEndings, {{kFirstLine, u"Off the top rope and through the table! "_s.repeated(20)}});
    pane.setView(RecordPane::View::AsShown);
    auto *target = new TextBox(&window);
    target->setMinimumWidth(300);
    window.layout()->addWidget(target);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    QTest::qWait(100); // for the window manager to place it
    auto &shown = get<QTextEdit>("shown");
    shown.setFocus(Qt::OtherFocusReason);
    QTest::keySequence(&shown, QKeySequence::SelectAll);
    const QTextCursor cursor = shown.cursorForPosition({100, 20});
    const QPoint from = shown.viewport()->mapToGlobal(shown.cursorRect(cursor).center());
    const QPoint to = testing::mouse::middleOf(*target);
    // The first movement already leads out: Qt scrolls then. A drag runs an event loop of its own,
    // which only the release ends.
    const QStringList press = {u"mousedown"_s, u"1"_s};
    const QStringList release = {u"sleep"_s, u"0.2"_s, u"mouseup"_s, u"1"_s};
    onDesktop(moveTo(from) + press + moveTo(to) + QStringList{u"sleep"_s, u"0.2"_s} +
              moveTo(to + QPoint(3, 0)) + release);
    const auto drops = [target] { return target->text().count(u"Off the top rope"_s) / 20; };
    ASSERT_TRUE(QTest::qWaitFor([&] { return drops() == 1; }));
    QTest::qWait(500);
    onDesktop({u"click"_s, u"1"_s});
    QTest::qWait(500);
    EXPECT_EQ(drops(), 1);
    EXPECT_TRUE(target->hasFocus());
}

TEST_F(PaneTest, GoesToTheLineOfAProblemThatNamesNoField)
{
    open(NormalEndings);
    pane.goTo({.type = Problem::Type::NoLastLineEnd, .line = 35, .text = {}});
    EXPECT_TRUE(editor(36).hasFocus());
}

TEST_F(PaneTest, ShowsARecordOfAnyLengthAtOnce)
{
    const QString tags = QString(u"<x> "_s).repeated(100'000);
    QByteArray bytes = samples::bytes(NormalEndings, {{kFirstLine, tags}, {kAttacker, tags}});
    bytes += QByteArray("stray\r\n").repeated(100);
    openBytes(NormalEndings, bytes);
    pane.setView(RecordPane::View::AsShown);
    settle();
    EXPECT_TRUE(shownText().startsWith("<x> <x> "_L1));
    EXPECT_TRUE(shownText().endsWith("[...]"_L1));
}

TEST_F(PaneTest, SwitchesRecordsOfAllKindsWithoutMakingTheEditorsAnew)
{
    for (const DataFileKindRow &kind : kDataFileKinds) {
        open(kind.kind);
        const QWidget *first = &editor(1);
        const auto widgets = pane.findChildren<QWidget *>().size();
        choose(1);
        choose(0);
        EXPECT_EQ(pane.findChildren<QWidget *>().size(), widgets);
        EXPECT_EQ(&editor(1), first);
    }
}

} // namespace
} // namespace tarvold::records
