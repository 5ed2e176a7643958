#pragma once

#include <QByteArrayView>
#include <QString>

#include <optional>
#include <span>

namespace tarvold {

/// How a control's text becomes a line of a record, and a line the text of a control.
enum class Coding {
    AsShown,      ///< the text, unchanged
    Number,       ///< a number from 1 to 100 in plain digits
    FinisherType, ///< "Any", "p", "s" or "t"; no line at all for a text outside the list
    QualityWord,  ///< "No", "Yes" or "Both"; no line at all for a text outside the list
    BlankIfEmpty, ///< the text, or "-BLANK-" when it is exactly empty
    NoOrText,     ///< "No" where something does not apply, else the text
    AlwaysNo,     ///< "No", whatever the line was; it has no control
};

/// Stands for an empty commentary line 2 to 10.
inline constexpr char kBlankLine[] = "-BLANK-";

/// A text that a list offers, and the word for it in the file.
struct CodedText
{
    const char *text;
    const char *word;
};

/// All texts of a coding that knows only these, in the order of their list; none for the others.
std::span<const CodedText> codedTexts(Coding coding);

/// Whether a record may lack the line, as there is none for a text that the coding does not know.
bool mayLackLine(Coding coding);

/// The line for a control's text; none for a text that the coding does not know.
std::optional<QString> lineOf(Coding coding, const QString &text);

/// What a control shows for a line; none for a word that the coding does not know.
std::optional<QString> textOf(Coding coding, QByteArrayView line);

} // namespace tarvold
