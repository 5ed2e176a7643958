#include "docs/source_texts.h"

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>
#include <vector>

namespace tarvold::testing {

using namespace Qt::StringLiterals;

namespace {

struct Literal
{
    QString text;
    QString before; ///< the code that stands before it, in one line
};

QString codeIn(const QString &path)
{
    static const QRegularExpression noCode(u"//[^\n]*|^#[^\n]*"_s,
                                           QRegularExpression::MultilineOption);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll()).remove(noCode);
}

QString meantBy(const QString &quoted)
{
    static const QRegularExpression piece(uR"re("((?:[^"\\\n]|\\.)*)")re"_s);
    QString text;
    for (const auto &match : piece.globalMatch(quoted)) {
        text += match.captured(1);
    }
    return text.replace(u"\\n"_s, u"\n"_s)
        .replace(u"\\r"_s, QString())
        .replace(u"\\\""_s, u"\""_s)
        .trimmed();
}

void addLiterals(const QString &path, std::vector<Literal> &literals)
{
    static const QRegularExpression quoted(uR"((?:u?"(?:[^"\\\n]|\\.)*"\s*)+)"_s);
    constexpr qsizetype kContext = 80;
    const QString code = codeIn(path);
    for (const auto &match : quoted.globalMatch(code)) {
        const qsizetype start = std::max(qsizetype(0), match.capturedStart() - kContext);
        literals.push_back({meantBy(match.captured()),
                            code.sliced(start, match.capturedStart() - start).simplified()});
    }
}

const std::vector<Literal> &literals()
{
    static const std::vector<Literal> all = [] {
        std::vector<Literal> found;
        // The messages of main.cpp are not messages of a window.
        const QStringList sources = {u"*.cpp"_s, u"*.h"_s};
        const QDir source(QStringLiteral(TARVOLD_SOURCE));
        for (const QString &folder : source.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            QDirIterator files(source.filePath(folder), sources, QDir::Files,
                               QDirIterator::Subdirectories);
            while (files.hasNext()) {
                addLiterals(files.next(), found);
            }
        }
        return found;
    }();
    return all;
}

bool isSentence(const QString &text)
{
    static const QRegularExpression sentence(u"[A-Za-z].*[.!?](?: ?%[1-9])?$"_s);
    const bool isCaption = text.endsWith("..."_L1); // of something that asks before it acts
    return !isCaption && (text.contains(sentence) || (text.contains(u'\n') && text.contains(u' ')));
}

/// Whether the code before a text makes it the purpose of a control, the description of an option,
/// what the conditions of a record say, or what nobody sees because no window stops the reading.
bool isDescription(const Literal &literal)
{
    static const QRegularExpression other(
        uR"((?:describe\( ?\*\w+, u"\w+"_s,|setPurpose\(|setApplicationDescription\()"
        R"(|QCommandLineOption \w+\( ?(?:u"\w+"_s|\{.*\}),|addPositionalArgument\(u"\w+"_s,)"
        R"(|\w+Conditions,|if \(!starts\) \{ return failure\()$)"_s);
    return literal.before.contains(other);
}

/// Whether the code before a text makes it a caption, a help text, an instruction, a prompt, the
/// name of a field, or the one cause of failure that is part of a question, not of a message.
bool isNoMessage(const Literal &literal)
{
    static const QRegularExpression other(
        uR"((?:\.(?:help|caption|instructions) =|(?:Help|Instructions|Prompt|Caption)\[\] =|)"
        R"(kChanged =|newLabel\("\w+",|setText\(kHelp,)$)"_s);
    static const QRegularExpression fieldName(u"RecordField k\\w+ = \\{$"_s);
    return literal.before.contains(other) || literal.before.contains(fieldName);
}

} // namespace

QStringList sourceLiterals()
{
    QStringList texts;
    for (const Literal &literal : literals()) {
        texts << literal.text;
    }
    return texts;
}

QStringList sourceMessages()
{
    static const QRegularExpression nothingElse(u"^(?:%[1-9])?$"_s);
    static const QRegularExpression joint(u"^[;,:] "_s); // to what stands before it in a message
    QStringList paragraphs;
    for (const Literal &literal : literals()) {
        if (isSentence(literal.text) && !isNoMessage(literal) && !isDescription(literal)) {
            paragraphs << literal.text.split(u'\n');
        }
    }
    for (QString &text : paragraphs) {
        text.remove(joint);
    }
    paragraphs.removeIf([](const QString &text) { return text.contains(nothingElse); });
    paragraphs.removeDuplicates();
    return paragraphs;
}

} // namespace tarvold::testing
