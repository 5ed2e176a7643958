#include "datafiles/tags.h"
#include "support/print.h"

#include <gtest/gtest.h>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const QStringList kKnownTags = {u"<recfullname>"_s, u"<recshortname>"_s, u"<att1shortname>"_s,
                                u"<att2shortname>"_s, u"<town>"_s};

tags::Rules rules()
{
    return {.known = kKnownTags, .refusal = [](const QString &tag) {
                return tag == u"<town>"_s ? u"Not today."_s : QString();
            }};
}

QStringList problems(const QString &line, std::optional<qsizetype> cursor = std::nullopt)
{
    return tags::problemsIn(line, rules(), cursor);
}

TEST(Tags, AreFoundInOrder)
{
    const QString line = u"a <b> c<d <e>"_s;
    const auto first = tags::nextTag(line, 0);
    ASSERT_TRUE(first);
    EXPECT_EQ(first->from, 2);
    EXPECT_EQ(first->text, u"<b>"_s);
    EXPECT_TRUE(first->isClosed);
    const auto second = tags::nextTag(line, first->end());
    ASSERT_TRUE(second);
    EXPECT_EQ(second->text, u"<d "_s);
    EXPECT_FALSE(second->isClosed);
    const auto third = tags::nextTag(line, second->end());
    ASSERT_TRUE(third);
    EXPECT_EQ(third->text, u"<e>"_s);
    EXPECT_FALSE(tags::nextTag(line, third->end()));
}

TEST(Tags, TheNearestHasTheFewestWrongLetters)
{
    const std::pair<QString, QString> expected[] = {
        {u"<recshrtname>"_s, u"<recshortname>"_s},
        {u"<RecShortName>"_s, u"<recshortname>"_s},
        {u"<att2shortnam>"_s, u"<att2shortname>"_s},
        {u"<recfulname>"_s, u"<recfullname>"_s},
        {u"<twon>"_s, {}},
        {u"<twn>"_s, u"<town>"_s},
        {u"<b>"_s, {}},
        {u"<>"_s, {}},
        {u"<somebody else>"_s, {}},
        {u'<' + QString(1000, u'r') + u'>', {}},
    };
    for (const auto &[typed, meant] : expected) {
        EXPECT_EQ(tags::nearest(typed, kKnownTags).value_or(QString()), meant)
            << typed.left(50).toStdString();
    }
}

TEST(Tags, KnownTagsAndPlainTextHaveNoProblem)
{
    for (const QString &line : {QString(), u"He wins."_s, u"<recfullname>"_s,
                                u"<recfullname><recshortname>!"_s, u"2 > 1"_s}) {
        EXPECT_EQ(problems(line), QStringList()) << line.toStdString();
    }
}

TEST(Tags, AnUnknownTagIsAProblem)
{
    EXPECT_EQ(problems(u"Oh, <recshrtname> wins"_s),
              QStringList(u"<recshrtname> is not a tag. Did you mean <recshortname>?"_s));
    EXPECT_EQ(problems(u"<nobody>"_s), QStringList(u"<nobody> is not a tag."_s));
    EXPECT_EQ(problems(u'<' + QString(100, u'x') + u'>'),
              QStringList(u'<' + QString(39, u'x') + u"... is not a tag."_s));
}

TEST(Tags, ARefusedTagIsAProblem)
{
    EXPECT_EQ(problems(u"in <town>"_s), QStringList(u"<town>: Not today."_s));
}

TEST(Tags, AnUnclosedTagIsAProblemUnlessItIsBeingTyped)
{
    const QString line = u"a <recsh"_s;
    const QStringList unclosed(u"\"<\" is not closed."_s);
    EXPECT_EQ(problems(line), unclosed);
    EXPECT_EQ(problems(line, 0), unclosed);
    EXPECT_EQ(problems(line, 2), unclosed); // before its "<"
    EXPECT_EQ(problems(line, 3), QStringList());
    EXPECT_EQ(problems(line, 8), QStringList());
    EXPECT_EQ(problems(u"<recsh <town2>"_s, 8), unclosed); // in the second tag
}

TEST(Tags, ATagAroundTheCursorHasNoProblemYet)
{
    const QString line = u"a <recsh> <town>"_s;
    for (const qsizetype outside : {0, 2, 9, 10}) {
        EXPECT_EQ(problems(line, outside).size(), 2) << outside;
    }
    for (const qsizetype inside : {3, 8}) {
        EXPECT_EQ(problems(line, inside), QStringList(u"<town>: Not today."_s)) << inside;
    }
    EXPECT_EQ(problems(line, 12), QStringList(u"<recsh> is not a tag."_s));
}

TEST(Tags, ProblemsComeInTheOrderOfTheLineAndEnd)
{
    EXPECT_EQ(
        problems(u"<a1><town><"_s),
        (QStringList{u"<a1> is not a tag."_s, u"<town>: Not today."_s, u"\"<\" is not closed."_s}));
    EXPECT_EQ(problems(u"<x>"_s.repeated(100'000)).size(), 10);
}

} // namespace
} // namespace tarvold::testing
