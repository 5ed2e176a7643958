#pragma once

#include "records/catalog.h"
#include "walk/dice.h"

#include <QByteArrayList>

namespace tarvold::testing {

/// The lines of a record such as the screens write: words of their lists, texts, and commentary
/// with tags that are not refused. None has a problem.
QByteArrayList legalLines(DataFileKind kind, Dice &dice);

/// The lines of a record that nobody filled in but for what has to be.
QByteArrayList newLines(DataFileKind kind);

/// Ends each line with CR LF.
QByteArray ended(const QByteArrayList &lines);

} // namespace tarvold::testing
