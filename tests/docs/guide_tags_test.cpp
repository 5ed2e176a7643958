// Compares the tables of tags in docs/guide.md with those of the commentary screens.

#include "docs/markdown.h"
#include "screens/commentary_screen.h"
#include "support/editor_test.h"
#include "support/print.h"

#include <QRegularExpression>

#include <map>
#include <set>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

struct ScreenCase
{
    const char *heading; ///< of the table in the guide
    const char *ending;  ///< in the table's column "In"; null for a table of this screen alone
    const char *screen;
};

constexpr ScreenCase kScreens[] = {
    {"Match endings", "normal", "Form7"}, {"Match endings", "run-in", "Form9"},
    {"Match endings", "turn", "Form11"},  {"Interviews", nullptr, "Form13"},
    {"Talk shows", nullptr, "Form15"},
};

/// A refusal as the guide describes it.
struct GuideRefusal
{
    QString message;
    QString when;
};

class GuideTags : public EditorTest
{
protected:
    GuideTags() : tables(markdownTables(QStringLiteral(TARVOLD_GUIDE)))
    {
        const QStringList head = {u"Refusal"_s, u"The message says"_s, u"When"_s};
        for (const QStringList &row : rowsUnder(u"When a tag is refused"_s, head)) {
            refusals[row[0]] = {row[1], row[2]};
        }
    }

    std::vector<QStringList> rowsUnder(const QString &heading, const QStringList &head)
    {
        for (const MarkdownTable &table : tables) {
            if (table.heading == heading && table.head == head) {
                return table.rows;
            }
        }
        ADD_FAILURE() << "no such table: " << heading.toStdString();
        return {};
    }

    std::vector<QStringList> endingRows()
    {
        return rowsUnder(u"Match endings"_s,
                         {u"Tag in the list"_s, u"Puts in"_s, u"In"_s, u"Refusal"_s});
    }

    /// The guide's rows for a screen in order: tag in the list, what it puts in, refusal.
    std::vector<QStringList> tagRows(const ScreenCase &test)
    {
        if (test.ending == nullptr) {
            return rowsUnder(QLatin1StringView(test.heading),
                             {u"Tag in the list"_s, u"Puts in"_s, u"Refusal"_s});
        }
        std::vector<QStringList> rows;
        for (const QStringList &row : endingRows()) {
            if (endingsOf(row).contains(QLatin1StringView(test.ending))) {
                rows.push_back({row[0], row[1], row[3]});
            }
        }
        return rows;
    }

    /// The kinds of endings that a row of the endings' table names.
    static QStringList endingsOf(const QStringList &row) { return row[2].split(u", "_s); }

    std::span<const CommentaryTag> tagsOf(const char *name)
    {
        auto *commentary = qobject_cast<CommentaryScreen *>(&screen(name));
        EXPECT_NE(commentary, nullptr) << name;
        return commentary != nullptr ? commentary->table().tags : std::span<const CommentaryTag>();
    }

    /// The name that the guide gives a refusal.
    QString nameOf(const Refusal *refusal)
    {
        if (refusal == nullptr) {
            return u"never"_s;
        }
        for (const auto &[name, told] : refusals) {
            if (told.message == QLatin1StringView(refusal->message)) {
                return name;
            }
        }
        return u"none that the guide tells"_s;
    }

    void expectConditionOf(const Refusal &refusal)
    {
        // Such as: "Type of Feud" is "Singles"
        static const QRegularExpression condition(
            u"^\"(.+)\" is (not )?\"([^\"]+)\"(?: or \"([^\"]+)\")?"_s);
        const QString when = refusals[nameOf(&refusal)].when;
        const auto match = condition.match(when);
        ASSERT_TRUE(match.hasMatch()) << when.toStdString();
        EXPECT_EQ(match.captured(1),
                  control(refusal.box.screen, refusal.box.control).accessibleName());
        for (const int word : {3, 4}) {
            if (match.hasCaptured(word)) {
                EXPECT_EQ(refusal.isRefused(match.captured(word)), !match.hasCaptured(2)) << word;
            }
        }
    }

    std::vector<MarkdownTable> tables;
    std::map<QString, GuideRefusal> refusals;
};

TEST_F(GuideTags, EveryScreenOffersTheTagsOfItsTable)
{
    for (const ScreenCase &test : kScreens) {
        SCOPED_TRACE(test.screen);
        std::vector<QStringList> expected;
        for (const CommentaryTag &tag : tagsOf(test.screen)) {
            const QString code = u'`' + QString(QLatin1StringView(tag.tag)) + u'`';
            expected.push_back({QLatin1StringView(tag.item), code, nameOf(tag.refusal)});
        }
        EXPECT_EQ(tagRows(test), expected);
    }
}

TEST_F(GuideTags, EveryEndingTagIsPrintedOnceAndNamesOnlyKindsOfEndings)
{
    const QStringList kinds = {u"normal"_s, u"run-in"_s, u"turn"_s};
    std::set<QString> tags;
    for (const QStringList &row : endingRows()) {
        EXPECT_TRUE(tags.insert(row[1]).second) << row[1].toStdString();
        for (const QString &kind : endingsOf(row)) {
            EXPECT_TRUE(kinds.contains(kind)) << row[1].toStdString() << kind.toStdString();
        }
    }
    EXPECT_FALSE(tags.empty());
}

TEST_F(GuideTags, EveryRefusalBelongsToATagAndIsListedWithItsCondition)
{
    std::set<QString> used;
    for (const ScreenCase &test : kScreens) {
        for (const CommentaryTag &tag : tagsOf(test.screen)) {
            if (tag.refusal != nullptr && used.insert(nameOf(tag.refusal)).second) {
                expectConditionOf(*tag.refusal);
            }
        }
    }
    for (const auto &[name, told] : refusals) {
        EXPECT_TRUE(used.contains(name)) << name.toStdString();
    }
}

} // namespace
} // namespace tarvold::testing
