#include "records_session.h"

#include "records/record_list_model.h"
#include "records/records_window.h"

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPaintEvent>
#include <QTest>

#include <algorithm>
#include <cstdio>
#include <functional>

namespace tarvold::bench {
namespace {

using namespace Qt::StringLiterals;
using Clock = std::chrono::steady_clock;
using records::RecordListModel;
using records::RecordsWindow;

double millisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

/// The most memory that this process has used, in bytes.
double peakMemory()
{
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("VmHWM:")) {
                return line.simplified().split(' ').at(1).toDouble() * 1024;
            }
        }
    }
    qFatal("the system does not tell the memory used");
}

void print(const QByteArray &name, double figure)
{
    std::printf("%s\t%f\n", name.constData(), figure);
}

/// How long something took, and how long an event would have had to wait meanwhile.
struct Taken
{
    double all = 0;
    double wait = 0;
};

/// Uses a window by keys and the mouse and takes the time.
class User : public QObject
{
public:
    explicit User(const Session &session)
    {
        qApp->installEventFilter(this);
        m_window = RecordsWindow::open(session.file);
        waitFor([this] { return m_isPainted; });
        print(session.changes ? "first rows, faulty" : "first rows",
              millisecondsSince(session.start));
        m_list = m_window->findChild<QAbstractItemView *>(u"list"_s);
        m_model = qobject_cast<RecordListModel *>(m_list->model());
        connect(m_model, &RecordListModel::settled, this, [this] { m_isSettled = true; });
        if (!session.changes) {
            type("letter at once", u"van"_s);
            clearSearch();
        }
        const auto &counts = *m_window->findChild<QLabel *>(u"counts"_s);
        const Taken rest = waitFor([&counts] { return counts.text() != u"Reading..."_s; });
        print("all records", millisecondsSince(session.start));
        print("all records, longest wait", rest.wait);
    }
    User(const User &) = delete;
    User &operator=(const User &) = delete;
    User(User &&) = delete;
    User &operator=(User &&) = delete;
    ~User() override { delete m_window; }

    void read()
    {
        type("letter meanwhile", u"vance"_s);
        clearSearch();
        tell("check", waitFor([this] { return isChecked(); }));
        for (const auto &text :
             {u"rocco"_s, u"number 99999"_s, u"zzyzx"_s, u"\u00FC"_s, u"top rope"_s}) {
            type("letter", text);
            clearSearch();
        }
        sort(m_model->problemColumn() - 1);
        sort(RecordListModel::Telling);
        print("memory", peakMemory());
    }

    void change()
    {
        tell("check faulty", waitFor([this] { return isChecked(); }));
        act(
            "repair all", [this] { action("repairAll").trigger(); },
            [this] { return action("undo").isEnabled(); });
        const auto undo = [this] { press(Qt::CTRL | Qt::Key_Z); };
        act("undo repairs", undo, [this] { return action("redo").isEnabled(); });
        act(
            "redo repairs", [this] { press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z); },
            [this] { return !action("redo").isEnabled(); });
        const auto save = [this] { press(Qt::CTRL | Qt::Key_S); };
        const auto isSaved = [this] { return !m_window->isWindowModified(); };
        act("save", save, isSaved);
        print("memory with changes", peakMemory());
        type(nullptr, u"top rope"_s);
        print("scattered", m_model->rowCount());
        m_list->setFocus();
        act(
            "delete scattered",
            [this] {
                press(QKeySequence::SelectAll);
                press(Qt::Key_Delete);
            },
            [this] { return m_window->isWindowModified(); });
        clearSearch();
        act("save deletions", save, isSaved);
        act("undo deletions", undo, [this] { return m_window->isWindowModified(); });
        act(
            "redo deletions", [this] { press(Qt::CTRL | Qt::SHIFT | Qt::Key_Z); },
            [this] { return !action("redo").isEnabled(); });
    }

protected:
    /// Sees that rows of the list are about to be painted.
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            const auto *view = qobject_cast<QAbstractItemView *>(watched->parent());
            m_isPainted = m_isPainted || (view != nullptr && view->objectName() == u"list"_s &&
                                          view->viewport() == watched &&
                                          (m_list != nullptr || view->model()->rowCount() > 0));
        }
        return false;
    }

private:
    static void tell(const char *name, Taken taken)
    {
        print(name, taken.all);
        print(QByteArray(name) + ", longest wait", taken.wait);
    }

    /// An event that comes while others are handled waits until the end of that round.
    static Taken waitFor(const std::function<bool()> &isDone)
    {
        const auto start = Clock::now();
        Taken taken;
        do {
            const auto round = Clock::now();
            QCoreApplication::processEvents(QEventLoop::AllEvents);
            taken.wait = std::max(taken.wait, millisecondsSince(round));
        } while (!isDone());
        taken.all = millisecondsSince(start);
        return taken;
    }

    /// Does something, until it is done and the list is painted; and then until all is checked.
    void act(const char *name, const std::function<void()> &doIt,
             const std::function<bool()> &isDone)
    {
        const auto start = Clock::now();
        m_isPainted = false;
        doIt();
        const double atOnce = millisecondsSince(start);
        const Taken then = waitFor([&] { return isDone() && m_isPainted; });
        tell(name, {atOnce + then.all, std::max(atOnce, then.wait)});
        print(QByteArray(name) + ", wait of checks", waitFor([this] { return isChecked(); }).wait);
    }

    void press(const QKeySequence &keys) { QTest::keySequence(m_window->windowHandle(), keys); }

    QAction &action(const char *name)
    {
        return *m_window->findChild<QAction *>(QLatin1StringView(name));
    }

    bool isChecked() const { return !m_window->findChild<QWidget *>(u"progress"_s)->isVisible(); }

    /// \param name null: the time is not told
    void type(const char *name, const QString &text)
    {
        press(Qt::CTRL | Qt::Key_F);
        for (const QChar letter : text) {
            const auto start = Clock::now();
            m_isPainted = false;
            QTest::sendKeyEvent(QTest::Click, m_window->windowHandle(), Qt::Key_unknown,
                                QString(letter), Qt::NoModifier);
            waitFor([this] { return m_isPainted; });
            if (name != nullptr) {
                print(name, millisecondsSince(start));
            }
            waitFor([this] { return !m_model->isSearching(); });
            if (name != nullptr) {
                print(QByteArray(name) + ", all found", millisecondsSince(start));
            }
        }
        if (m_window->findChild<QLineEdit *>(u"search"_s)->text() != text) {
            qFatal("the letters did not reach the search box");
        }
    }

    void clearSearch()
    {
        press(Qt::CTRL | Qt::Key_F);
        press(Qt::Key_Escape);
        waitFor([this] { return !m_model->isSearching() && !m_model->isFiltered(); });
        m_list->setFocus(); // in the box, undo would be that of its text
    }

    void sort(int column)
    {
        const auto start = Clock::now();
        m_isSettled = false;
        auto &heads = *m_list->findChild<QHeaderView *>(u"heads"_s);
        // The click itself waits some time so that it is no double click.
        heads.setSortIndicator(column, Qt::AscendingOrder);
        const double atOnce = millisecondsSince(start);
        const Taken then = waitFor([this] { return m_isSettled; });
        const Taken shown = waitFor([] { return true; });
        tell("sort", {atOnce + then.all + shown.all, std::max({atOnce, then.wait, shown.wait})});
    }

    RecordsWindow *m_window = nullptr;
    QAbstractItemView *m_list = nullptr;
    RecordListModel *m_model = nullptr;
    bool m_isPainted = false;
    bool m_isSettled = false;
};

} // namespace

void runSession(const Session &session)
{
    User user(session);
    if (session.changes) {
        user.change();
    } else {
        user.read();
    }
}

} // namespace tarvold::bench
