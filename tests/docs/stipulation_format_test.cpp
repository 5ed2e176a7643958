// Compares the table of stipulations in docs/file-formats.md with the form that writes them.

#include "docs/document_tables.h"
#include "stipulations/form_tables.h"
#include "support/editor_test.h"
#include "support/print.h"

#include <map>

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

    DocumentRow rowFor(int line, const char *control, const QString &value)
    {
        return {QString::number(line), this->control(kForm, control).accessibleName(),
                u"Form3, "_s + QLatin1StringView(control), value};
    }

    std::vector<DocumentRow> rows;
};

TEST_F(StipulationFormat, EveryRowIsALineOfTheForm)
{
    std::map<int, DocumentRow> expected;
    for (const stipulationform::PlainLine &plain : stipulationform::kPlainLines) {
        expected[plain.line] = rowFor(plain.line, plain.control, u"as shown"_s);
    }
    // These are not shown as they are.
    expected[6] = {u"6"_s, u"none"_s, u"none"_s, u"always `No`"_s};
    expected[8] = rowFor(8, "HScroll1", u"the digits"_s);
    expected[17] = rowFor(17, "prominitials", u"`No` or the initials"_s);
    expected[18] = rowFor(18, "matchquality", u"quality word"_s);

    ASSERT_EQ(rows.size(), expected.size());
    std::size_t row = 0;
    for (const auto &[line, expectedRow] : expected) {
        EXPECT_EQ(rows[row++], expectedRow);
    }
}

} // namespace
} // namespace tarvold::testing
