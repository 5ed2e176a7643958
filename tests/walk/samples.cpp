#include "walk/samples.h"

#include "datafiles/code_page.h"

namespace tarvold::testing::samples {

using namespace Qt::StringLiterals;

namespace {

constexpr const char *kPlain[] = {
    "Any",
    "N/A",
    "None",
    "-BLANK-",
    "The end.",
    "Pin",
    "Submission",
    "Yes",
    "No",
    "Singles",
    "Ladder Match",
    "Just Hardcore Ability",
    "a & b",
    "<b>x</b>",
    "%1 %2 %n",
    "<att1fullname> pins <rec1fullname>!",
    "",
    " ",
    " two  blanks  ",
    "NA",
    "50",
    "-1",
    "100%",
    "99999999999999999999",
    "Caf\u00E9",
    "\u20AC 100",
    "\u201Cyes\u201D",
    "Women's Match",
};

/// Each of these is refused, composed with its neighbour, or replaced by a space.
constexpr const char *kOdd[] = {
    "e\u0301", "q\u0301",  "\u0301",   "\u65E5\u672C", "\U0001F93C", "\u200E\u200F",
    "\u202Ex", "\u200B",   "\uFEFF",   "\u0142",       "a\nb",       "a\r\nb\r\n",
    "a\rb",    "a\u2028b", "a\u2029b", "a\u0085b",     "\t",         "a\vb\fc",
    "\u037E",  "\u212B",   "\u00A0",   "\u0081",       "\u0080",     "o\u0308\u0301",
};

constexpr const char *kNames[] = {
    "normreports.tvd", "feudreports.tvd",
    "turnreports.tvd", "interviews.tvd",
    "talkshow.tvd",    "stipulations.tvd",
    "mine.tvd",        "a name of my own.txt",
    "sub/inside.tvd",  "../beside.tvd",
    "link.tvd",        "\u65E5\u672C \u202E.tvd",
    ":colon.tvd",      ".tvd",
    "locked.tvd",      "x.TVD",
};

constexpr const char *kUnfitNames[] = {
    "", "sub", "missing/x.tvd", "pipe.tvd", "loop.tvd", "/dev/full", ".", "normreports.tvd/x.tvd",
};

QString oddText(Dice &dice)
{
    switch (dice.below(12)) {
    case 0: {
        QByteArray all;
        for (int byte = 0; byte < 256; ++byte) {
            all += static_cast<char>(byte);
        }
        return codepage::decode(all);
    }
    case 1:
        return u"x"_s.repeated(1 + dice.below(40'000));
    case 2:
        return u"a"_s + QChar(0xD83E); // half of a pair
    case 3:
        return QChar(0xDD3C) + u"b"_s;
    case 4:
        return u"a"_s + QChar(0) + u"b"_s;
    default:
        return QString::fromUtf8(dice.pick(kOdd));
    }
}

} // namespace

QString text(Dice &dice)
{
    return dice.chance(94) ? QString::fromUtf8(dice.pick(kPlain)) : oddText(dice);
}

QString fileName(Dice &dice)
{
    if (dice.chance(75)) {
        return QString::fromUtf8(dice.pick(kNames));
    }
    switch (dice.below(4)) {
    case 0:
        return u"x"_s.repeated(300) + u".tvd"_s;
    case 1:
        return u"nul"_s + QChar(0) + u".tvd"_s;
    default:
        return QString::fromUtf8(dice.pick(kUnfitNames));
    }
}

QByteArray fileContent(Dice &dice, int linesPerRecord)
{
    QByteArray bytes;
    for (int record = dice.below(6); record > 0; --record) {
        for (int line = 1; line <= linesPerRecord; ++line) {
            const bool isEmpty = line < 3 && dice.chance(5);
            bytes += isEmpty ? QByteArray() : "outside " + QByteArray::number(dice.below(9));
            bytes += "\r\n";
        }
    }
    if (dice.chance(10)) {
        bytes.chop(dice.below(30)); // truncated
    }
    if (dice.chance(5)) {
        bytes.replace("\r\n", "\n");
    }
    return bytes;
}

} // namespace tarvold::testing::samples
