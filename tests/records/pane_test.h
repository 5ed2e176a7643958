#pragma once

#include "controls/combo_box.h"
#include "controls/list_box.h"
#include "controls/push_button.h"
#include "controls/text_box.h"
#include "records/record_pane.h"
#include "records/sample_records.h"
#include "records/wrapped_box.h"
#include "support/boxes.h"
#include "support/events.h"
#include "support/mouse.h"

#include <QHBoxLayout>
#include <QListWidget>
#include <QTest>

namespace tarvold::records {

/// A window with two records and the pane: what the user changes is put into the record at once, as
/// a document would do it.
class PaneTest : public ::testing::Test
{
public:
    PaneTest()
    {
        auto *row = new QHBoxLayout(&window);
        row->addWidget(&recordList);
        row->addWidget(&pane, 1);
        recordList.addItems({u"Record 1"_s, u"Record 2"_s});
        QObject::connect(&pane, &RecordPane::lineEdited, &window, [this](int field, auto &line) {
            edits.emplace_back(field + 1, line);
            records.at(std::size_t(current)) = record().withLine(field, line);
            pane.updateRecord(record());
            pane.setProblems(problems());
        });
        QObject::connect(&recordList, &QListWidget::currentRowChanged, &window, [this](int chosen) {
            if (pane.commit()) {
                choose(chosen);
            } else {
                recordList.setCurrentRow(current);
            }
        });
    }
    ~PaneTest() override { boxes.checkAllCame(); }

protected:
    using Edit = std::pair<int, QByteArray>;

    /// Opens the window with records of a kind; the second is as the screens start.
    void open(DataFileKind kind, const samples::Lines &lines = {})
    {
        openBytes(kind, samples::bytes(kind, lines));
    }

    void openBytes(DataFileKind kind, const QByteArray &bytes)
    {
        catalog = &Catalog::of(kind);
        records = {bytes, samples::bytes(kind)};
        window.resize(1000, 700);
        window.show();
        testing::expectActive(window);
        choose(0);
        EXPECT_FALSE(pane.hasPending());
        pane.setView(RecordPane::View::AsWritten);
        settle();
        EXPECT_EQ(edits, std::vector<Edit>());
    }

    void choose(int index)
    {
        current = index;
        pane.showRecord(record());
        pane.setProblems(problems());
    }

    Record record() const { return {records.at(std::size_t(current)), *catalog}; }

    /// A problem for each line that says "bad", and one for each missing or surplus line.
    std::vector<Problem> problems() const
    {
        std::vector<Problem> found;
        const Record checked = record();
        for (int field = 0; field < catalog->fieldCount(); ++field) {
            const auto line = checked.lineText(field);
            const QString number = QString::number(field + 1);
            if (!line) {
                found.push_back({.type = Problem::Type::MissingLine,
                                 .field = field,
                                 .line = field,
                                 .text = u"Line %1 is missing."_s.arg(number),
                                 .repair = u"Put \"Any\" there"_s,
                                 .repaired = checked.withLine(field, "Any")});
            } else if (line == "bad"_L1) {
                found.push_back({.type = Problem::Type::UnknownWord,
                                 .field = field,
                                 .line = field,
                                 .text = u"Line %1 is bad."_s.arg(number)});
            }
        }
        return found;
    }

    /// What a user would do with a message box or a list between.
    static void settle()
    {
        for (int round = 0; round < 3; ++round) {
            QCoreApplication::processEvents();
        }
    }

    template <typename Widget>
    Widget &get(const char *name)
    {
        auto *found = pane.findChild<Widget *>(QLatin1StringView(name));
        EXPECT_NE(found, nullptr) << name;
        return *found;
    }

    /// The editor of a field, by its number from 1.
    QWidget &editor(int number)
    {
        return get<QWidget>(qPrintable(u"field"_s + QString::number(number)));
    }
    WrappedBox &box(int number) { return dynamic_cast<WrappedBox &>(editor(number)); }
    ComboBox &combo(int number) { return dynamic_cast<ComboBox &>(editor(number)); }

    /// Clicks into an editor, selects its text and types over it.
    void typeInto(int number, const QString &text)
    {
        pane.goToField(number - 1);
        settle();
        testing::mouse::click(testing::mouse::middleOf(editor(number)));
        ASSERT_TRUE(editor(number).hasFocus());
        press(QKeySequence::SelectAll);
        QTest::keyClicks(&editor(number), text);
    }

    void press(const QKeySequence &keys)
    {
        QTest::keySequence(window.windowHandle(), keys);
        settle();
    }
    void press(Qt::Key key)
    {
        QTest::keyClick(window.windowHandle(), key);
        settle();
    }

    void clickRow(int row)
    {
        const QRect place = recordList.visualItemRect(recordList.item(row));
        testing::mouse::click(recordList.viewport()->mapToGlobal(place.center()));
        settle();
    }

    QString shownText() { return get<QTextEdit>("shown").toPlainText(); }

    testing::Boxes boxes;
    QWidget window;
    QListWidget recordList;
    RecordPane pane;
    const Catalog *catalog = nullptr;
    std::vector<QByteArray> records;
    int current = 0;
    std::vector<Edit> edits; ///< number of the field and its new line
};

} // namespace tarvold::records
