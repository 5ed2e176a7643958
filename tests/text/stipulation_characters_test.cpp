#include "controls/controls.h"
#include "stipulations/form_tables.h"
#include "stipulations/stipulation_test.h"
#include "text/texts.h"

#include <QAccessible>
#include <QLineEdit>

/// Text pasted into the fields of a stipulation reaches the file byte for byte, or a message names
/// the character that cannot be saved and nothing is written.
namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

/// A line that is the text of a control.
struct TypedLine
{
    int number; ///< from 1
    const char *control;
    Coding coding;
};

/// All of them, in their order.
std::vector<TypedLine> typedLines()
{
    std::vector<TypedLine> lines;
    for (int number = 1; const stipulationform::FormLine &line : stipulationform::kLines) {
        const Coding coding = line.field->coding;
        if (coding == Coding::AsShown || coding == Coding::NoOrText) {
            lines.push_back({number, line.control, coding});
        }
        ++number;
    }
    return lines;
}

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

    /// Pastes text into every field that is saved unchanged.
    void pasteEverywhere(const QString &text)
    {
        pasteOver("exclusive", u"Yes"_s);
        for (const TypedLine &line : typedLines()) {
            pasteOver(line.control, text);
        }
    }

    void expectEverywhere(const texts::Taken &row)
    {
        pasteEverywhere(row.text);
        save();
        const QByteArrayList lines = texts::linesOf(readBack(kFile));
        ASSERT_EQ(lines.size(), 19);
        for (const TypedLine &line : typedLines()) {
            EXPECT_EQ(lines[line.number - 1], row.bytes) << line.control;
        }
    }

    /// Sets the text of a field as assistive technology does, which bypasses the filters of a text
    /// box.
    void setByAssistiveTechnology(const char *field, const QString &text)
    {
        QAccessible::queryAccessibleInterface(controls::textBoxOf(control("Form3", field)))
            ->setText(QAccessible::Value, text);
        EXPECT_EQ(shown(field), text);
    }

    /// Loads a file, whose lines may contain anything, and edits its first stipulation.
    void editFrom(const QByteArray &file)
    {
        cancel();
        press("Form16", "Command3");
        open(file);
        edit(0);
    }

    void expectRefused(const char *field, const QString &character, const QByteArray &file = {})
    {
        const QString name = control("Form3", field).accessibleName();
        EXPECT_FALSE(name.isEmpty());
        boxes.expectNotice(u"Stipulations Editor"_s, texts::refusalOf(name, character));
        press("Form3", "Command2");
        expectOnly("Form3");
        EXPECT_EQ(readBack(kFile), file);
    }

    /// Puts line breaks into each field in turn, expects them to be refused, and then fixes the
    /// field.
    void expectBreaksRefusedEverywhere(const QByteArray &file)
    {
        for (const TypedLine &line : typedLines()) {
            if (line.coding == Coding::NoOrText) {
                put("exclusive", "Yes"); // else nobody would read the initials
            }
            expectBreaksRefused(line.control, file);
        }
    }

    void expectBreaksRefused(const char *field, const QByteArray &file)
    {
        SCOPED_TRACE(field);
        for (const auto &[text, character] : {std::pair("one\rtwo", "U+000D"),
                                              {"one\ntwo", "U+000A"},
                                              {"one\r", "U+000D"},
                                              {"one\r\ntwo", "U+000D"}}) {
            setByAssistiveTechnology(field, utf8(text));
            expectRefused(field, utf8(character), file);
        }
        put(field, "fixed");
    }

    void expectRefusedAndFix(const char *field, const texts::Refused &odd)
    {
        SCOPED_TRACE(field);
        expectRefused(field, odd.character);
        EXPECT_EQ(shown(field), odd.text);
        put(field, "fixed");
    }
};

TEST_F(StipulationCharacters, TheWholeCodePageIsSavedFromEveryField)
{
    expectEverywhere(texts::wholePage());
}

TEST_F(StipulationCharacters, LineBreaksBecomeSpacesInEveryField)
{
    expectEverywhere(texts::lineBreaks());
}

TEST_F(StipulationCharacters, LettersWithCombiningMarksAreComposedInEveryField)
{
    expectEverywhere(texts::marks());
}

TEST_F(StipulationCharacters, AreShownUnchangedInTheForm)
{
    const texts::Taken page = texts::wholePage();
    expectEverywhere(page);
    edit(0);
    for (const TypedLine &line : typedLines()) {
        EXPECT_EQ(shown(line.control), codepage::decode(page.bytes)) << line.control;
    }
}

TEST_F(StipulationCharacters, UnsupportedCharactersAreRefusedInEveryField)
{
    std::size_t place = 0;
    pasteOver("exclusive", u"Yes"_s);
    for (const TypedLine &line : typedLines()) {
        pasteOver(line.control, texts::refusedAt(place++).text);
    }
    place = 0;
    for (const TypedLine &line : typedLines()) {
        expectRefusedAndFix(line.control, texts::refusedAt(place++));
    }
    save();
    EXPECT_EQ(texts::linesOf(readBack(kFile)).count("fixed"), 16);
}

TEST_F(StipulationCharacters, LineBreaksFromAssistiveTechnologyAreRefusedInANewStipulation)
{
    put("stipulation", "Ladder Match");
    expectBreaksRefusedEverywhere({});
    save();
    EXPECT_EQ(texts::linesOf(readBack(kFile)).count("fixed"), 16);
}

TEST_F(StipulationCharacters, LineBreaksAreRefusedInEveryChangedFieldOfAnEditedStipulation)
{
    const QByteArray file = stipulation("Singles", "One");
    editFrom(file);
    expectBreaksRefusedEverywhere(file);
    save();
    EXPECT_EQ(texts::linesOf(readBack(kFile)).count("fixed"), 16);
}

/// The lines of a stipulation with line breaks in each field.
OtherLines brokenLines()
{
    OtherLines lines;
    for (const TypedLine &line : typedLines()) {
        lines[line.number] = "\r" + QByteArray::number(line.number) + "\nx\r";
    }
    lines[17] = "A\nB";
    return lines;
}

TEST_F(StipulationCharacters, UnchangedLineBreaksOfAnEditedStipulationAreKept)
{
    OtherLines lines = brokenLines();
    editFrom(stipulation({}, {}, lines));
    put("matchshowsas", "changed");
    lines[3] = "changed";
    save();
    EXPECT_EQ(readBack(kFile), stipulation({}, {}, lines));
}

TEST_F(StipulationCharacters, NewLineBreaksAreRefusedBesideExistingOnes)
{
    const QByteArray file = stipulation({}, {}, brokenLines());
    editFrom(file);
    const QString loaded = shown("matchshowsas");
    setByAssistiveTechnology("matchshowsas", loaded + u'!');
    expectRefused("matchshowsas", u"U+000D"_s, file);
    setByAssistiveTechnology("matchshowsas", loaded);
    save();
    EXPECT_EQ(readBack(kFile), file);
}

} // namespace
} // namespace tarvold::testing
