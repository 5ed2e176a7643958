// The import screen by keyboard, for assistive technology, and while it is busy.

#include "import/import_test.h"

#include <QAccessible>
#include <QSet>
#include <QTest>

#include <sys/syscall.h>
#include <unistd.h>

namespace {

using namespace Qt::StringLiterals;

/// The shape of the pointer at each fsync().
QList<Qt::CursorShape> cursorsAtSync; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

Qt::CursorShape shownCursor()
{
    const QCursor *cursor = QGuiApplication::overrideCursor();
    return cursor == nullptr ? Qt::ArrowCursor : cursor->shape();
}

} // namespace

/// Replaces the system's own: the one moment of a merge at which a test can look.
int fsync(int handle) // NOLINT(readability-inconsistent-declaration-parameter-name)
{
    cursorsAtSync << shownCursor();
    return int(::syscall(SYS_fsync, handle));
}

namespace tarvold::testing {
namespace {

class ImportUse : public ImportTest
{
protected:
    static void key(int key, Qt::KeyboardModifiers modifiers = {})
    {
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }

    /// Presses Tab until the control has the focus.
    void tabTo(const char *name)
    {
        for (int steps = 0; steps < 20; ++steps) {
            if (control("Form2", name).hasFocus()) {
                return;
            }
            key(Qt::Key_Tab);
        }
        ADD_FAILURE() << "Tab does not lead to " << name;
    }

    /// The controls that Tab leads through, starting at the one that has the focus.
    static QStringList tabOrder()
    {
        QStringList names;
        while (!names.contains(QApplication::focusWidget()->objectName())) {
            names << QApplication::focusWidget()->objectName();
            key(Qt::Key_Tab);
        }
        return names;
    }

    /// Fails unless all controls that can have the focus have names of their own.
    void expectDistinctNames()
    {
        QSet<QString> names;
        for (const QWidget *child : screen("Form2").findChildren<QWidget *>()) {
            if (!child->isVisible() || (child->focusPolicy() & Qt::TabFocus) == 0) {
                continue;
            }
            const QAccessibleInterface *spoken =
                QAccessible::queryAccessibleInterface(const_cast<QWidget *>(child));
            const QString name = spoken->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty()) << child->objectName().toStdString();
            EXPECT_FALSE(names.contains(name)) << name.toStdString();
            names << name;
        }
        EXPECT_GE(names.size(), 4);
    }
};

TEST_F(ImportUse, ImportsByKeyboardAlone)
{
    putBytes(u"a.tvd"_s, recordOf(19, {"1"}));
    putBytes(u"b.tvd"_s, recordOf(19, {"2"}));
    enter();
    tabTo("Command6");
    key(Qt::Key_Space);
    expectStage2();
    EXPECT_TRUE(files().hasFocus());
    key(Qt::Key_Down);
    key(Qt::Key_Down);
    EXPECT_EQ(selected(), u"b.tvd"_s);
    tabTo("Text1");
    QTest::keySequence(screen("Form2").windowHandle(), QKeySequence::SelectAll);
    QTest::keyClicks(QApplication::focusWidget(), u"c.tvd"_s);
    tabTo("Command8");
    boxes.expectNotice(u"Import"_s, u"Import Complete."_s, Answer::Enter);
    key(Qt::Key_Space);
    boxes.checkAllCame();
    expectStage1();
    EXPECT_EQ(bytesIn(u"c.tvd"_s), recordOf(19, {"2"}));
}

TEST_F(ImportUse, TabFollowsThePlacesOfTheControls)
{
    enter();
    control("Form2", "Command2").setFocus();
    EXPECT_EQ(tabOrder(), QStringList({u"Command2"_s, u"Command3"_s, u"Command4"_s, u"Command5"_s,
                                       u"Command6"_s, u"Command7"_s, u"Command1"_s}));
    press("Form2", "Command2");
    EXPECT_EQ(tabOrder(), QStringList({u"File1"_s, u"Text1"_s, u"Command9"_s, u"Command8"_s}));
}

TEST_F(ImportUse, SomethingHasTheFocusAfterCancelAndAfterAnImport)
{
    putBytes(u"a.tvd"_s, {});
    enter();
    press("Form2", "Command6");
    press("Form2", "Command9");
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_TRUE(QApplication::focusWidget()->isVisible());
    press("Form2", "Command6");
    select(u"a.tvd"_s);
    import();
    expectReachable(control("Form2", "Command1"));
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    EXPECT_TRUE(QApplication::focusWidget()->isVisible());
}

TEST_F(ImportUse, AllControlsHaveNamesOfTheirOwn)
{
    enter();
    expectDistinctNames();
    press("Form2", "Command3");
    expectDistinctNames();
}

TEST_F(ImportUse, AllControlsAreLargeEnoughToBeClicked)
{
    putBytes(u"a.tvd"_s, {});
    enter();
    press("Form2", "Command3");
    for (const char *name : {"Text1", "Command8", "Command9"}) {
        EXPECT_GE(control("Form2", name).height(), 24) << name;
    }
    EXPECT_GE(files().visualRect(files().model()->index(0, 0)).height(), 24);
}

TEST_F(ImportUse, MessagesShowMarkupAsText)
{
    putBytes(u"a.tvd"_s, recordOf(19, {"<b>Any</b>", "&Cage"}));
    putBytes(u"stipulations.tvd"_s, recordOf(19, {"<b>Any</b>", "&Cage"}));
    enter();
    press("Form2", "Command4");
    select(u"a.tvd"_s);
    boxes.expectNotice(u"Match Duplication"_s,
                       u"The combination of match type: <b>Any</b> and stipulation: "
                       "&Cage are already in the file stipulations.tvd so will not "
                       "be imported."_s);
    import();
}

/// Records the shape of the pointer while message boxes wait.
class CursorAtBoxes : public QObject
{
public:
    QList<Qt::CursorShape> shapes;

    CursorAtBoxes() { qApp->installEventFilter(this); }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->inherits("QMessageBox")) {
            shapes << shownCursor();
        }
        return false;
    }
};

class ImportCursor : public ImportUse
{
protected:
    ImportCursor()
    {
        putBytes(u"a.tvd"_s, recordOf(19, {"Any", "Cage"}) + recordOf(19, {"Any", "Ladder"}));
        putBytes(u"stipulations.tvd"_s, recordOf(19, {"Any", "Cage"}));
        enter();
        press("Form2", "Command4");
        select(u"a.tvd"_s);
        cursorsAtSync.clear();
    }

    CursorAtBoxes watch;
};

TEST_F(ImportCursor, IsBusyDuringTheMergeAndNotDuringMessageBoxes)
{
    boxes.expectNotice(u"Match Duplication"_s,
                       u"The combination of match type: Any and stipulation: Cage "
                       "are already in the file stipulations.tvd so will not be "
                       "imported."_s);
    import();
    EXPECT_EQ(watch.shapes, QList<Qt::CursorShape>(2, Qt::ArrowCursor));
    // One for the file, one for its folder.
    EXPECT_EQ(cursorsAtSync, QList<Qt::CursorShape>(2, Qt::WaitCursor));
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

TEST_F(ImportCursor, IsNotLeftBusyByAFailure)
{
    QString said;
    ASSERT_TRUE(QFile::remove(u"stipulations.tvd"_s));
    boxes.catchNotice(u"Import"_s, &said);
    press("Form2", "Command8");
    EXPECT_EQ(watch.shapes, QList<Qt::CursorShape>{Qt::ArrowCursor});
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
}

} // namespace
} // namespace tarvold::testing
