// Records windows with changes beside the editor's own flows and beside each other.

#include "controls/message_box.h"
#include "records/records_window.h"
#include "support/flow_test.h"

#include <QAbstractItemView>
#include <QAction>
#include <QFile>
#include <QTest>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using records::RecordsWindow;

namespace {

class EditorChanges : public FlowTest
{
public:
    EditorChanges() = default;
    ~EditorChanges() override
    {
        // What a test changed is not worth a question.
        qDeleteAll(RecordsWindow::all());
    }
    Q_DISABLE_COPY_MOVE(EditorChanges)

protected:
    static QByteArray exampleOf(const char *name)
    {
        QFile file(QStringLiteral(TARVOLD_EXAMPLES "/") + QLatin1StringView(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }

    static RecordsWindow &openWindow(const char *name, DataFileKind kind)
    {
        RecordsWindow *window = RecordsWindow::open(QLatin1StringView(name), kind);
        expectActive(*window);
        return *window;
    }

    static void trigger(RecordsWindow &window, const char *name)
    {
        auto *action = window.findChild<QAction *>(QLatin1StringView(name));
        ASSERT_TRUE(action != nullptr && action->isEnabled()) << name;
        action->trigger();
    }

    static int rowsOf(const RecordsWindow &window)
    {
        return window.findChild<QAbstractItemView *>(u"list"_s)->model()->rowCount();
    }
};

TEST_F(EditorChanges, AnAppendByAFlowJoinsTheChangesOfAWindow)
{
    const QByteArray bytes = exampleOf("interviews.tvd");
    writeFile("interviews.tvd", bytes);
    goToCommentary(kInterviewPath);
    type("Form13", "Text1", u"Written meanwhile"_s);
    RecordsWindow &window = openWindow("interviews.tvd", DataFileKind::Interviews);
    const int rows = rowsOf(window);
    trigger(window, "duplicate");
    ASSERT_EQ(rowsOf(window), rows + 1);
    EXPECT_EQ(text("Form13", "Text1"), u"Written meanwhile"_s);
    boxes.expectQuestion(title(), QLatin1StringView(kInterviewPath.question), Answer::Yes);
    boxes.expectNotice(title(), u"Saved OK."_s);
    press("Form13", "Command1");
    boxes.checkAllCame();
    const QByteArray appended = readBack("interviews.tvd");
    EXPECT_TRUE(appended.startsWith(bytes) && appended.contains("Written meanwhile"));
    EXPECT_TRUE(QTest::qWaitFor([&window, rows] { return rowsOf(window) == rows + 2; }));
    EXPECT_TRUE(window.isWindowModified());
    trigger(window, "save");
    EXPECT_FALSE(window.isWindowModified());
    const QByteArray saved = readBack("interviews.tvd");
    EXPECT_TRUE(saved.endsWith(appended.sliced(bytes.size())));
    EXPECT_GT(saved.size(), appended.size()) << "the duplicate";
    trigger(window, "undo");
    trigger(window, "save");
    EXPECT_EQ(readBack("interviews.tvd"), appended);
}

TEST_F(EditorChanges, TwoWindowsChangeTheirOwnFilesAlone)
{
    const QByteArray endings = exampleOf("normreports.tvd");
    const QByteArray interviews = exampleOf("interviews.tvd");
    writeFile("normreports.tvd", endings);
    writeFile("interviews.tvd", interviews);
    RecordsWindow &one = openWindow("normreports.tvd", DataFileKind::NormalEndings);
    RecordsWindow &other = openWindow("interviews.tvd", DataFileKind::Interviews);
    trigger(one, "duplicate");
    trigger(other, "delete");
    trigger(one, "save");
    EXPECT_FALSE(one.isWindowModified());
    EXPECT_TRUE(other.isWindowModified());
    EXPECT_GT(readBack("normreports.tvd").size(), endings.size());
    EXPECT_EQ(readBack("interviews.tvd"), interviews);
    trigger(other, "undo");
    EXPECT_FALSE(other.isWindowModified());
    trigger(one, "undo");
    trigger(one, "save");
    EXPECT_EQ(readBack("normreports.tvd"), endings);
    trigger(other, "redo");
    trigger(other, "save");
    EXPECT_LT(readBack("interviews.tvd").size(), interviews.size());
    EXPECT_EQ(readBack("normreports.tvd"), endings);
}

} // namespace
} // namespace tarvold::testing
