#include "records/window_fixture.h"

#include "records/catalog.h"
#include "records/lines.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QTextEdit>
#include <QTreeView>

namespace tarvold::testing {

RecordsWindowTest::~RecordsWindowTest()
{
    boxes.checkAllCame();
    dialogs.checkAllCame();
    qDeleteAll(records::RecordsWindow::all());
}

QByteArray RecordsWindowTest::ending(const QByteArray &text, const QByteArray &matchType)
{
    const auto &catalog = records::Catalog::of(DataFileKind::NormalEndings);
    QByteArray bytes;
    for (int place = 0; place < catalog.fieldCount(); ++place) {
        QByteArray line = catalog.fields().at(std::size_t(place)).newText.toLatin1();
        if (place == 0) {
            line = matchType;
        } else if (place == catalog.firstCommentary()) {
            line = text;
        }
        bytes += line + "\r\n";
    }
    return bytes;
}

QByteArray RecordsWindowTest::endings(int count, int first)
{
    QByteArray bytes;
    for (int number = first; number < first + count; ++number) {
        bytes += ending("Ending " + QByteArray::number(number));
    }
    return bytes;
}

void RecordsWindowTest::open(const QByteArray &bytes, const char *file)
{
    writeFile(file, bytes);
    openFile(file);
    ASSERT_TRUE(window().isLoaded());
    auto &progress = part<QWidget>("progress");
    ASSERT_TRUE(QTest::qWaitFor([&progress] { return !progress.isVisible(); }, 60'000));
}

void RecordsWindowTest::openFile(const char *file)
{
    m_window = records::RecordsWindow::open(QString::fromUtf8(file));
    expectActive(window());
    const auto &counts = part<QLabel>("counts");
    ASSERT_TRUE(QTest::qWaitFor([&counts] { return counts.text() != u"Reading..."_s; }, 60'000));
}

void RecordsWindowTest::press(const QKeySequence &keys)
{
    expectActive(window());
    QTest::keySequence(window().windowHandle(), keys);
}

void RecordsWindowTest::clickRow(int row)
{
    expectReachable(list());
    const QRect place = list().visualRect(list().model()->index(row, 0));
    ASSERT_TRUE(list().viewport()->rect().intersects(place)) << "row " << row << " is not in sight";
    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place.center());
}

QStringList RecordsWindowTest::column(const QString &head)
{
    QStringList texts;
    for (int row = 0; row < list().model()->rowCount(); ++row) {
        texts << cell(row, head);
    }
    return texts;
}

QString RecordsWindowTest::cell(int row, const QString &head)
{
    const QAbstractItemModel &model = *list().model();
    for (int column = 0; column < model.columnCount(); ++column) {
        if (model.headerData(column, Qt::Horizontal).toString() == head) {
            return model.index(row, column).data().toString();
        }
    }
    ADD_FAILURE() << "no column " << head.toStdString();
    return {};
}

std::vector<int> RecordsWindowTest::selectedRows()
{
    std::vector<int> rows;
    for (const QModelIndex &index : list().selectionModel()->selectedRows()) {
        rows.push_back(index.row());
    }
    std::sort(rows.begin(), rows.end());
    return rows;
}

QWidget &RecordsWindowTest::field(int number)
{
    press(Qt::CTRL | Qt::Key_2);
    return part<QWidget>(qPrintable(u"field%1"_s.arg(number)));
}

QString RecordsWindowTest::fieldText(int number)
{
    QWidget &editor = part<QWidget>(qPrintable(u"field%1"_s.arg(number)));
    if (const auto *combo = qobject_cast<QComboBox *>(&editor)) {
        return combo->currentText();
    }
    return dynamic_cast<QTextEdit &>(editor).toPlainText();
}

void RecordsWindowTest::typeInto(int number, const QString &text)
{
    QWidget &editor = field(number);
    editor.setFocus(Qt::MouseFocusReason);
    expectReachable(editor);
    press(QKeySequence::SelectAll);
    for (const QChar character : text) {
        QTest::keyClick(window().windowHandle(), character.toLatin1());
    }
}

void RecordsWindowTest::changeOnDisk(const QByteArray &bytes, const char *file)
{
    // As many text editors save: a new file takes the name.
    writeFile("new.tmp", bytes);
    ASSERT_TRUE(QFile::remove(QString::fromUtf8(file)));
    ASSERT_TRUE(QFile::rename(u"new.tmp"_s, QString::fromUtf8(file)));
    QTest::qWait(400); // longer than the window waits for further changes
}

} // namespace tarvold::testing
