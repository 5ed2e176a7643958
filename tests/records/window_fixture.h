#pragma once

#include "records/records_window.h"
#include "support/boxes.h"
#include "support/events.h"
#include "support/file_dialogs.h"
#include "support/folder_test.h"

#include <QAbstractItemView>
#include <QAction>
#include <QLineEdit>
#include <QPointer>
#include <QTest>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

/// A records window with a file of normal endings, driven as a user drives it.
class RecordsWindowTest : public FolderTest
{
public:
    RecordsWindowTest() = default;
    ~RecordsWindowTest() override;

protected:
    static constexpr char kFile[] = "endings.tvd";

    /// An ending without problems, whose first line of commentary is this text.
    static QByteArray ending(const QByteArray &text, const QByteArray &matchType = "Singles");
    /// Endings that begin with "Ending 1", "Ending 2" and so on.
    static QByteArray endings(int count, int first = 1);
    /// An ending with one problem: a tag that nobody knows.
    static QByteArray faulty(const QByteArray &text) { return ending(text + " <nobodyknows>"); }

    /// Writes a file, opens its window, and waits until all is checked.
    void open(const QByteArray &bytes, const char *file = kFile);
    void openFile(const char *file);

    records::RecordsWindow &window() { return *m_window; }
    bool isOpen() const { return !m_window.isNull(); }

    template <class T>
    T &part(const char *name)
    {
        auto *found = window().findChild<T *>(QLatin1StringView(name));
        if (found == nullptr) {
            qFatal("the window has no %s", name);
        }
        return *found;
    }
    QAbstractItemView &list() { return part<QAbstractItemView>("list"); }
    QAction &action(const char *name) { return part<QAction>(name); }
    /// The text of a quiet line, whole.
    QString notice() { return part<QWidget>("notice").accessibleName(); }

    /// Presses keys wherever the focus is, one combination after the other.
    void press(const QKeySequence &keys);
    void clickRow(int row);
    /// The rows of a column, as shown.
    QStringList column(const QString &head);
    QString cell(int row, const QString &head);
    int currentRow() { return list().currentIndex().row(); }
    std::vector<int> selectedRows();

    /// The editor of a field, in the view of the record as it is written.
    QWidget &field(int number);
    QString fieldText(int number);
    /// Types over a field and leaves the focus there.
    void typeInto(int number, const QString &text);
    /// The first line of the commentary.
    static constexpr int kCommentary = 27;

    static QByteArray onDisk(const char *file = kFile) { return readBack(file); }
    /// Replaces the file as another program does, and waits until the window knows.
    void changeOnDisk(const QByteArray &bytes, const char *file = kFile);
    bool isChanged() { return window().isWindowModified(); }
    static QString title() { return u"Tarvold Data Editor"_s; }

    Boxes boxes;
    FileDialogs dialogs;

private:
    QPointer<records::RecordsWindow> m_window;
};

} // namespace tarvold::testing
