#include "records/step_words.h"

#include "records/wording.h"

namespace tarvold::records::checks {

using namespace Qt::StringLiterals;
using namespace wording;

QString consequence(const Examined &examined, bool isAtEnd)
{
    const auto lines = int(examined.record.lines().size());
    if (lines == examined.record.catalog().fieldCount()) {
        return u" The game reads this %1 wrongly."_s.arg(
            recordOf(examined.record.catalog().kind()));
    }
    return examined.isLast && isAtEnd
               ? u" The game reads everything that is added to the file wrongly."_s
               : u" The game reads everything after it wrongly."_s;
}

QString howManyLines(const Examined &examined)
{
    const QString record = atStart(recordOf(examined.record.catalog().kind()));
    const auto lines = examined.record.lines().size();
    return lines == 1 ? u"%1 %2 has 1 line"_s.arg(record).arg(examined.number)
                      : u"%1 %2 has %3 lines"_s.arg(record).arg(examined.number).arg(lines);
}

int lastLineOf(const Examined &examined, int field)
{
    const int whole = examined.step.layout.lineOfField.at(std::size_t(field));
    return examined.step.wholes.at(std::size_t(whole)).last;
}

} // namespace tarvold::records::checks
