#include "records/check.h"

#include "disk/read.h"
#include "records/kind_names.h"
#include "records/window_words.h"

#include <algorithm>

namespace tarvold::records::check {

using namespace Qt::StringLiterals;

namespace {

/// The text on one line, without characters that would control the terminal.
QString onOneLine(const QString &text)
{
    QString safe;
    safe.reserve(text.size());
    for (const QChar character : text) {
        if (character == u'\n') {
            safe += u' ';
        } else if (character.category() == QChar::Other_Control) {
            safe += u"\\x%1"_s.arg(character.unicode(), 2, 16, QLatin1Char('0'));
        } else {
            safe += character;
        }
    }
    return safe;
}

/// What is wrong with a record by itself and beside those before it, in the order of its lines.
std::vector<Problem> problemsIn(const Record &record, int number, bool isLast,
                                Comparison &comparison)
{
    std::vector<Problem> problems = problemsOf(record, number, isLast);
    for (Problem &problem : comparison.add(record)) {
        problems.push_back(std::move(problem));
    }
    std::stable_sort(
        problems.begin(), problems.end(),
        [](const Problem &one, const Problem &other) { return one.line < other.line; });
    return problems;
}

/// Checks a file that was read. Nothing if its kind is unknown.
std::optional<std::vector<Finding>> checked(QByteArrayView file, const QString &name,
                                            std::optional<DataFileKind> kind, const Sinks &sinks)
{
    if (file.isEmpty()) {
        return std::vector<Finding>(); // whatever its kind
    }
    std::vector<Finding> findings;
    if (!kind) {
        const KindAnswer answer = kindOf(file, name);
        if (!answer.kind) {
            sinks.error(onOneLine(name + u": "_s + answer.doubt));
            return std::nullopt;
        }
        kind = answer.kind;
        if (!answer.misnamed.isEmpty()) {
            findings.push_back({1, answer.misnamed}); // of the file as a whole
        }
    }
    for (Finding &finding : findingsIn(file, Catalog::of(*kind))) {
        findings.push_back(std::move(finding));
    }
    return findings;
}

} // namespace

std::vector<Finding> findingsIn(QByteArrayView file, const Catalog &catalog)
{
    std::vector<Finding> findings;
    // Without a callback nothing stops it.
    const std::vector<qsizetype> starts = splitIntoRecords(file, catalog).value();
    Comparison comparison(catalog);
    qsizetype firstLine = 1;
    for (std::size_t index = 0; index < starts.size(); ++index) {
        const bool isLast = index + 1 == starts.size();
        const qsizetype end = isLast ? file.size() : starts[index + 1];
        const QByteArrayView bytes = file.sliced(starts[index], end - starts[index]);
        const Record record(QByteArray::fromRawData(bytes.data(), bytes.size()), catalog);
        for (const Problem &problem : problemsIn(record, int(index) + 1, isLast, comparison)) {
            findings.push_back({firstLine + problem.line, problem.text});
        }
        firstLine += qsizetype(record.lines().size());
    }
    return findings;
}

KindAnswer kindOf(QByteArrayView file, const QString &name)
{
    const KindGuess guess = guessKind(file, name);
    if (guess.kind) {
        const QString misnamed =
            guess.named ? words::misnamed(*guess.named, *guess.kind) : QString();
        return {.kind = guess.kind, .doubt = {}, .misnamed = misnamed};
    }
    QStringList names;
    for (const DataFileKind kind : guess.likely) {
        names << kindnames::nameOf(kind);
    }
    return {.kind = std::nullopt,
            .doubt = u"The kind of its records is not clear: %1. Say it by --kind."_s.arg(
                names.join(u" or "_s)),
            .misnamed = {}};
}

Outcome run(const QStringList &files, std::optional<DataFileKind> kind, const Sinks &sinks)
{
    Outcome worst = Outcome::Clean;
    for (const QString &name : files) {
        const Result<QByteArray> file = readFile(name);
        if (!file) {
            sinks.error(onOneLine(name + u": "_s + file.error().cause));
            worst = Outcome::NotChecked;
            continue;
        }
        const auto findings = checked(*file, name, kind, sinks);
        if (!findings) {
            worst = Outcome::NotChecked;
            continue;
        }
        for (const Finding &finding : *findings) {
            worst = std::max(worst, Outcome::Problems);
            if (!sinks.result(onOneLine(
                    u"%1:%2: %3"_s.arg(name, QString::number(finding.line), finding.text)))) {
                sinks.error(u"The results could not be written."_s);
                return Outcome::NotChecked;
            }
        }
    }
    return worst;
}

} // namespace tarvold::records::check
