#include "controls/text_box.h"
#include "datafiles/data_file_kind.h"
#include "screens/main_menu.h"
#include "screens/screens.h"
#include "support/boxes.h"
#include "support/events.h"

#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QUrl>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

struct RowOfMenu
{
    const char *button;
    const char *box;
    DataFileKind kind;
    const char *name;
};

constexpr RowOfMenu kRowsOfMenu[] = {
    {"Command1", "Text1", DataFileKind::Stipulations, "stipulations.tvd"},
    {"Command3", "Text3", DataFileKind::NormalEndings, "normreports.tvd"},
    {"Command4", "Text4", DataFileKind::RunInEndings, "feudreports.tvd"},
    {"Command5", "Text5", DataFileKind::TurnEndings, "turnreports.tvd"},
    {"Command6", "Text6", DataFileKind::Interviews, "interviews.tvd"},
    {"Command7", "Text7", DataFileKind::TalkShows, "talkshow.tvd"},
};

QMimeData *files(const QStringList &paths)
{
    auto *data = new QMimeData;
    QList<QUrl> urls;
    for (const QString &path : paths) {
        urls << QUrl::fromLocalFile(path);
    }
    data->setUrls(urls);
    data->setText(paths.join(u' ')); // as file managers do
    return data;
}

/// The main menu alone: nobody answers what it signals.
class LookThrough : public ::testing::Test
{
protected:
    LookThrough()
    {
        menu.show();
        expectActive(menu);
    }

    /// The context menu that the control opens.
    static QMenu *contextMenuOf(QWidget &control)
    {
        QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(3, 3),
                                control.mapToGlobal(QPoint(3, 3)));
        QCoreApplication::sendEvent(&control, &event);
        return qobject_cast<QMenu *>(QApplication::activePopupWidget());
    }

    static QAction *entryOf(const QMenu *opened)
    {
        return opened != nullptr ? opened->findChild<QAction *>(u"lookthrough"_s) : nullptr;
    }

    /// Drags and drops; returns the action that the source is told.
    static Qt::DropAction drop(QWidget &target, QMimeData *data, Qt::DropActions possible)
    {
        const std::unique_ptr<QMimeData> dragged(data);
        const QPoint place(4, 4);
        QDragEnterEvent enter(place, possible, data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QCoreApplication::sendEvent(&target, &enter);
        if (!enter.isAccepted()) {
            return Qt::IgnoreAction;
        }
        QDropEvent event(place, possible, data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&target, &event);
        QCoreApplication::processEvents();
        return event.isAccepted() ? event.dropAction() : Qt::IgnoreAction;
    }

    Screens screens;
    Form1 menu{screens};
    QSignalSpy asked{&menu, &Form1::lookThrough};
    QSignalSpy dropped{&menu, &Form1::fileDropped};

    void expectAsked(const RowOfMenu &row)
    {
        ASSERT_EQ(asked.count(), 1);
        EXPECT_EQ(asked.front().at(0).value<DataFileKind>(), row.kind);
        EXPECT_EQ(asked.front().at(1).toString(), QLatin1StringView(row.name));
        asked.clear();
    }
};

TEST_F(LookThrough, TheKeysMeanTheFileOfTheRowWithTheFocus)
{
    for (const RowOfMenu &row : kRowsOfMenu) {
        for (const char *name : {row.button, row.box}) {
            SCOPED_TRACE(name);
            menu.control(name).setFocus();
            QTest::keyClick(&menu.control(name), Qt::Key_O, Qt::ControlModifier);
            expectAsked(row);
        }
    }
}

TEST_F(LookThrough, ElsewhereTheKeysMeanNoFile)
{
    for (const char *name : {"Command8", "Command2"}) {
        menu.control(name).setFocus();
        QTest::keyClick(&menu.control(name), Qt::Key_O, Qt::ControlModifier);
        EXPECT_EQ(asked.count(), 0) << name;
    }
}

TEST_F(LookThrough, TheKeysTakeTheNameAsItIsTyped)
{
    typeOver(menu.control("Text4"), u"sub/my own"_s);
    QTest::keyClick(&menu.control("Text4"), Qt::Key_O, Qt::ControlModifier);
    ASSERT_EQ(asked.count(), 1);
    EXPECT_EQ(asked.front().at(1).toString(), u"sub/my own"_s);
}

TEST_F(LookThrough, ContextMenusOfButtonsHaveTheEntryAlone)
{
    for (const RowOfMenu &row : kRowsOfMenu) {
        SCOPED_TRACE(row.button);
        QMenu *opened = contextMenuOf(menu.control(row.button));
        ASSERT_NE(entryOf(opened), nullptr);
        EXPECT_EQ(opened->actions().size(), 1);
        EXPECT_EQ(entryOf(opened)->text(),
                  u"Look Through %1\tCtrl+O"_s.arg(QLatin1StringView(row.name)));
        entryOf(opened)->trigger();
        expectAsked(row);
        opened->close();
    }
}

TEST_F(LookThrough, ContextMenusOfBoxesKeepTheirOwnEntries)
{
    for (const RowOfMenu &row : kRowsOfMenu) {
        SCOPED_TRACE(row.box);
        auto &box = menu.control<TextBox>(row.box);
        const std::unique_ptr<QMenu> own(box.createStandardContextMenu());
        QMenu *opened = contextMenuOf(box);
        ASSERT_NE(entryOf(opened), nullptr);
        ASSERT_EQ(opened->actions().size(), own->actions().size() + 2); // and a separator
        for (qsizetype place = 0; place < own->actions().size(); ++place) {
            EXPECT_EQ(opened->actions().at(place)->text(), own->actions().at(place)->text());
        }
        EXPECT_EQ(opened->actions().constLast(), entryOf(opened));
        entryOf(opened)->trigger();
        expectAsked(row);
        opened->close();
    }
}

TEST_F(LookThrough, TheEntryShowsAnyNameAsPlainText)
{
    menu.setText("Text3", u"sub/this & that\there.tvd"_s);
    QMenu *opened = contextMenuOf(menu.control("Command3"));
    ASSERT_NE(entryOf(opened), nullptr);
    EXPECT_EQ(entryOf(opened)->text(), u"Look Through this && that here.tvd\tCtrl+O"_s);
    opened->close();
}

TEST_F(LookThrough, WithoutANameThereIsNothingToLookThrough)
{
    menu.setText("Text3", {});
    QMenu *opened = contextMenuOf(menu.control("Text3"));
    ASSERT_NE(entryOf(opened), nullptr);
    EXPECT_FALSE(entryOf(opened)->isEnabled());
    opened->close();
}

TEST_F(LookThrough, EveryDroppedDataFileIsSignalledOnce)
{
    const Qt::DropAction action =
        drop(menu, files({u"/folder/a.tvd"_s, u"/folder/b.txt"_s, u"/folder/C.TVD"_s}),
             Qt::CopyAction | Qt::MoveAction);
    EXPECT_EQ(action, Qt::CopyAction);
    ASSERT_EQ(dropped.count(), 2);
    EXPECT_EQ(dropped.at(0).at(0).toString(), u"/folder/a.tvd"_s);
    EXPECT_EQ(dropped.at(1).at(0).toString(), u"/folder/C.TVD"_s);
}

TEST_F(LookThrough, AFileDroppedOnABoxIsNoText)
{
    EXPECT_EQ(drop(menu.control("Text3"), files({u"/folder/a.tvd"_s}), Qt::CopyAction),
              Qt::CopyAction);
    EXPECT_EQ(dropped.count(), 1);
    EXPECT_EQ(menu.text("Text3"), u"normreports.tvd"_s);
}

TEST_F(LookThrough, ATextDroppedOnABoxIsText)
{
    auto *text = new QMimeData;
    text->setText(u"my "_s);
    EXPECT_NE(drop(menu.control("Text3"), text, Qt::CopyAction), Qt::IgnoreAction);
    EXPECT_EQ(dropped.count(), 0);
    EXPECT_TRUE(menu.text("Text3").contains(u"my "_s)) << menu.text("Text3").toStdString();
}

TEST_F(LookThrough, OtherFilesAndFilesToBeMovedAreRefused)
{
    EXPECT_EQ(drop(menu, files({u"/folder/b.txt"_s}), Qt::CopyAction), Qt::IgnoreAction);
    EXPECT_EQ(drop(menu, files({u"/folder/a.tvd"_s}), Qt::MoveAction), Qt::IgnoreAction);
    EXPECT_EQ(dropped.count(), 0);
}

} // namespace
} // namespace tarvold::testing
