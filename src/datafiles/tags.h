#pragma once

#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

/// The tags in a line of commentary, such as "<recshortname>", and what is wrong with them.
namespace tarvold::tags {

/// A tag, or what begins like one.
struct Tag
{
    qsizetype from; ///< where its "<" is
    QString text;   ///< with its "<" and ">"; if unclosed, up to the next "<" or the end
    bool isClosed;

    /// The first position behind it.
    qsizetype end() const { return from + text.size(); }
};

/// The first tag at or after a position.
std::optional<Tag> nextTag(const QString &line, qsizetype from);

/// The known tag that is closest to a mistyped one, by edit distance without regard to capital
/// letters. Nothing if even that is too far away to be meant.
std::optional<QString> nearest(const QString &tag, const QStringList &known);

/// All known tags that are as close to it as the closest one, in their order.
QStringList allNearest(const QString &tag, const QStringList &known);

/// The digits of a text, one after the other.
QString digitsOf(const QString &text);

/// Which tags a commentary may have.
struct Rules
{
    QStringList known;
    /// Why a known tag cannot be used now, in a sentence; empty if it can.
    std::function<QString(const QString &tag)> refusal;
};

/// What is wrong with the tags of a line, in its order: a sentence for each, but not for more than
/// ten.
/// \param cursor where the user is typing, if in this line: a tag around it is not finished, so it
///     has no problem yet
QStringList problemsIn(const QString &line, const Rules &rules, std::optional<qsizetype> cursor);

} // namespace tarvold::tags
