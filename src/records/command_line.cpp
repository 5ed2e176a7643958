#include "records/command_line.h"

#include "records/check.h"
#include "records/kind_names.h"
#include "records/standard_output.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>
#include <array>

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

/// Options that QApplication takes, with their value if they have one.
constexpr std::array kValueOptions = {
    "display"_L1,         "geometry"_L1,           "icon"_L1,          "name"_L1,
    "platform"_L1,        "platformpluginpath"_L1, "platformtheme"_L1, "plugin"_L1,
    "qwindowgeometry"_L1, "qwindowicon"_L1,        "qwindowtitle"_L1,  "session"_L1,
    "style"_L1,           "stylesheet"_L1,         "title"_L1,
};
constexpr std::array kPlainOptions = {"dograb"_L1, "nograb"_L1, "reverse"_L1, "widgetcount"_L1};

template <std::size_t size>
bool isOneOf(const std::array<QLatin1StringView, size> &options, const QString &name)
{
    return std::find(options.begin(), options.end(), name) != options.end();
}

/// How many arguments from a place on are an option for QApplication.
qsizetype sizeOfQtOption(const QStringList &arguments, qsizetype place)
{
    const QString &argument = arguments.at(place);
    if (!argument.startsWith(u'-')) {
        return 0;
    }
    const QString name = argument.sliced(argument.startsWith("--"_L1) ? 2 : 1);
    const qsizetype equals = name.indexOf(u'=');
    if (equals >= 0) {
        return isOneOf(kValueOptions, name.first(equals)) ? 1 : 0;
    }
    if (isOneOf(kPlainOptions, name)) {
        return 1;
    }
    return isOneOf(kValueOptions, name) && place + 1 < arguments.size() ? 2 : 0;
}

QStringList withoutQtOptions(const QStringList &arguments)
{
    QStringList own;
    for (qsizetype place = 0; place < arguments.size();) {
        if (arguments.at(place) == "--"_L1) {
            return own + arguments.sliced(place);
        }
        const qsizetype size = sizeOfQtOption(arguments, place);
        if (size == 0) {
            own << arguments.at(place);
        }
        place += std::max<qsizetype>(size, 1);
    }
    return own;
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
    if (!parser.parse(withoutQtOptions(arguments))) {
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
