#include "datafiles/coding.h"

#include "datafiles/code_page.h"

#include <algorithm>

namespace tarvold {

using namespace Qt::StringLiterals;

namespace {

constexpr CodedText kFinishers[] = {
    {"Any", "Any"},
    {"Pin", "p"},
    {"Submission", "s"},
    {"Top Rope", "t"},
};

constexpr CodedText kQualities[] = {
    {"Just Standard Ability", "No"},
    {"Just Hardcore Ability", "Yes"},
    {"50% Standard, 50% Hardcore", "Both"},
};

} // namespace

std::span<const CodedText> codedTexts(Coding coding)
{
    switch (coding) {
    case Coding::FinisherType:
        return kFinishers;
    case Coding::QualityWord:
        return kQualities;
    case Coding::AsShown:
    case Coding::Number:
    case Coding::BlankIfEmpty:
    case Coding::NoOrText:
    case Coding::AlwaysNo:
        break;
    }
    return {};
}

bool mayLackLine(Coding coding)
{
    return !codedTexts(coding).empty();
}

std::optional<QString> lineOf(Coding coding, const QString &text)
{
    if (coding == Coding::AlwaysNo) {
        return u"No"_s;
    }
    if (coding == Coding::BlankIfEmpty && text.isEmpty()) {
        return QLatin1StringView(kBlankLine);
    }
    const std::span<const CodedText> known = codedTexts(coding);
    if (known.empty()) {
        return text;
    }
    // Deliberate: an unknown text gives no line, the record is one line short, and no default is
    // made up for it.
    const auto found = std::find_if(known.begin(), known.end(), [&text](const CodedText &row) {
        return text == QLatin1StringView(row.text);
    });
    return found == known.end() ? std::nullopt : std::optional(QLatin1StringView(found->word));
}

std::optional<QString> textOf(Coding coding, QByteArrayView line)
{
    if (coding == Coding::BlankIfEmpty && line == QByteArrayView(kBlankLine)) {
        return QString();
    }
    const std::span<const CodedText> known = codedTexts(coding);
    if (known.empty()) {
        return codepage::decode(line);
    }
    const auto found = std::find_if(known.begin(), known.end(), [line](const CodedText &row) {
        return line == QByteArrayView(row.word);
    });
    return found == known.end() ? std::nullopt : std::optional(QLatin1StringView(found->text));
}

} // namespace tarvold
