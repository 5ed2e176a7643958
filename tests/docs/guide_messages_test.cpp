// Compares the tables of messages in docs/guide.md with the texts in the program's source.

#include "docs/markdown.h"
#include "docs/source_texts.h"
#include "records/window_words.h"
#include "screens/failures.h"
#include "screens/file_facts.h"
#include "support/print.h"

#include <QRegularExpression>

#include <algorithm>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

const QString kName = u"…"_s;    ///< how the guide writes what differs each time
const QString kWhy = u"*why*"_s; ///< and the reason for a failure
const QString kBreak = u"<br>"_s;

/// The texts in the guide's tables of messages, unchanged.
QStringList guideMessages()
{
    QStringList messages;
    for (const MarkdownTable &table : markdownTables(QStringLiteral(TARVOLD_GUIDE))) {
        qsizetype column = table.head.indexOf(u"Message"_s);
        column = std::max(column, table.head.indexOf(u"The message says"_s));
        if (column < 0) {
            continue;
        }
        for (const QStringList &row : table.rows) {
            messages << row.value(column);
        }
    }
    return messages;
}

/// Their paragraphs, without those that are only a placeholder.
QStringList guideParagraphs()
{
    QStringList paragraphs = guideMessages().join(kBreak).split(kBreak);
    paragraphs.removeAll(kWhy);
    paragraphs.removeAll(kName);
    return paragraphs;
}

bool hasPlaceholder(const QString &paragraph)
{
    static const QRegularExpression placeholder(u"%[1-9]"_s);
    return paragraph.contains(placeholder);
}

/// A text of the program, and the patterns for it in the guide.
struct ProgramText
{
    QString text;
    QRegularExpression pattern; ///< of a paragraph that is this text
    QRegularExpression within;  ///< of one in which it stands

    bool isIn(const QString &paragraph) const
    {
        return within.match(paragraph).hasMatch() || paragraph.contains(text);
    }
};

std::vector<ProgramText> programTexts()
{
    static const QRegularExpression placeholder(u"\\\\%[1-9]"_s);
    const QStringList messages = sourceMessages();
    QStringList fillings = {kName, u"[0-9]+"_s, u"(?i:record|stipulation|ending)"_s, u"ends?"_s};
    for (const QString &message : messages) {
        if (!hasPlaceholder(message)) {
            fillings << QRegularExpression::escape(message);
        }
    }
    // Defined once in each pattern, as a pattern has a greatest length.
    const QString define = u"(?(DEFINE)(?<filling>"_s + fillings.join(u'|') + u"))"_s;
    std::vector<ProgramText> texts;
    for (const QString &message : messages) {
        const QString pattern =
            QRegularExpression::escape(message).replace(placeholder, u"(?&filling)"_s);
        texts.push_back({message,
                         QRegularExpression(define + QRegularExpression::anchoredPattern(pattern)),
                         QRegularExpression(define + u"(?<!\\w)(?:"_s + pattern + u")(?!\\w)"_s)});
        EXPECT_TRUE(texts.back().within.isValid()) << message.toStdString();
    }
    return texts;
}

/// Whether a sentence is one of the program, from its start or behind what the program puts before
/// it, such as the name of a field.
bool isSentenceOf(const std::vector<ProgramText> &program, const QString &sentence)
{
    static const QStringList beginnings = {QString(),
                                           u"… has … lines; "_s,
                                           u"… has … lines, but "_s,
                                           u"\"…\" for \"…\" "_s,
                                           u"…: … "_s,
                                           u"…: "_s,
                                           u"… "_s};
    return std::ranges::any_of(beginnings, [&](const QString &beginning) {
        const QString rest = sentence.mid(beginning.size());
        const bool goesOn = beginning.isEmpty() || (!rest.isEmpty() && !rest.front().isUpper());
        return sentence.startsWith(beginning) && goesOn &&
               std::ranges::any_of(program, [&rest](const ProgramText &text) {
                   return text.pattern.match(rest).hasMatch();
               });
    });
}

/// Whether a paragraph is a text of the program, or several of them in a row.
bool isToldBy(const std::vector<ProgramText> &program, const QString &paragraph)
{
    static const QRegularExpression end(u"[.?!] "_s);
    if (isSentenceOf(program, paragraph)) {
        return true;
    }
    for (auto at = paragraph.indexOf(end); at >= 0; at = paragraph.indexOf(end, at + 1)) {
        if (isSentenceOf(program, paragraph.first(at + 1)) &&
            isToldBy(program, paragraph.mid(at + 2))) {
            return true;
        }
    }
    return false;
}

bool isSystemText(const QString &text)
{
    constexpr int kSystemErrors = 134;
    for (int error = 1; error < kSystemErrors; ++error) {
        if (text == QString::fromLocal8Bit(std::strerror(error))) {
            return true;
        }
    }
    return false;
}

/// A message as in the guide: the paragraphs are separated, and a path differs each time.
QString asInGuide(QString message)
{
    return message.replace(filefacts::wholePath(kName), kName).replace(u"\n\n"_s, kBreak);
}

TEST(GuideMessages, EveryTextOfTheGuideIsOneOfTheProgram)
{
    const std::vector<ProgramText> program = programTexts();
    const QStringList literals = sourceLiterals();
    for (const QString &paragraph : guideParagraphs()) {
        const bool isTitle = paragraph.startsWith(u"**"_s);
        const bool isTold =
            isTitle ? literals.contains(paragraph.mid(2).chopped(2)) : isToldBy(program, paragraph);
        EXPECT_TRUE(isTold || isSystemText(paragraph)) << paragraph.toStdString();
    }
}

TEST(GuideMessages, EveryTextOfTheProgramIsInTheGuide)
{
    const QStringList guide = guideParagraphs();
    const std::vector<ProgramText> program = programTexts();
    EXPECT_GT(program.size(), 50U);
    for (const ProgramText &text : program) {
        EXPECT_TRUE(std::ranges::any_of(guide, [&text](const QString &paragraph) {
            return text.isIn(paragraph);
        })) << text.text.toStdString();
    }
}

TEST(GuideMessages, FailureMessagesAreInTheGuideInFull)
{
    const FileError unchanged = {.cause = kWhy};
    const FileError changed = {.cause = kWhy, .outcome = FileOutcome::MaybeChanged};
    const FileError unconfirmed = {.cause = kWhy, .outcome = FileOutcome::Unconfirmed};
    const FileError odd = {.cause = kWhy, .reason = FileError::Reason::OddLines};
    const QString stays = u"Everything that you typed is still here."_s;
    const QStringList guide = guideMessages();
    for (const QString &message : {
             failures::notSaved(kName, unchanged),
             failures::notSaved(kName, changed),
             failures::notRewritten(kName, unchanged, stays),
             failures::notRewritten(kName, unconfirmed, stays),
             failures::notLoaded(kName, unchanged),
             failures::notLoaded(kName, changed),
             failures::notLoaded(kName, odd),
             failures::noSource(),
             failures::notImported(kName, unchanged),
             failures::notImported(kName, changed),
         }) {
        EXPECT_TRUE(guide.contains(asInGuide(message))) << message.toStdString();
    }
}

TEST(GuideMessages, MessagesOfRecordsWindowsAreInTheGuideInFull)
{
    namespace words = records::words;
    const FileError unchanged = {.cause = kWhy};
    const FileError changed = {.cause = kWhy, .outcome = FileOutcome::MaybeChanged};
    const auto kind = DataFileKind::Interviews;
    const QString content = QLatin1StringView(rowOf(kind).content);
    const QStringList guide = guideMessages();
    for (const QString &message : {
             failures::notRewritten(kName, unchanged, words::kept()),
             words::notRead(kName, unchanged),
             words::outdated(kName),
             words::notCopied(kName, unchanged),
             words::notCopied(kName, changed),
             words::unsaved(kName),
             words::forgetByReload(kName),
             words::forgetByKind(kName, kind).replace(content, kName),
             words::otherKind(kName, kind, kind).replace(content, kName),
             words::repaired(0, 0),
         }) {
        EXPECT_TRUE(guide.contains(asInGuide(message))) << message.toStdString();
    }
}

} // namespace
} // namespace tarvold::testing
