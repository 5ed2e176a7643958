// Words that are picked, and texts that an input method composes.

#include "records/pane_test.h"

#include <QInputMethodEvent>

namespace tarvold::records {
namespace {

using PickEdits = std::vector<std::pair<int, QByteArray>>;

constexpr int kComposedAttacker = 7;
constexpr int kPickedFinisher = 15;

TEST_F(PaneTest, WritesTheCodedWordThatIsPickedWhereTheFileHasTheShownOne)
{
    open(DataFileKind::NormalEndings, {{kPickedFinisher, u"Pin"_s}});
    EXPECT_EQ(combo(kPickedFinisher).currentText(), u"Pin"_s);
    pane.goToField(kPickedFinisher - 1);
    settle();
    press(Qt::Key_Tab);
    EXPECT_EQ(edits, PickEdits()) << "only shown";
    pane.goToField(kPickedFinisher - 1);
    settle();
    testing::pick(combo(kPickedFinisher), u"Pin"_s);
    EXPECT_EQ(edits, (PickEdits{{kPickedFinisher, "p"}}));
    EXPECT_FALSE(pane.hasPending());
    testing::pick(combo(kPickedFinisher), u"Pin"_s);
    EXPECT_EQ(edits.size(), 1U) << "it has the word already";
}

TEST_F(PaneTest, WritesTheCodedQualityThatIsPickedWhereTheFileHasTheShownOne)
{
    constexpr int kQuality = 18;
    const QString shown =
        Catalog::of(DataFileKind::Stipulations).fields().at(kQuality - 1).items.front();
    const QString coded =
        Catalog::of(DataFileKind::Stipulations).fields().at(kQuality - 1).words.front();
    ASSERT_NE(shown, coded);
    open(DataFileKind::Stipulations, {{kQuality, shown}});
    pane.goToField(kQuality - 1);
    settle();
    testing::pick(combo(kQuality), shown);
    EXPECT_EQ(edits, (PickEdits{{kQuality, coded.toLatin1()}}));
}

TEST_F(PaneTest, KeepsWhatAnInputMethodIsComposing)
{
    open(DataFileKind::NormalEndings);
    for (const int number : {kComposedAttacker, kPickedFinisher}) {
        edits.clear();
        typeInto(number, u"Ren"_s);
        press(Qt::Key_Return);
        QInputMethodEvent composing(u"xyz"_s, {});
        QCoreApplication::sendEvent(&editor(number), &composing);
        EXPECT_TRUE(pane.hasPending());
        EXPECT_TRUE(pane.commit());
        EXPECT_EQ(edits, (PickEdits{{number, "Ren"}, {number, "Renxyz"}}));
        EXPECT_FALSE(pane.hasPending());
    }
}

} // namespace
} // namespace tarvold::records
