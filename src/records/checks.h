#pragma once

#include "records/problems.h"
#include "records/rules.h"
#include "records/step.h"

/// What problemsOf() is made of. Each check adds what it finds, in any order.
namespace tarvold::records::checks {

/// A record under examination.
struct Examined
{
    const Record &record;
    const Rules &rules;
    int number;
    bool isLast;
    Step step;

    const Line &line(int index) const { return record.lines().at(std::size_t(index)); }
    /// Which line holds a field; -1: none does.
    int lineOf(int field) const { return record.layout().lineOfField.at(std::size_t(field)); }
    const KnownField &known(int field) const
    {
        return record.catalog().fields().at(std::size_t(field));
    }
};

using Problems = std::vector<Problem>;

/// Lines that are missing, and lines that are too many.
void checkStep(const Examined &examined, Problems &problems);

/// The latter of these.
void checkSurplus(const Examined &examined, Problems &problems);

/// Lines that end with LF or CR alone, or not at all.
/// \param isOfKind whether the record is of its kind, so that its layout is meaningful
void checkLineEnds(const Examined &examined, bool isOfKind, Problems &problems);

/// Lines that were saved as UTF-8, where the game reads its code page.
void checkEncoding(const Examined &examined, Problems &problems);

/// Lines that are empty, or outside their field's coding or list; not those that the check of the
/// encoding found, which comes before this one.
void checkWords(const Examined &examined, Problems &problems);

/// Names that read like commentary, in a field that may hold a line of it. No repair: which lines
/// were lost, nobody can tell.
void checkNames(const Examined &examined, Problems &problems);

/// The tags of all commentary.
void checkTags(const Examined &examined, Problems &problems);

} // namespace tarvold::records::checks
