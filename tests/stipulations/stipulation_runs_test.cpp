#include "stipulations/stipulation_test.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

using Texts = std::vector<std::string>;

class StipulationRuns : public StipulationTest
{
protected:
    void nextRun()
    {
        startAnew();
        press("Form1", "Command1");
        expectOnly("Form16");
    }

    void make(const char *name)
    {
        createNew();
        put("stipulation", name);
        save();
    }
};

TEST_F(StipulationRuns, CreateEditAndDeleteInOneFile)
{
    nextRun();
    make("One");
    EXPECT_EQ(readBack(kFile), untouched("One"));

    nextRun();
    EXPECT_EQ(listed(), Texts{"Singles / One"});
    make("Two");
    make("Three");
    EXPECT_EQ(readBack(kFile), untouched("One") + untouched("Two") + untouched("Three"));

    nextRun();
    edit(1);
    put("stipulation", "Changed");
    save();
    EXPECT_EQ(readBack(kFile), untouched("One") + untouched("Changed") + untouched("Three"));

    nextRun();
    EXPECT_EQ(listed(), (Texts{"Singles / One", "Singles / Changed", "Singles / Three"}));
    remove(0, u"Singles / One"_s);
    EXPECT_EQ(readBack(kFile), untouched("Changed") + untouched("Three"));

    nextRun();
    remove(1, u"Singles / Three"_s);
    remove(0, u"Singles / Changed"_s);
    EXPECT_EQ(readBack(kFile), "");

    nextRun();
    EXPECT_TRUE(listed().empty());
    EXPECT_EQ(folderContent(), kFile);
}

TEST_F(StipulationRuns, ChangeOneFileManyTimesInOneRun)
{
    nextRun();
    make("One");
    make("Two");
    edit(0);
    put("stipulation", "Uno");
    save();
    remove(1, u"Singles / Two"_s);
    make("Three");
    edit(1);
    put("matchtype", "Lucha");
    save();
    EXPECT_EQ(readBack(kFile), untouched("Uno") + untouched("Three").replace("Singles", "Lucha"));
}

struct Name
{
    const char *test;
    QByteArray text;
};

void PrintTo(const Name &sample, std::ostream *out)
{
    *out << sample.test;
}

class StrangeStipulation : public StipulationRuns, public ::testing::WithParamInterface<Name>
{
};

TEST_P(StrangeStipulation, IsShownAsItIsInListFormAndQuestion)
{
    const QByteArray &name = GetParam().text;
    nextRun();
    make(name.constData());
    EXPECT_EQ(readBack(kFile), untouched(name));
    nextRun();
    EXPECT_EQ(listed(), Texts{"Singles / " + name.toStdString()});
    edit(0);
    EXPECT_EQ(shown("stipulation"), QString::fromLatin1(name));
    cancel();
    remove(0, u"Singles / "_s + QString::fromLatin1(name));
    EXPECT_EQ(readBack(kFile), "");
}

INSTANTIATE_TEST_SUITE_P(, StrangeStipulation,
                         ::testing::Values(Name{"Markup", "<b>x</b>"}, Name{"Ampersand", "a & b"},
                                           Name{"TwoAmpersands", "a && b"},
                                           Name{"Placeholder", "100%1 %2"}, Name{"Entity", "&lt;"},
                                           Name{"Separator", "a / b / c"},
                                           Name{"Blanks", "  a  b  "},
                                           Name{"VeryLong", QByteArray(300, 'w')}),
                         [](const auto &sample) { return sample.param.test; });

} // namespace
} // namespace tarvold::testing
