#include "records/problems.h"

#include "records/checks.h"
#include "records/wording.h"

#include <algorithm>

namespace tarvold::records {

using namespace Qt::StringLiterals;
using namespace checks;

namespace {

constexpr int kMostRepairs = 1000; ///< of one record; more has only a file that is no data file

bool isStep(const Problem &problem)
{
    return problem.type == Problem::Type::MissingLine || problem.type == Problem::Type::SurplusLine;
}

/// Whether the problem makes it doubtful that the record is of this kind.
bool isDoubt(const Problem &problem)
{
    return isStep(problem) || problem.type == Problem::Type::UnknownWord;
}

/// The kind that the record is of, if that is another one.
std::optional<DataFileKind> otherKindOf(const Examined &examined, const Problems &problems)
{
    return std::any_of(problems.begin(), problems.end(), isDoubt)
               ? looksLike(examined.record.lines(), examined.record.catalog().kind())
               : std::nullopt;
}

/// Tells of another kind in place of all that was found by the fields of this one.
void tellOtherKind(const Examined &examined, DataFileKind other, Problems &problems)
{
    std::erase_if(problems,
                  [](const Problem &problem) { return problem.type != Problem::Type::Utf8; });
    const DataFileKind kind = examined.record.catalog().kind();
    problems.push_back({.type = Problem::Type::OtherKind,
                        .text = u"Record %1 looks like %2. In this file the game takes it for "
                                "%3."_s.arg(QString::number(examined.number), wording::oneOf(other),
                                            wording::oneOf(kind))});
}

bool isSame(const Layout &one, const Layout &other)
{
    return one.lineOfField == other.lineOfField && one.surplus == other.surplus;
}

/// Withholds repairs of a record out of step after which its lines would be taken for other fields:
/// what belongs into the line is known only when no line is missing or too many.
void withholdDoubtful(const Record &record, Problems &problems)
{
    if (record.layout().isWhole()) {
        return;
    }
    for (Problem &problem : problems) {
        if (isStep(problem) || problem.repair.isEmpty()) {
            continue;
        }
        const Record repaired(problem.repaired, record.catalog());
        if (!isSame(repaired.layout(), record.layout())) {
            problem.repair.clear();
            problem.repaired.clear();
        }
    }
}

} // namespace

std::vector<Problem> problemsOf(const Record &record, int number, bool isLast)
{
    const Examined examined = {record, Rules::of(record.catalog()), number, isLast,
                               Step::of(record)};
    Problems problems;
    checkStep(examined, problems);
    checkEncoding(examined, problems);
    checkWords(examined, problems);
    checkNames(examined, problems);
    checkTags(examined, problems);
    const std::optional<DataFileKind> other = otherKindOf(examined, problems);
    if (other) {
        tellOtherKind(examined, *other, problems);
    }
    withholdDoubtful(record, problems);
    checkLineEnds(examined, !other, problems);
    std::stable_sort(
        problems.begin(), problems.end(),
        [](const Problem &one, const Problem &another) { return one.line < another.line; });
    return problems;
}

QByteArray repairAll(const Record &record, bool isLast)
{
    Record repaired = record;
    for (int repairs = 0; repairs < kMostRepairs; ++repairs) {
        const Problems problems = problemsOf(repaired, 1, isLast);
        const auto isOffered = [](const Problem &problem) {
            return !problem.repair.isEmpty() && !problem.isSingle;
        };
        // What the other lines hold is sure only when every line is at its place.
        auto next = std::find_if(problems.begin(), problems.end(), [&](const Problem &problem) {
            return isStep(problem) && isOffered(problem);
        });
        if (next == problems.end()) {
            next = std::find_if(problems.begin(), problems.end(), isOffered);
        }
        if (next == problems.end()) {
            break;
        }
        repaired = Record(next->repaired, record.catalog());
    }
    return repaired.bytes();
}

} // namespace tarvold::records
