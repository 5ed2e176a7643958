#pragma once

#include "walk/dice.h"

#include <QByteArray>
#include <QString>

/// Random input for the walk.
namespace tarvold::testing::samples {

/// Text that an author might type; sometimes unusual characters or very long text.
QString text(Dice &dice);

/// A file name: mostly valid, but some are missing, forbidden or not an ordinary file.
QString fileName(Dice &dice);

/// Content that another program might write to a data file: mostly whole records.
QByteArray fileContent(Dice &dice, int linesPerRecord);

} // namespace tarvold::testing::samples
