// Records that are taken as they stand though they are odd: legal ones, and such of another kind.

#include "records/splitter.h"

namespace tarvold::records {

/// Whether a line begins a record whose lines are all legal.
bool Splitter::isLegal(qsizetype line)
{
    for (int field = 0; field < m_length; ++field) {
        if (!has(line + field) || !m_rules.isLegal(field, at(line + field).text)) {
            return false;
        }
    }
    return true;
}

/// Whether the rest of the file is a whole number of records whose lines are all legal. Reads all
/// of it, without keeping its lines.
bool Splitter::isRestLegal()
{
    int field = 0;
    for (AnyLineReader reader(m_file.sliced(startOf(m_line))); !reader.atEnd();) {
        if (!m_rules.isLegal(field, reader.readLine().text)) {
            return false;
        }
        field = field + 1 == m_length ? 0 : field + 1;
    }
    return field == 0;
}

/// Where legal records end that begin at the next line: the file ends there, or some more that are
/// likely follow. The same line if that is not near.
qsizetype Splitter::legalUntil()
{
    for (qsizetype line = m_line; line < m_line + (qsizetype(kWindow) * m_length);) {
        if (!isLegal(line)) {
            break;
        }
        line += m_length;
        if (isInStep(line)) {
            return line;
        }
    }
    return m_line;
}

/// Takes a record whose lines are legal as it stands, though it is odd, if what follows allows it.
/// \return whether it did
bool Splitter::takeLegal()
{
    if (!m_isRestLegal) {
        m_isRestLegal = isRestLegal(); // once, for the sake of time
    }
    if (!*m_isRestLegal && m_line >= m_legalUntil) {
        m_legalUntil = legalUntil();
    }
    const bool isTaken = *m_isRestLegal || m_line < m_legalUntil;
    if (isTaken) {
        begin(m_line);
        m_line += m_length;
        ++m_inStep;
    }
    return isTaken;
}

/// How many lines a record of another kind has that begins at a line; 0 if none does.
qsizetype Splitter::foreignLength(qsizetype line)
{
    for (const DataFileKindRow &row : kDataFileKinds) {
        const LineCosts &costs = LineCosts::of(row.kind);
        int oddness = 0;
        int field = 0;
        for (; field < costs.fieldCount() && has(line + field); ++field) {
            oddness += costs.oddnessOf(field, at(line + field).sort);
            if (oddness > LineCosts::kMostOddness) {
                break;
            }
        }
        if (&costs != &m_costs && field == costs.fieldCount()) {
            return field;
        }
    }
    return 0;
}

/// Takes a record of another kind if it stands between records, or between others of its like.
bool Splitter::takeForeign()
{
    const qsizetype length = foreignLength(m_line);
    const qsizetype behind = m_line + length;
    const bool isOne =
        length > 0 && (!has(behind) || isLikely(behind) || foreignLength(behind) > 0);
    if (isOne) {
        begin(m_line);
        m_line = behind;
        m_inStep = 0;
    }
    return isOne;
}

} // namespace tarvold::records
