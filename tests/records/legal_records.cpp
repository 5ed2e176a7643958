#include "records/legal_records.h"

namespace tarvold::testing {

using records::Catalog;
using records::KnownField;
using records::KnownTag;

namespace {

constexpr const char *kTexts[] = {
    "Any",          "N/A",          "None",          "Rocco Vance", "Rocco Vance,Dex Vance",
    "Ladder Match", "The Ruckus",   "Ren\xe9 Duval", "3 Count",     "Big \"Bad\" Hale",
    "OL\xc9\x85",   "IRM\xc3\x92S",
};
constexpr const char *kInitials[] = {"No", "XWL", "T.V.", "ABC"};
constexpr const char *kLegalSentences[] = {
    "The referee counts... one, two, three!",
    "He hits it, and that is that.",
    "Nobody gets up from that one",
    "\"There is nobody here who can stop me.\"",
    "The fans in the caf\xe9 can't believe it; 5 > 4!",
    "One... Two... N/A",
    "OL\xc9\x85",
    "REN\xc9\x92S IRM\xc3\x85 Ol\xe9\x85\x94",
    "\x93It\x92s over\x85\x94 \x96 5 \x80\x99!",
};

/// The words of a sentence with a tag that this record allows.
QByteArray tagged(const Catalog &catalog, const QByteArrayList &lines, Dice &dice)
{
    const KnownTag &tag = dice.pick(catalog.tags());
    const bool isRefused =
        tag.isRefused != nullptr && tag.isRefused(QString::fromLatin1(lines.at(tag.decider)));
    return isRefused ? QByteArray() : tag.tag.toLatin1();
}

QByteArray commentary(const Catalog &catalog, const QByteArrayList &lines, Dice &dice)
{
    QByteArray text;
    for (int parts = 1 + dice.below(3); parts > 0; --parts) {
        text += tagged(catalog, lines, dice) + (dice.chance(50) ? " " : "") +
                dice.pick(kLegalSentences) + (parts > 1 ? " " : "");
    }
    return text;
}

QByteArray legalLine(const KnownField &known, Dice &dice)
{
    if (known.field->coding == Coding::Number) {
        return QByteArray::number(1 + dice.below(100));
    }
    if (known.field->coding == Coding::AlwaysNo) {
        return "No";
    }
    if (known.field->coding == Coding::NoOrText) {
        return dice.pick(kInitials);
    }
    return known.words.isEmpty() ? QByteArray(dice.pick(kTexts))
                                 : dice.pick(known.words).toLatin1();
}

} // namespace

QByteArrayList legalLines(DataFileKind kind, Dice &dice)
{
    const Catalog &catalog = Catalog::of(kind);
    QByteArrayList lines;
    for (int field = 0; field < catalog.fieldCount(); ++field) {
        if (!catalog.isCommentary(field)) {
            lines << legalLine(catalog.fields().at(std::size_t(field)), dice);
        } else if (field > catalog.firstCommentary() && dice.chance(40)) {
            lines << kBlankLine;
        } else {
            lines << commentary(catalog, lines, dice);
        }
    }
    return lines;
}

QByteArrayList newLines(DataFileKind kind)
{
    const Catalog &catalog = Catalog::of(kind);
    QByteArrayList lines;
    for (const KnownField &known : catalog.fields()) {
        lines << known.newText.toLatin1();
    }
    if (kind == DataFileKind::Stipulations) {
        lines[1] = "Ladder Match";
    } else {
        lines[catalog.firstCommentary()] = "That is it!";
    }
    return lines;
}

QByteArray ended(const QByteArrayList &lines)
{
    return lines.join("\r\n") + "\r\n";
}

} // namespace tarvold::testing
