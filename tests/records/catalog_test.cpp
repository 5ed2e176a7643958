#include "controls/controls.h"
#include "datafiles/record_fields.h"
#include "datafiles/stipulation_format.h"
#include "records/catalog.h"
#include "support/flow_test.h"

#include <gtest/gtest.h>

namespace tarvold::records {
namespace {

using namespace Qt::StringLiterals;
using testing::FlowPath;

const KnownField &knownField(DataFileKind kind, const RecordField &field)
{
    const Catalog &catalog = Catalog::of(kind);
    return catalog.fields().at(std::size_t(catalog.placeOf(field)));
}

const KnownTag *knownTag(DataFileKind kind, const QString &tag)
{
    for (const KnownTag &known : Catalog::of(kind).tags()) {
        if (known.tag == tag) {
            return &known;
        }
    }
    return nullptr;
}

TEST(RecordCatalog, HasTheFieldsOfEachKindInTheirOrder)
{
    for (const DataFileKindRow &row : kDataFileKinds) {
        const Catalog &catalog = Catalog::of(row.kind);
        EXPECT_EQ(catalog.kind(), row.kind);
        ASSERT_EQ(catalog.fieldCount(), row.linesPerRecord());
        for (int place = 0; place < catalog.fieldCount(); ++place) {
            const KnownField &known = catalog.fields().at(std::size_t(place));
            EXPECT_EQ(known.field, row.format[std::size_t(place)]);
            EXPECT_EQ(catalog.placeOf(*known.field), place);
            // A stipulation may belong to match types that its form does not offer.
            const int more = known.field == &stipulationfields::kMatchType ? 3 : 0;
            EXPECT_EQ(known.items.size() + more, known.words.size());
            EXPECT_FALSE(known.caption.isEmpty() || known.caption.endsWith(u':'));
        }
        const bool hasCommentary = row.kind != DataFileKind::Stipulations;
        EXPECT_EQ(catalog.firstCommentary(), catalog.fieldCount() - (hasCommentary ? 10 : 0));
        EXPECT_EQ(catalog.tags().empty(), !hasCommentary);
    }
    EXPECT_EQ(Catalog::of(DataFileKind::Interviews).placeOf(fields::kHost), -1);
}

TEST(RecordCatalog, HasTheListOfEachKindsOwnScreen)
{
    using enum DataFileKind;
    EXPECT_EQ(knownField(NormalEndings, fields::kMatchType).items.size(), 22);
    const QStringList basic = {u"Singles"_s, u"Tag Team"_s, u"Women's Match"_s,
                               u"Women's Tag Team"_s};
    EXPECT_EQ(knownField(RunInEndings, fields::kBasicMatchType).items, basic);
    EXPECT_EQ(knownField(TurnEndings, fields::kBasicMatchType).words, basic);
    EXPECT_EQ(knownField(RunInEndings, fields::kFeudingWith).items,
              QStringList({u"Winners"_s, u"Losers"_s}));
    EXPECT_TRUE(knownField(NormalEndings, fields::kAttackerNames).items.isEmpty());
    EXPECT_TRUE(knownField(TalkShows, fields::kHeatIncrease).items.isEmpty());
    const KnownField &current = knownField(Stipulations, stipulationfields::kDrawCurrent);
    EXPECT_EQ(current.items.size(), 100);
    EXPECT_EQ(current.items.front(), u"1"_s);
    EXPECT_EQ(knownField(Stipulations, stipulationfields::kEntIncrease).items.front(), u"NA"_s);
    EXPECT_EQ(knownField(Stipulations, stipulationfields::kTitleNeeded).items,
              QStringList({u"Yes"_s, u"No"_s}));
}

TEST(RecordCatalog, HasTheWordsThatStandInTheFile)
{
    const KnownField &finisher = knownField(DataFileKind::NormalEndings, fields::kAttackerFinisher);
    EXPECT_EQ(finisher.items, QStringList({u"Any"_s, u"Pin"_s, u"Submission"_s, u"Top Rope"_s}));
    EXPECT_EQ(finisher.words, QStringList({u"Any"_s, u"p"_s, u"s"_s, u"t"_s}));
    const KnownField &quality = knownField(DataFileKind::Stipulations, stipulationfields::kQuality);
    EXPECT_EQ(quality.items.front(), u"Just Standard Ability"_s);
    EXPECT_EQ(quality.words, QStringList({u"No"_s, u"Yes"_s, u"Both"_s}));
}

TEST(RecordCatalog, OffersTagsOfItsOwnCommentaryOnly)
{
    using enum DataFileKind;
    EXPECT_EQ(Catalog::of(NormalEndings).tags().size(), 18U);
    EXPECT_EQ(Catalog::of(RunInEndings).tags().size(), 22U);
    EXPECT_EQ(knownTag(NormalEndings, u"<feudname1>"_s), nullptr);
    ASSERT_NE(knownTag(TurnEndings, u"<wrestler1>"_s), nullptr);
    EXPECT_EQ(knownTag(TurnEndings, u"<wrestler1>"_s)->meaning, u"Wrestler 1"_s);
    EXPECT_EQ(knownTag(Interviews, u"<hostname>"_s), nullptr);
    EXPECT_NE(knownTag(TalkShows, u"<hostname>"_s), nullptr);
}

TEST(RecordCatalog, KnowsWhichFieldRefusesATag)
{
    using enum DataFileKind;
    const KnownTag &manager = *knownTag(NormalEndings, u"<recmanager>"_s);
    const int place = Catalog::of(NormalEndings).placeOf(fields::kReceiverManager);
    ASSERT_EQ(manager.decider, place);
    EXPECT_TRUE(manager.isRefused(u"N/A"_s));
    EXPECT_FALSE(manager.isRefused(u"Any"_s));
    EXPECT_TRUE(manager.message.startsWith("You have the receiver's manager name as"_L1));
    EXPECT_EQ(knownTag(RunInEndings, u"<feudteam>"_s)->decider,
              Catalog::of(RunInEndings).placeOf(fields::kFeudType));
    EXPECT_EQ(knownTag(TurnEndings, u"<att2fullname>"_s)->decider,
              Catalog::of(TurnEndings).placeOf(fields::kAttackerNames));
    EXPECT_EQ(knownTag(Interviews, u"<tagteam1>"_s)->decider, 0);
    EXPECT_EQ(knownTag(NormalEndings, u"<titlename>"_s)->decider, -1);
    for (const DataFileKindRow &row : kDataFileKinds) {
        for (const KnownTag &tag : Catalog::of(row.kind).tags()) {
            EXPECT_EQ(tag.decider >= 0, tag.isRefused != nullptr);
            EXPECT_EQ(tag.decider >= 0, !tag.message.isEmpty());
        }
    }
}

/// The real screens, to compare the catalog with.
class RecordCatalogOfScreens : public testing::FlowTest
{
};

TEST_F(RecordCatalogOfScreens, HasTheTextsOfAFreshFlowAndItsLists)
{
    for (const FlowPath *flow : {&testing::kNormalPath, &testing::kRunInPath, &testing::kTurnPath,
                                 &testing::kInterviewPath, &testing::kTalkShowPath}) {
        goToCommentary(*flow);
        for (const KnownField &known : Catalog::of(flow->kind).fields()) {
            QWidget &control = source(*flow, *known.field);
            const Coding coding = known.field->coding;
            EXPECT_EQ(known.newText, lineOf(coding, controls::textOf(control)))
                << rowOf(flow->kind).content << ' ' << known.field->name;
            QStringList offered;
            if (const auto *combo = dynamic_cast<const ComboBox *>(&control)) {
                for (int item = 0; item < combo->count(); ++item) {
                    offered << combo->itemText(item);
                }
            }
            EXPECT_EQ(known.items, offered) << known.field->name;
        }
        goBack(*flow);
    }
}

TEST(RecordCatalog, StartsStipulationsAsTheirFormDoes)
{
    QStringList lines;
    for (const KnownField &known : Catalog::of(DataFileKind::Stipulations).fields()) {
        lines << known.newText;
    }
    EXPECT_EQ(lines.join(u'|'), u"Singles|||Yes|No|No|Yes|5|50|50|50|50|NA|NA|NA|NA|No|No|No"_s);
}

} // namespace
} // namespace tarvold::records
