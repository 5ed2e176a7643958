// What a window says where a file's name and its records are of two kinds.

#include "controls/combo_box.h"
#include "records/window_fixture.h"

#include <QLabel>

namespace tarvold::testing {
namespace {

class WindowKindTest : public RecordsWindowTest
{
protected:
    static QByteArray example(const char *name)
    {
        QFile file(QStringLiteral(TARVOLD_EXAMPLES "/") + QLatin1StringView(name));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
        return file.readAll();
    }
    /// Empty where none is shown.
    QString note()
    {
        const auto &label = part<QLabel>("kindNote");
        return label.isVisible() ? label.text() : QString();
    }

    const QString kTold = u"The name says talk show segments, but the records look like interview "
                          "segments. The game reads this file as talk show segments."_s;
};

TEST_F(WindowKindTest, TheNameOfAnotherKindIsTold)
{
    open(example("interviews.tvd"), "talkshow.tvd");
    EXPECT_EQ(window().kind(), DataFileKind::Interviews);
    EXPECT_EQ(note(), kTold);
    EXPECT_EQ(notice(), QString()) << "what is done can still be told";
    action("duplicate").trigger();
    press(Qt::CTRL | Qt::Key_S);
    EXPECT_EQ(note(), kTold);
    dialogs.expect({folder.path(), u"talkshow.tvd"_s, u"mine"_s, true, u"Save As"_s});
    press(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
    EXPECT_EQ(note(), QString());
}

TEST_F(WindowKindTest, FollowsTheFile)
{
    open(example("talkshow.tvd"), "talkshow.tvd");
    EXPECT_EQ(note(), QString());
    changeOnDisk(example("interviews.tvd"), "talkshow.tvd");
    EXPECT_EQ(note(), QString()) << "it is still read as talk shows";
    window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    openFile("talkshow.tvd");
    EXPECT_EQ(note(), kTold);
    changeOnDisk(example("talkshow.tvd"), "talkshow.tvd");
    EXPECT_EQ(note(), QString());
}

TEST_F(WindowKindTest, AKindThatTheUserChoseIsNoGuess)
{
    open(example("interviews.tvd"), "talkshow.tvd");
    ASSERT_EQ(note(), kTold);
    pick(part<ComboBox>("kind"), u"Talk show segments"_s);
    EXPECT_EQ(window().kind(), DataFileKind::TalkShows);
    EXPECT_EQ(note(), QString());
    pick(part<ComboBox>("kind"), u"Interview segments"_s);
    EXPECT_EQ(window().kind(), DataFileKind::Interviews);
    EXPECT_EQ(note(), QString());
    window().close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const auto *given = // as by --kind
        records::RecordsWindow::open(u"talkshow.tvd"_s, DataFileKind::Interviews);
    EXPECT_TRUE(given->findChild<QLabel *>(u"kindNote"_s)->text().isEmpty());
}

TEST_F(WindowKindTest, WhatNothingTellsIsNotDoubted)
{
    open(QByteArray("Any\r\n").repeated(19), "talkshow.tvd");
    EXPECT_EQ(window().kind(), DataFileKind::TalkShows);
    EXPECT_EQ(note(), QString());
}

} // namespace
} // namespace tarvold::testing
