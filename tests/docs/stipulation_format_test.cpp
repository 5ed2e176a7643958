// Compares the table of stipulations in docs/file-formats.md with the form that writes them.

#include "docs/document_tables.h"
#include "stipulations/form_tables.h"
#include "support/editor_test.h"
#include "support/print.h"

#include <map>

namespace tarvold::testing {
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

    DocumentRow rowFor(int line, const char *control, const QString &value)
    {
        return {QString::number(line), this->control(kForm, control).accessibleName(),
                QStringLiteral("Form3, ") + QLatin1StringView(control), value};
    }

    std::vector<DocumentRow> rows;
};

TEST_F(StipulationFormat, EveryRowIsALineOfTheForm)
{
    std::map<int, DocumentRow> expected;
    for (const stipulationform::PlainLine &plain : stipulationform::kPlainLines) {
        expected[plain.line] = rowFor(plain.line, plain.control, QStringLiteral("as shown"));
    }
    // These are not shown as they are.
    expected[6] = {QStringLiteral("6"), QStringLiteral("none"), QStringLiteral("none"),
                   QStringLiteral("always `No`")};
    expected[8] = rowFor(8, "HScroll1", QStringLiteral("the digits"));
    expected[17] = rowFor(17, "prominitials", QStringLiteral("`No` or the initials"));
    expected[18] = rowFor(18, "matchquality", QStringLiteral("quality word"));

    ASSERT_EQ(rows.size(), expected.size());
    std::size_t row = 0;
    for (const auto &[line, expectedRow] : expected) {
        EXPECT_EQ(rows[row++], expectedRow);
    }
}

} // namespace
} // namespace tarvold::testing
