// Compares the table of stipulations in docs/file-formats.md with the form that writes them.

#include "docs/document_tables.h"
#include "stipulations/form_tables.h"
#include "support/editor_test.h"
#include "support/print.h"

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

constexpr char kForm[] = "Form3";

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
