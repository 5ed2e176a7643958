#include "controls/message_box.h"
#include "look/checks.h"
#include "look/parts.h"
#include "look/views.h"
#include "records/catalog.h"
#include "records/records_window.h"
#include "support/folder_test.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QTest>

#include <functional>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

QByteArray endings(int count)
{
    const auto &catalog = records::Catalog::of(DataFileKind::NormalEndings);
    QByteArray bytes;
    for (int number = 1; number <= count; ++number) {
        for (int place = 0; place < catalog.fieldCount(); ++place) {
            bytes +=
                place == catalog.firstCommentary()
                    ? "Ending " + QByteArray::number(number) + (number % 3 == 2 ? " <unknown>" : "")
                    : catalog.fields().at(std::size_t(place)).newText.toLatin1();
            bytes += "\r\n";
        }
    }
    return bytes;
}

/// A records window in a state that changes its look.
struct RecordsView
{
    const char *name;
    const char *file;
    void (*prepare)(records::RecordsWindow &);
};

void press(records::RecordsWindow &window, const QKeySequence &keys)
{
    QTest::keySequence(window.windowHandle(), keys);
}

void goToRow(records::RecordsWindow &window, int row)
{
    auto *list = window.findChild<QAbstractItemView *>(u"list"_s);
    list->setFocus();
    list->setCurrentIndex(list->model()->index(row, 0));
}

void changeAll(records::RecordsWindow &window)
{
    goToRow(window, 2);
    press(window, Qt::Key_Delete);
    goToRow(window, 3);
    press(window, Qt::CTRL | Qt::Key_D);
    goToRow(window, 0);
}

const RecordsView kRecordsViews[] = {
    {"RecordsAsShown", "records.tvd", [](records::RecordsWindow &) {}},
    {"RecordsWithAProblem", "records.tvd",
     [](records::RecordsWindow &window) { goToRow(window, 1); }},
    {"RecordsAsWritten", "records.tvd",
     [](records::RecordsWindow &window) { press(window, Qt::CTRL | Qt::Key_2); }},
    {"RecordsChanged", "records.tvd", changeAll},
    {"RecordsMissing", "missing.tvd", [](records::RecordsWindow &) {}},
};

struct RecordsLook
{
    RecordsView view;
    Colours colours;
};

std::vector<RecordsLook> recordsLooks()
{
    std::vector<RecordsLook> looks;
    for (const RecordsView &view : kRecordsViews) {
        looks.push_back({view, Colours::Light});
        looks.push_back({view, Colours::Dark});
    }
    return looks;
}

std::string nameOfRecordsLook(const ::testing::TestParamInfo<RecordsLook> &row)
{
    return std::string(row.param.view.name) +
           (row.param.colours == Colours::Dark ? "_dark" : "_light");
}

/// The window beside the editor's screens that shows the records of a file.
class RecordsLookTest : public ::testing::WithParamInterface<RecordsLook>,
                        private PaletteGuard,
                        public FolderTest
{
public:
    RecordsLookTest() : PaletteGuard(GetParam().colours) { writeFile("records.tvd", endings(40)); }
    ~RecordsLookTest() override { qDeleteAll(records::RecordsWindow::all()); }

protected:
    void SetUp() override
    {
        m_window = records::RecordsWindow::open(QLatin1StringView(GetParam().view.file));
        ASSERT_TRUE(QTest::qWaitForWindowActive(m_window));
        auto *progress = m_window->findChild<QWidget *>(u"progress"_s);
        ASSERT_TRUE(QTest::qWaitFor([progress] { return !progress->isVisible(); }));
        for (QLineEdit *box : parts::visible<QLineEdit>(*m_window)) {
            if (box->text().isEmpty()) {
                box->setText(u"Ending"_s); // finds all
            }
        }
        GetParam().view.prepare(*m_window);
        QTest::qWait(50);
    }

    Scene scene()
    {
        const bool isDark = GetParam().colours == Colours::Dark;
        return {QLatin1StringView(GetParam().view.name), isDark ? u"dark"_s : u"light"_s,
                *m_window};
    }

private:
    records::RecordsWindow *m_window = nullptr;
};

} // namespace

TEST_P(RecordsLookTest, EveryTextIsReadable)
{
    checks::expectReadable(scene());
    checks::expectReadableSelections(scene());
}

TEST_P(RecordsLookTest, EveryRowIsReadable)
{
    const auto *list = scene().window.findChild<QAbstractItemView *>(u"list"_s);
    for (int row = 0; list->isVisible() && row < 5; ++row) {
        checks::expectReadableRow(scene(), "Text: rows of lists", *list, row);
    }
}

TEST_P(RecordsLookTest, EveryControlIsVisible)
{
    checks::expectVisibleControls(scene());
}

TEST_P(RecordsLookTest, EveryControlHasAFocusMark)
{
    checks::expectFocusMarks(scene());
}

TEST_P(RecordsLookTest, EveryTargetIsLargeEnough)
{
    checks::expectLargeTargets(scene());
}

TEST_P(RecordsLookTest, NothingIsCutAndAllIsOnTheScreen)
{
    checks::expectNothingCut(scene());
    checks::expectAllOnScreen(scene());
}

INSTANTIATE_TEST_SUITE_P(All, RecordsLookTest, ::testing::ValuesIn(recordsLooks()),
                         nameOfRecordsLook);

} // namespace tarvold::testing
