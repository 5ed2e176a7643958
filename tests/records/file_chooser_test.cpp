#include "controls/list_box.h"
#include "records/file_chooser.h"
#include "support/events.h"
#include "support/folder_test.h"

#include <QAbstractItemModel>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>

namespace tarvold::testing {

using namespace Qt::StringLiterals;
using records::FileChooser;

namespace {

class Chooser : public FolderTest
{
public:
    Chooser() = default;
    ~Chooser() override { delete chooser; }
    Q_DISABLE_COPY_MOVE(Chooser)

protected:
    void show()
    {
        chooser = new FileChooser;
        QObject::connect(chooser, &FileChooser::chosen,
                         [this](const QStringList &names) { chosen << names; });
        chooser->show();
        expectActive(*chooser);
    }

    ListBox &list() { return *chooser->findChild<ListBox *>(u"files"_s); }
    QPushButton &button(const QString &name) { return *chooser->findChild<QPushButton *>(name); }

    QStringList offered()
    {
        QStringList names;
        for (int row = 0; row < list().model()->rowCount(); ++row) {
            names << list().model()->index(row, 0).data().toString();
        }
        return names;
    }

    void clickRow(int row, Qt::KeyboardModifiers modifiers = Qt::NoModifier)
    {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, modifiers,
                          list().visualRect(list().model()->index(row, 0)).center());
    }

    void expectClosed()
    {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        EXPECT_TRUE(chooser.isNull());
    }

    QPointer<FileChooser> chooser;
    QList<QStringList> chosen;
};

TEST_F(Chooser, OffersTheDataFilesOfTheFolder)
{
    for (const char *name : {"b.tvd", "a.tvd", "other.txt", "C.TVD"}) {
        writeFile(name, "");
    }
    QDir().mkdir(u"folder.tvd"_s);
    show();
    EXPECT_EQ(offered(), (QStringList{u"a.tvd"_s, u"b.tvd"_s}));
    EXPECT_FALSE(button(u"open"_s).isEnabled());
}

TEST_F(Chooser, OpensAllSelectedFilesAndCloses)
{
    for (const char *name : {"a.tvd", "b.tvd", "c.tvd"}) {
        writeFile(name, "");
    }
    show();
    clickRow(2);
    clickRow(0, Qt::ControlModifier);
    click(button(u"open"_s));
    EXPECT_EQ(chosen, (QList<QStringList>{{u"a.tvd"_s, u"c.tvd"_s}}));
    expectClosed();
}

TEST_F(Chooser, EnterOpensWhatTheKeysSelected)
{
    writeFile("a.tvd", "");
    writeFile("b.tvd", "");
    show();
    list().setFocus();
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_TRUE(chosen.isEmpty());
    QTest::keyClick(&list(), Qt::Key_Down);
    QTest::keyClick(&list(), Qt::Key_Return);
    EXPECT_EQ(chosen, QList<QStringList>{{u"a.tvd"_s}});
    expectClosed();
}

TEST_F(Chooser, ShowsAnAndSignOfTheFolderAsItIs)
{
    ASSERT_TRUE(QDir().mkdir(u"R&D"_s));
    ASSERT_TRUE(QDir::setCurrent(folder.filePath(u"R&D"_s)));
    show();
    const QString text = chooser->findChild<QLabel *>(u"prompt"_s)->text();
    EXPECT_TRUE(text.contains(u"R&&D"_s)) << text.toStdString(); // a single one would mark a key
}

TEST_F(Chooser, SaysThatTheFolderHasNone)
{
    show();
    const auto *prompt = chooser->findChild<QLabel *>(u"prompt"_s);
    EXPECT_TRUE(prompt->text().startsWith(u"There is no .tvd file in "_s));
    EXPECT_TRUE(button(u"other"_s).hasFocus());
    QTest::keyClick(chooser, Qt::Key_Escape);
    EXPECT_TRUE(chosen.isEmpty());
    expectClosed();
}

} // namespace
} // namespace tarvold::testing
