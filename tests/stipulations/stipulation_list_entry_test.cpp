#include "stipulations/stipulation_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Texts = std::vector<std::string>;

class EntryToTheStipulations : public StipulationTest
{
protected:
    void enterFile(const char *name)
    {
        type("Form1", "Text1", utf8(name));
        press("Form1", "Command1");
    }

    /// Opens a file that is no table, and returns the message on the menu.
    QString refusal(const char *name)
    {
        QString told;
        boxes.catchNotice(u"Stipulations Editor"_s, &told);
        enterFile(name);
        expectOnly("Form1");
        EXPECT_TRUE(told.contains(utf8(name))) << told.toStdString();
        return told;
    }
};

class UnfitStipulationsName : public EntryToTheStipulations,
                              public ::testing::WithParamInterface<const char *>
{
};

TEST_P(UnfitStipulationsName, IsRefusedOnTheMenu)
{
    boxes.expectNotice(
        u"Filename Error"_s,
        u"Please enter the name of the file you want to edit, including the .tvd extension."_s);
    enterFile(GetParam());
    expectOnly("Form1");
    EXPECT_EQ(folderContent(), "");
    EXPECT_EQ(text("Form1", "Text1"), utf8(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(, UnfitStipulationsName,
                         ::testing::Values("", "stipulations.TVD", "stipulations.Tvd",
                                           "stipulations", "stipulations.tvd ", "tvd",
                                           "stipulations.tvd.txt"));

class MissingStipulationsFile : public EntryToTheStipulations,
                                public ::testing::WithParamInterface<const char *>
{
};

TEST_P(MissingStipulationsFile, IsCreatedEmptyAndTheListOpensEmpty)
{
    enterFile(GetParam());
    expectOnly("Form16");
    EXPECT_TRUE(listed().empty());
    EXPECT_EQ(folderContent(), GetParam());
    EXPECT_EQ(readBack(GetParam()), "");
}

INSTANTIATE_TEST_SUITE_P(, MissingStipulationsFile,
                         ::testing::Values("stipulations.tvd", ".tvd", "My file & more.tvd",
                                           "a.TVD.tvd"));

TEST_F(EntryToTheStipulations, TakesTheDefaultNameWhenNothingIsTyped)
{
    press("Form1", "Command1");
    expectOnly("Form16");
    EXPECT_EQ(folderContent(), "stipulations.tvd");
}

TEST_F(EntryToTheStipulations, OpensAnEmptyListForAnEmptyFile)
{
    open("");
    EXPECT_TRUE(listed().empty());
    EXPECT_EQ(readBack(kFile), "");
}

TEST_F(EntryToTheStipulations, OpensTheFileThatTheMenuNamesAndWritesNoOther)
{
    const QByteArray other = stipulation("Singles", "Other");
    writeFile(kFile, other);
    enterFile("mine.tvd");
    createNew();
    put("stipulation", "Mine");
    save();
    EXPECT_EQ(readBack("mine.tvd"), untouched("Mine"));
    EXPECT_EQ(readBack(kFile), other);
}

TEST_F(EntryToTheStipulations, SaysHowManyLinesAFileHasThatEndsInsideARecord)
{
    const QByteArray cut = stipulation("Singles", "One") + "Singles\r\nTwo\r\n";
    writeFile("cut.tvd", cut);
    const QString told = refusal("cut.tvd");
    EXPECT_TRUE(told.contains(u"lines found: 21"_s)) << told.toStdString();
    EXPECT_TRUE(told.contains(u"each stipulation takes 19"_s)) << told.toStdString();
    EXPECT_EQ(readBack("cut.tvd"), cut);
    EXPECT_EQ(folderContent(), "cut.tvd");
}

TEST_F(EntryToTheStipulations, SaysThatTheNameIsAFolder)
{
    ASSERT_TRUE(QDir().mkdir(u"folder.tvd"_s));
    EXPECT_TRUE(refusal("folder.tvd").contains(u"folder"_s));
    EXPECT_EQ(folderContent(), "folder.tvd");
}

TEST_F(EntryToTheStipulations, SaysThatAFileCannotBeCreated)
{
    refusal("missing/a.tvd");
    EXPECT_EQ(folderContent(), "");
}

TEST_F(EntryToTheStipulations, ClearsTheListWhenTheNextFileIsUnfit)
{
    open(stipulation("Singles", "One"));
    press("Form16", "Command3");
    writeFile("cut.tvd", "x");
    refusal("cut.tvd");
    EXPECT_TRUE(listed().empty());
    type("Form1", "Text1", utf8(kFile));
    press("Form1", "Command1");
    EXPECT_EQ(listed(), Texts{"Singles / One"});
}

} // namespace
} // namespace tarvold::testing
