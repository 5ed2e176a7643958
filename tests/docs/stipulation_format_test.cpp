// Compares the table of stipulations in docs/file-formats.md with the form that writes them.

#include "docs/document_tables.h"
#include "stipulations/form_tables.h"
#include "support/editor_test.h"
#include "support/print.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr char kForm[] = "Form3";

QString valueWord(Coding coding)
{
    switch (coding) {
    case Coding::Number:
        return u"the digits"_s;
    case Coding::QualityWord:
        return u"quality word"_s;
    case Coding::NoOrText:
        return u"`No` or the initials"_s;
    case Coding::AlwaysNo:
        return u"always `No`"_s;
    default:
        return u"as shown"_s;
    }
}

class StipulationFormat : public EditorTest
{
protected:
    StipulationFormat()
    {
        const std::vector<DocumentSection> sections = documentSections();
        if (!sections.empty()) {
            rows = sections.back().rows;
        }
    }

    /// The row for a line of the form. One without a control has no field to be named by.
    DocumentRow rowFor(int number, const stipulationform::FormLine &line)
    {
        if (line.control == nullptr) {
            return {QString::number(number), u"none"_s, u"none"_s, valueWord(line.field->coding)};
        }
        return {QString::number(number), control(kForm, line.control).accessibleName(),
                u"Form3, "_s + QLatin1StringView(line.control), valueWord(line.field->coding)};
    }

    std::vector<DocumentRow> rows;
};

TEST_F(StipulationFormat, EveryRowIsALineOfTheForm)
{
    ASSERT_EQ(rows.size(), stipulationform::kLines.size());
    for (int number = 1; const stipulationform::FormLine &line : stipulationform::kLines) {
        EXPECT_EQ(rows.at(std::size_t(number - 1)), rowFor(number, line));
        ++number;
    }
}

TEST_F(StipulationFormat, EveryControlHasTheNameOfItsField)
{
    for (const stipulationform::FormLine &line : stipulationform::kLines) {
        if (line.control != nullptr) {
            EXPECT_EQ(control(kForm, line.control).accessibleName(),
                      QLatin1StringView(line.field->name));
        }
    }
}

} // namespace
} // namespace tarvold::testing
