#pragma once

#include "walk/dice.h"

#include <QByteArray>
#include <QString>

/// What the walk types, and what it puts into the folder.
namespace tarvold::testing::samples {

/// What an author might type, or might not: every so often odd characters and long texts.
QString text(Dice &dice);

/// A name for a data file: most are good, some name what is missing, forbidden or no file at all.
QString fileName(Dice &dice);

/// What another program might leave in a data file: mostly whole records of so many lines.
QByteArray fileContent(Dice &dice, int linesPerRecord);

} // namespace tarvold::testing::samples
