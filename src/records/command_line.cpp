#include "records/command_line.h"

#include "records/check.h"
#include "records/kind_names.h"
#include "records/standard_output.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace tarvold::records::commandline {

using namespace Qt::StringLiterals;

namespace {

constexpr int kFailed = 2;

Command failed(const QString &text)
{
    return {.action = Command::Action::Fail,
            .text = u"%1\nSee tarvold-records --help."_s.arg(text)};
}

/// The parser's own help ends with a line break, and so does each line that is written.
Command told(const QString &text)
{
    return {.action = Command::Action::Tell, .text = text.trimmed()};
}

} // namespace

Command read(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        u"Shows, searches, checks and corrects the records of Tarvold data files.\n"
        "Without a file, the .tvd files of the current folder are offered."_s);
    const QCommandLineOption check(
        u"check"_s, u"Open no window: print FILE:LINE: PROBLEM for each problem of the files. The "
                    "exit status is 0 if there is none, 1 if there are some, and 2 if a file "
                    "could not be checked."_s);
    const QCommandLineOption kind(
        u"kind"_s,
        u"The files hold records of this kind: %1. Without it the kind is guessed."_s.arg(
            kindnames::all(u", "_s)),
        u"KIND"_s);
    const QCommandLineOption help({u"h"_s, u"help"_s}, u"Show this help."_s);
    const QCommandLineOption version({u"v"_s, u"version"_s}, u"Show the version."_s);
    parser.addOptions({check, kind, help, version});
    parser.addPositionalArgument(u"FILE"_s, u"A data file."_s, u"[FILE...]"_s);
    if (!parser.parse(arguments)) {
        return failed(parser.errorText());
    }
    if (parser.isSet(help)) {
        return told(parser.helpText());
    }
    if (parser.isSet(version)) {
        return told(u"tarvold-records "_s + QCoreApplication::applicationVersion());
    }
    Command command = {.files = parser.positionalArguments()};
    if (parser.isSet(kind)) {
        command.kind = kindnames::kindOf(parser.value(kind));
        if (!command.kind) {
            return failed(u"There is no kind \"%1\"; there are %2."_s.arg(parser.value(kind),
                                                                          kindnames::all(u", "_s)));
        }
    }
    if (parser.isSet(check)) {
        if (command.files.isEmpty()) {
            return failed(u"--check needs a file."_s);
        }
        command.action = Command::Action::Check;
    }
    return command;
}

std::optional<int> runWithoutWindow(const Command &command)
{
    switch (command.action) {
    case Command::Action::Open:
        break;
    case Command::Action::Check: {
        const auto tellError = [](const QString &text) {
            standardoutput::writeErrorLine(u"tarvold-records: "_s + text);
        };
        return static_cast<int>(
            check::run(command.files, command.kind,
                       {.result = &standardoutput::writeLine, .error = tellError}));
    }
    case Command::Action::Tell:
        return standardoutput::writeLine(command.text) ? 0 : kFailed;
    case Command::Action::Fail:
        standardoutput::writeErrorLine(u"tarvold-records: "_s + command.text);
        return kFailed;
    }
    return std::nullopt;
}

} // namespace tarvold::records::commandline
