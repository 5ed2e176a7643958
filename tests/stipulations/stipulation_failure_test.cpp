#include "stipulations/stipulation_test.h"
#include "support/hindrances.h"

#include <QApplication>
#include <QLineEdit>
#include <QMessageBox>

#include <functional>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Texts = std::vector<std::string>;

class StipulationFailure : public StipulationTest
{
protected:
    /// Presses save, expects that the file cannot be written and the form stays, and returns
    /// the message.
    QString failedSave()
    {
        QString told;
        boxes.catchFailedSave(u"Stipulations Editor"_s, &told);
        press("Form3", "Command2");
        expectOnly("Form3");
        return told;
    }

    /// The same for a record that no file can hold.
    QString refusedSave()
    {
        QString told;
        boxes.catchNotice(u"Stipulations Editor"_s, &told);
        press("Form3", "Command2");
        expectOnly("Form3");
        return told;
    }

    void putAFolderInTheWay()
    {
        ASSERT_TRUE(QFile::remove(utf8(kFile)));
        ASSERT_TRUE(QDir().mkdir(utf8(kFile)));
    }

    void clearTheWay() { ASSERT_TRUE(QDir().rmdir(utf8(kFile))); }

    const QByteArray one = stipulation("Singles", "One");
    const QByteArray two = stipulation("Singles", "Two");
};

TEST_F(StipulationFailure, NamesTheFileAndTheCauseAndKeepsWhatIsTyped)
{
    open(one);
    createNew();
    put("stipulation", "Cage");
    put("prominitials", "ABC");
    putAFolderInTheWay();
    const QString told = failedSave();
    EXPECT_TRUE(told.contains(utf8(kFile)) && told.contains(u"folder"_s)) << told.toStdString();
    EXPECT_EQ(shown("stipulation"), u"Cage"_s);
    EXPECT_EQ(shown("prominitials"), u"ABC"_s);
    EXPECT_EQ(folderContent(), kFile);
}

TEST_F(StipulationFailure, OfANewOneCanBeRetriedAndSavesItOnce)
{
    open(one);
    createNew();
    put("stipulation", "Cage");
    putAFolderInTheWay();
    failedSave();
    clearTheWay();
    save();
    EXPECT_EQ(readBack(kFile), one + untouched("Cage"));
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Cage"}));
}

TEST_F(StipulationFailure, OfAnEditedOneCanBeRetried)
{
    open(one + two);
    edit(1);
    put("stipulation", "Other");
    putAFolderInTheWay();
    failedSave();
    clearTheWay();
    save();
    EXPECT_EQ(readBack(kFile), one + stipulation("Singles", "Other"));
}

TEST_F(StipulationFailure, OfANewOneLeavesNoTraceAfterACancel)
{
    open(one);
    createNew();
    put("stipulation", "Cage");
    putAFolderInTheWay();
    failedSave();
    cancel();
    EXPECT_EQ(listed(), Texts{"Singles / One"});
    clearTheWay();
    edit(0);
    save();
    EXPECT_EQ(readBack(kFile), one);
}

TEST_F(StipulationFailure, OfAnEditedOneLeavesNoTraceAfterACancel)
{
    open(one + two);
    edit(1);
    put("stipulation", "Other");
    putAFolderInTheWay();
    failedSave();
    cancel();
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Two"}));
    clearTheWay();
    edit(0);
    save();
    EXPECT_EQ(readBack(kFile), one + two);
}

TEST_F(StipulationFailure, OnAFullDiskLeavesTheOldFileAndNothingElse)
{
    open(one);
    createNew();
    put("stipulation", "Cage");
    QString told;
    {
        const FileSizeLimit limit(rlim_t(one.size()) + 10);
        told = failedSave();
    }
    EXPECT_TRUE(told.contains(utf8(kFile)) && told.contains(u"File too large"_s))
        << told.toStdString();
    EXPECT_EQ(readBack(kFile), one);
    EXPECT_EQ(folderContent(), kFile);
    save();
    EXPECT_EQ(readBack(kFile), one + untouched("Cage"));
}

/// Does something whenever a message box is shown, before it is answered.
class ShownBoxes : public QObject
{
public:
    explicit ShownBoxes(std::function<void()> task) : m_task(std::move(task))
    {
        qApp->installEventFilter(this);
    }
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Show && watched->inherits("QMessageBox")) {
            m_task();
        }
        return false;
    }

private:
    std::function<void()> m_task;
};

/// The file is changed by another program while the list is open.
class StipulationsChangedByAnother : public StipulationFailure
{
protected:
    void anotherProgramWrites() { writeFile(kFile, one + two); }

    void answerTheQuestion(const char *kept, Answer answer)
    {
        boxes.expectQuestion(
            u"Stipulations Editor"_s,
            u"The file \"stipulations.tvd\" was changed by another program after this list was "
            "loaded.\n\nYes writes your list over it, and what the other program changed is "
            "lost. "_s +
                utf8(kept) +
                u" To see what was changed, open the list again from the main menu.\n\nWrite "
                "over it?"_s,
            answer);
    }

    const char *const kForm = "No writes nothing, and everything that you typed stays here until "
                              "you leave this form.";
    const char *const kList = "No deletes nothing, and the list stays as you see it.";
};

TEST_F(StipulationsChangedByAnother, AreKeptWhenTheUserSaysNo)
{
    for (const Answer answer : {Answer::No, Answer::Enter, Answer::Escape, Answer::Close}) {
        open(one);
        createNew();
        put("stipulation", "Cage");
        anotherProgramWrites();
        answerTheQuestion(kForm, answer);
        press("Form3", "Command2");
        expectOnly("Form3");
        EXPECT_EQ(shown("stipulation"), u"Cage"_s);
        EXPECT_EQ(readBack(kFile), one + two);
        cancel();
        EXPECT_EQ(listed(), Texts{"Singles / One"});
        press("Form16", "Command3");
    }
}

TEST_F(StipulationsChangedByAnother, AreOverwrittenWhenTheUserSaysYes)
{
    open(one);
    createNew();
    put("stipulation", "Cage");
    anotherProgramWrites();
    answerTheQuestion(kForm, Answer::Yes);
    save();
    EXPECT_EQ(readBack(kFile), one + untouched("Cage"));
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Cage"}));
}

TEST_F(StipulationsChangedByAnother, AreKeptByADeleteWhenTheUserSaysNo)
{
    open(one);
    select(0);
    anotherProgramWrites();
    boxes.expectQuestion(u"Delete Stipulation"_s,
                         u"Are you sure you want to permanently delete the match stipulation:"
                         "\r\n\r\nSingles / One\r\n"_s,
                         Answer::Yes);
    answerTheQuestion(kList, Answer::No);
    press("Form16", "Command4");
    EXPECT_EQ(readBack(kFile), one + two);
    EXPECT_EQ(listed(), Texts{"Singles / One"});
}

TEST_F(StipulationsChangedByAnother, StayListedBehindTheQuestion)
{
    open(one + two);
    select(0);
    writeFile(kFile, two);
    boxes.expectQuestion(u"Delete Stipulation"_s,
                         u"Are you sure you want to permanently delete the match stipulation:"
                         "\r\n\r\nSingles / One\r\n"_s,
                         Answer::Yes);
    answerTheQuestion(kList, Answer::No);
    Texts behind;
    ShownBoxes watch([this, &behind] { behind = listed(); });
    press("Form16", "Command4");
    EXPECT_EQ(behind, (Texts{"Singles / One", "Singles / Two"}));
}

TEST_F(StipulationsChangedByAnother, DoNotMatterWhenTheListIsSavedUnderAnotherName)
{
    open(one);
    writeFile("other.tvd", two);
    screen("Form1").control<QLineEdit>("Text1").setText(u"other.tvd"_s);
    createNew();
    put("stipulation", "Cage");
    save();
    EXPECT_EQ(readBack("other.tvd"), one + untouched("Cage"));
    EXPECT_EQ(readBack(kFile), one);
}

TEST_F(StipulationsChangedByAnother, AreSeenWhenTheListIsOpenedAgain)
{
    open(one);
    createNew();
    anotherProgramWrites();
    cancel();
    press("Form16", "Command3");
    press("Form1", "Command1");
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Two"}));
}

struct Field
{
    const char *control;
    const char *caption;
};

void PrintTo(const Field &sample, std::ostream *out)
{
    *out << sample.control;
}

class CharacterThatNoFileHolds : public StipulationFailure,
                                 public ::testing::WithParamInterface<Field>
{
};

TEST_P(CharacterThatNoFileHolds, IsRefusedByTheNameOfItsField)
{
    open(one);
    edit(0);
    put(GetParam().control, "");
    paste(control("Form3", GetParam().control), u"a\u03A9b"_s);
    const QString told = refusedSave();
    EXPECT_TRUE(told.contains(utf8(GetParam().caption))) << told.toStdString();
    EXPECT_TRUE(told.contains(u"\u03A9"_s)) << told.toStdString();
    EXPECT_EQ(shown(GetParam().control), u"a\u03A9b"_s);
    EXPECT_EQ(readBack(kFile), one);
    put(GetParam().control, "fixed");
    save();
    EXPECT_TRUE(readBack(kFile).contains("\r\nfixed\r\n") || readBack(kFile).startsWith("fixed"));
}

INSTANTIATE_TEST_SUITE_P(
    , CharacterThatNoFileHolds,
    ::testing::Values(Field{"matchtype", "Connected With Match Type:"},
                      Field{"stipulation", "Name Of Stipulation:"},
                      Field{"matchshowsas", "Shows On Results Screen As:"},
                      Field{"dqposs", "Is DQ Possible In This Match?:"},
                      Field{"usedefault", "Use Default Commentary Also?:"},
                      Field{"runins", "Can There Be Run-Ins For This Match?:"},
                      Field{"drawcurrent", "Match Draw Value: Current"},
                      Field{"entinc", "Match Entertainment Value: Increase Daily By"},
                      Field{"prominitials", "Promotion Initials:"},
                      Field{"titleneeded", "Does a title have to be on the line?:"}),
    [](const auto &sample) { return sample.param.control; });

} // namespace
} // namespace tarvold::testing
