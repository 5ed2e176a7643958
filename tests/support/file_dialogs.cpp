#include "support/file_dialogs.h"

#include "support/events.h"

#include <QApplication>
#include <QDir>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

QLineEdit &nameBoxOf(const QFileDialog &dialog)
{
    return *dialog.findChild<QLineEdit *>(u"fileNameEdit"_s);
}

void check(const QFileDialog &dialog, const FileAnswer &expected)
{
    EXPECT_EQ(dialog.windowTitle(), expected.title);
    EXPECT_EQ(dialog.nameFilters(), QStringList{u"Data files (*.tvd)"_s});
    EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
    EXPECT_EQ(dialog.directory().canonicalPath(), QDir(expected.folder).canonicalPath());
    EXPECT_EQ(nameBoxOf(dialog).text(), expected.proposed);
    EXPECT_NE(dialog.parentWidget(), nullptr);
    EXPECT_TRUE(dialog.isModal());
}

void type(QFileDialog &dialog, const QString &name)
{
    QLineEdit &box = nameBoxOf(dialog);
    box.selectAll(); // not cleared: with an empty box Qt would keep the folder selected
    QTest::keyClicks(&box, name);
    EXPECT_EQ(box.text(), name);
}

} // namespace

FileDialogs::FileDialogs()
{
    connect(&m_timer, &QTimer::timeout, this, &FileDialogs::look);
    m_timer.start(1);
}

void FileDialogs::checkAllCame()
{
    for (const FileAnswer &awaited : m_awaited) {
        ADD_FAILURE() << "the file dialog was not shown: " << awaited.typed.toStdString();
    }
    m_awaited.clear();
}

void FileDialogs::look()
{
    auto *dialog = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
    if (dialog == nullptr || !dialog->isVisible()) {
        return;
    }
    if (m_awaited.empty()) {
        ADD_FAILURE() << "unexpected file dialog";
        dialog->reject();
        return;
    }
    const FileAnswer answer = m_awaited.front();
    m_awaited.pop_front();
    m_timer.stop(); // waiting processes events
    expectActive(*dialog);
    m_timer.start(1);
    check(*dialog, answer);
    type(*dialog, answer.typed);
    QTest::keyClick(&nameBoxOf(*dialog), answer.saves ? Qt::Key_Return : Qt::Key_Escape);
    if (dialog->isVisible()) {
        ADD_FAILURE() << "the file dialog stayed open after it was answered";
        dialog->reject();
    }
}

} // namespace tarvold::testing
