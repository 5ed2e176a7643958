// A long day at the program, at random: see Day. The same seed gives the same day.
//
//     walk [--seed N] [--actions N] [--talk]

#include "controls/look.h"
#include "walk/day.h"
#include "walk/trace.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>

#include <cstdio>
#include <sys/prctl.h>
#include <unistd.h>

namespace {

using namespace Qt::StringLiterals;

tarvold::testing::Day *dayInHand = nullptr;

/// Nothing that Qt complains about is let pass, but for what windows without a display
/// cannot do.
void hear(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    const bool isOfThePlatform = message.startsWith(u"This plugin does not support"_s) ||
                                 message.startsWith(u"QStandardPaths: XDG_RUNTIME_DIR"_s);
    if (isOfThePlatform) {
        return;
    }
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type == QtFatalMsg) {
        abort();
    }
    if (dayInHand != nullptr) {
        dayInHand->blame(u"Qt complains: "_s + message);
    }
}

/// For the superuser permissions mean nothing; files without rights are part of the day.
void becomeOrdinary()
{
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0) {
        prctl(PR_SET_DUMPABLE, 1); // else no leak could be looked for
    }
}

void print(const char *title, const std::map<std::string, int> &counts)
{
    int sum = 0;
    for (const auto &[name, count] : counts) {
        sum += count;
    }
    std::printf("%s: %d\n", title, sum);
    for (const auto &[name, count] : counts) {
        std::printf("  %6d %s\n", count, name.c_str());
    }
}

} // namespace

int main(int argc, char *argv[])
{
    becomeOrdinary();
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication application(argc, argv);
    QCommandLineParser options;
    options.addOption({u"seed"_s, {}, u"N"_s, u"1"_s});
    options.addOption({u"actions"_s, {}, u"N"_s, u"1000"_s});
    options.addOption({u"talk"_s, {}});
    options.process(application);
    QApplication::setQuitOnLastWindowClosed(false);
    // Clicks follow each other faster than any hand; only those meant to are a double click.
    QApplication::setDoubleClickInterval(0);
    tarvold::look::apply();
    qInstallMessageHandler(hear);

    const unsigned seed = options.value(u"seed"_s).toUInt();
    tarvold::testing::trace::start(seed, options.isSet(u"talk"_s));
    QElapsedTimer clock;
    clock.start();
    tarvold::testing::Day day(seed);
    dayInHand = &day;
    const bool isWell = day.walk(options.value(u"actions"_s).toInt());
    dayInHand = nullptr;
    if (!isWell) {
        tarvold::testing::trace::tell();
        return 1;
    }
    const auto &figures = day.figures();
    print("actions", figures.actions);
    print("windows", figures.windows);
    print("message boxes", figures.boxes);
    print("answers", figures.answers);
    std::printf("ended and started again: %d\nseconds: %.1f\n", figures.ends,
                double(clock.elapsed()) / 1000);
    return 0;
}
