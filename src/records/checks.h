#pragma once

#include "records/problems.h"
#include "records/rules.h"

/// What problemsOf() is made of. Each check adds what it finds, in any order.
namespace tarvold::records::checks {

/// A record under examination.
struct Examined
{
    const Record &record;
    const Rules &rules;
    int number;
    bool isLast;

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

/// Lines that end with LF or CR alone, or not at all.
/// \param isOfKind whether the record is of its kind, so that its layout is meaningful
void checkLineEnds(const Examined &examined, bool isOfKind, Problems &problems);

/// A line that was saved as UTF-8, where the game reads its code page.
/// \return whether it was, and can be repaired: what it holds is not known before
bool checkEncoding(const Examined &examined, int field, Problems &problems);

/// A line that is empty, or outside the field's coding or list.
void checkWord(const Examined &examined, int field, Problems &problems);

/// The tags of all commentary.
void checkTags(const Examined &examined, Problems &problems);

} // namespace tarvold::records::checks
