#include "look/checks.h"
#include "look/parts.h"
#include "look/picture.h"
#include "look/views.h"
#include "records/file_chooser.h"
#include "records/records_window.h"
#include "support/contrast.h"
#include "support/events.h"
#include "support/folder_test.h"

#include <QLineEdit>
#include <QTest>
#include <QTextEdit>
#include <QTreeView>

#include <memory>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// The windows of the records, in states that change their look.
enum class RecordsView { AsShown, AsWritten, Problems, Unreadable, Chooser };

constexpr std::pair<RecordsView, const char *> kRecordsViews[] = {
    {RecordsView::AsShown, "RecordsAsShown"},       {RecordsView::AsWritten, "RecordsAsWritten"},
    {RecordsView::Problems, "RecordsWithProblems"}, {RecordsView::Unreadable, "RecordsUnreadable"},
    {RecordsView::Chooser, "RecordFiles"},
};

using RecordsLook = std::tuple<std::pair<RecordsView, const char *>, Colours>;

const char *paletteOf(const RecordsLook &look)
{
    return std::get<Colours>(look) == Colours::Dark ? "dark" : "light";
}

/// An ending whose names the record leaves open.
QByteArray openEnding(const QByteArray &firstLine, bool isWhole = true)
{
    QByteArray bytes = "Singles\r\nAny\r\nN/A\r\nN/A\r\nNormal\r\nN/A\r\n";
    bytes += "Any\r\nAny\r\nAny\r\nAny\r\nN/A\r\nAny\r\nN/A\r\nN/A\r\n";
    bytes += isWhole ? "Any\r\nN/A\r\n" : "N/A\r\n";
    bytes += "Any\r\nAny\r\nAny\r\nAny\r\nN/A\r\nN/A\r\nN/A\r\nN/A\r\nAny\r\nN/A\r\n";
    return bytes + firstLine + "\r\n" + QByteArray("-BLANK-\r\n").repeated(9);
}

class RecordsLookTest : public ::testing::WithParamInterface<RecordsLook>,
                        private PaletteGuard,
                        public FolderTest
{
public:
    RecordsLookTest() : PaletteGuard(std::get<Colours>(GetParam())) {}
    ~RecordsLookTest() override
    {
        qDeleteAll(records::RecordsWindow::all());
        delete m_chooser;
    }

protected:
    void SetUp() override
    {
        QByteArray bytes = openEnding("<att1fullname> wins, <nosuchtag>.");
        bytes += openEnding("<recshortnam> loses to <att1fullname>.", false);
        bytes += openEnding("<att1fullname> pins <recfullname>.").repeated(60);
        writeFile("season.tvd", bytes);
        switch (view()) {
        case RecordsView::Chooser:
            m_chooser = new records::FileChooser;
            m_window = m_chooser;
            m_window->show();
            break;
        case RecordsView::Unreadable:
            m_window = records::RecordsWindow::open(u"missing.tvd"_s);
            break;
        default:
            m_window = records::RecordsWindow::open(u"season.tvd"_s, DataFileKind::NormalEndings);
            auto *progress = m_window->findChild<QWidget *>(u"progress"_s);
            ASSERT_TRUE(QTest::qWaitFor([progress] { return !progress->isVisible(); }));
        }
        expectActive(*m_window);
        showView();
    }

    void showView()
    {
        if (view() == RecordsView::AsWritten || view() == RecordsView::AsShown) {
            QTest::keyClick(m_window->windowHandle(), Qt::Key_End); // a record without problems
        }
        if (view() == RecordsView::AsWritten || view() == RecordsView::Problems) {
            QTest::keyClick(m_window->windowHandle(), Qt::Key_2, Qt::ControlModifier);
        }
        if (auto *search = m_window->findChild<QLineEdit *>(u"search"_s)) {
            search->setText(u"a"_s); // is in all records
        }
        QCoreApplication::processEvents();
    }

    static RecordsView view() { return std::get<0>(GetParam()).first; }

    Scene scene()
    {
        return {QLatin1StringView(std::get<0>(GetParam()).second),
                QLatin1StringView(paletteOf(GetParam())), *m_window};
    }

    static bool hasSearch()
    {
        return view() != RecordsView::Chooser && view() != RecordsView::Unreadable;
    }
    /// What ends the search.
    QWidget &cross() { return *scene().window.findChild<QWidget *>(u"clearSearch"_s); }

    /// Expects enough contrast of the text in a part of the window.
    void expectText(const char *sort, const QString &part, const QRect &place)
    {
        figures::expectAtLeast(scene(), sort, part, Picture(*m_window, place).textContrast(place),
                               contrast::kText);
    }

    /// Each cell of the first rows, the selected one among them, that holds a text.
    void expectReadableCells(QTreeView &list)
    {
        list.scrollToTop();
        for (int row = 0; row < 4; ++row) {
            for (int column = 0; column < list.model()->columnCount(); ++column) {
                const QModelIndex cell = list.model()->index(row, column);
                const QRect room = list.visualRect(cell);
                if (cell.data().toString().isEmpty() || !list.viewport()->rect().contains(room)) {
                    continue;
                }
                expectText("Text: rows of lists", u"cell %1, %2"_s.arg(row).arg(column),
                           parts::placeOf(*list.viewport(), room.adjusted(3, 3, -3, -3)));
            }
        }
    }

private:
    QWidget *m_window = nullptr;
    QWidget *m_chooser = nullptr;
};

std::string nameOfRecordsLook(const ::testing::TestParamInfo<RecordsLook> &row)
{
    return std::string(std::get<0>(row.param).second) + '_' + paletteOf(row.param);
}

} // namespace

TEST_P(RecordsLookTest, EveryTextIsReadable)
{
    checks::expectReadable(scene());
    for (QTreeView *list : parts::visible<QTreeView>(scene().window)) {
        expectReadableCells(*list);
    }
    for (QTextEdit *text : parts::visible<QTextEdit>(scene().window)) {
        if (!text->toPlainText().isEmpty()) {
            parts::reveal(*text);
            expectText("Text: in boxes", parts::nameOf(*text),
                       parts::placeOf(*text, text->rect().adjusted(4, 4, -4, -4)));
        }
    }
}

TEST_P(RecordsLookTest, EveryControlIsVisible)
{
    checks::expectVisibleControls(scene());
    if (hasSearch()) {
        ASSERT_TRUE(cross().isVisible());
        const QRect place = parts::placeOf(cross());
        EXPECT_GE(Picture(scene().window, place).textContrast(place), contrast::kControl);
    }
}

TEST_P(RecordsLookTest, EveryControlHasAFocusMark)
{
    checks::expectFocusMarks(scene());
}

TEST_P(RecordsLookTest, EveryTargetIsLargeEnough)
{
    checks::expectLargeTargets(scene());
    for (const QTreeView *list : parts::visible<QTreeView>(scene().window)) {
        checks::expectLargeRows(scene(), "Target: rows of lists", *list);
    }
    if (hasSearch()) { // the cross is no Tab stop, and so none of the targets above
        figures::expectAtLeast(scene(), "Target: buttons", cross().objectName(),
                               std::min(cross().width(), cross().height()), 24);
    }
}

TEST_P(RecordsLookTest, NoTextIsCutOff)
{
    checks::expectNothingCut(scene());
}

TEST_P(RecordsLookTest, EverythingIsOnTheScreen)
{
    checks::expectAllOnScreen(scene());
}

TEST_P(RecordsLookTest, NothingOverlaps)
{
    checks::expectNoOverlaps(scene());
}

INSTANTIATE_TEST_SUITE_P(All, RecordsLookTest,
                         ::testing::Combine(::testing::ValuesIn(kRecordsViews),
                                            ::testing::Values(Colours::Light, Colours::Dark)),
                         nameOfRecordsLook);

} // namespace tarvold::testing
