#include "stipulations/form_tables.h"
#include "stipulations/stipulation_test.h"
#include "text/texts.h"

#include <QAccessible>
#include <QLineEdit>

/// What is pasted into the fields of a stipulation reaches the file byte by byte, or is refused by
/// name before anything is written.
namespace tarvold::testing {
namespace {

class StipulationCharacters : public StipulationTest
{
public:
    StipulationCharacters()
    {
        open({});
        createNew();
    }

protected:
    void pasteOver(const char *name, const QString &text)
    {
        QWidget &field = control("Form3", name);
        click(field);
        QTest::keySequence(field.window()->windowHandle(), QKeySequence::SelectAll);
        paste(field, text);
    }

    /// Pastes a text into every field that is shown in the file as it is.
    void pasteEverywhere(const QString &text)
    {
        for (const stipulationform::PlainLine &plain : stipulationform::kPlainLines) {
            pasteOver(plain.control, text);
        }
        pasteOver("exclusive", QStringLiteral("Yes"));
        pasteOver("prominitials", text);
    }

    void expectEverywhere(const texts::Taken &row)
    {
        pasteEverywhere(row.text);
        save();
        const QByteArrayList lines = texts::linesOf(readBack(kFile));
        ASSERT_EQ(lines.size(), 19);
        for (const stipulationform::PlainLine &plain : stipulationform::kPlainLines) {
            EXPECT_EQ(lines[plain.line - 1], row.bytes) << plain.control;
        }
        EXPECT_EQ(lines[16], row.bytes);
    }

    void expectRefused(const char *field, const QString &character)
    {
        const QString name = control("Form3", field).accessibleName();
        EXPECT_FALSE(name.isEmpty());
        boxes.expectNotice(QStringLiteral("Stipulations Editor"), texts::toldOf(name, character));
        press("Form3", "Command2");
        expectOnly("Form3");
        EXPECT_EQ(readBack(kFile), QByteArray());
    }

    void expectRefusedAndMend(const char *field, const texts::Refused &odd)
    {
        SCOPED_TRACE(field);
        expectRefused(field, odd.told);
        EXPECT_EQ(shown(field), odd.text);
        put(field, "mended");
    }
};

TEST_F(StipulationCharacters, OfTheWholePageReachTheFileFromEveryField)
{
    expectEverywhere(texts::wholePage());
}

TEST_F(StipulationCharacters, ThatBreakLinesAreBlanksInEveryField)
{
    expectEverywhere(texts::lineBreaks());
}

TEST_F(StipulationCharacters, OfALetterAndItsMarkAreOneInEveryField)
{
    expectEverywhere(texts::marks());
}

TEST_F(StipulationCharacters, ComeBackToTheFormAsTheyWere)
{
    const texts::Taken page = texts::wholePage();
    expectEverywhere(page);
    edit(0);
    for (const stipulationform::PlainLine &plain : stipulationform::kPlainLines) {
        EXPECT_EQ(shown(plain.control), codepage::decode(page.bytes)) << plain.control;
    }
}

TEST_F(StipulationCharacters, ThatNoFileHoldsAreToldWithTheirFieldInEveryField)
{
    std::size_t place = 0;
    for (const stipulationform::PlainLine &plain : stipulationform::kPlainLines) {
        pasteOver(plain.control, texts::refusedAt(place++).text);
    }
    pasteOver("exclusive", QStringLiteral("Yes"));
    pasteOver("prominitials", texts::refusedAt(place).text);
    place = 0;
    for (const stipulationform::PlainLine &plain : stipulationform::kPlainLines) {
        expectRefusedAndMend(plain.control, texts::refusedAt(place++));
    }
    expectRefusedAndMend("prominitials", texts::refusedAt(place));
    save();
    EXPECT_EQ(texts::linesOf(readBack(kFile)).count("mended"), 16);
}

TEST_F(StipulationCharacters, OfALineEndFromAnAssistingProgramAreRefused)
{
    put("stipulation", "Ladder Match");
    QAccessible::queryAccessibleInterface(&control("Form3", "matchshowsas"))
        ->setText(QAccessible::Value, QStringLiteral("one\r\ntwo"));
    expectRefused("matchshowsas", QStringLiteral("U+000D"));
}

} // namespace
} // namespace tarvold::testing
