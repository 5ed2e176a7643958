#pragma once

#include <QString>
#include <QStringList>

namespace tarvold {
struct RecordField;
}

/// The names in a field, which may hold several, separated by commas.
namespace tarvold::records::names {

/// Whether a word stands where a name could stand, but is none: "Any", "N/A" or "None", or nothing.
bool isNoName(const QString &text);

/// Whether a field may hold several names. In all others a comma is part of the one name, as in
/// "Rocco Vance, Jr.".
bool mayBeSeveral(const RecordField &field);

/// All names of a field that may hold several, without spaces around them. A word that is no name
/// leaves its place empty, so that the second name stays the second.
QStringList in(const QString &text);

/// The one name of another field, without spaces around it; an empty one for a word that is none.
QStringList only(const QString &text);

/// What a wrestler with one of these names is called for short: the last word of the name, but not
/// "Jr." and the like, or its first if another of them ends in the same word, as partners of one
/// family do.
QString shortOf(const QStringList &names, qsizetype which);

/// Several words as a text: "one", "one and two", "one, two and three".
QString joined(const QStringList &words);

} // namespace tarvold::records::names
