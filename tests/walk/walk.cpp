// A random walk through the program: see Day. The same seed repeats the same walk.
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

tarvold::testing::Day *currentDay = nullptr;

/// Makes every message from Qt a failure, except about what windows without a display cannot do.
void handleMessage(QtMsgType type, const QMessageLogContext & /*context*/, const QString &message)
{
    const bool isFromThePlatform = message.startsWith(u"This plugin does not support"_s) ||
                                   message.startsWith(u"QStandardPaths: XDG_RUNTIME_DIR"_s);
    if (isFromThePlatform) {
        return;
    }
    std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type == QtFatalMsg) {
        abort();
    }
    if (currentDay != nullptr) {
        currentDay->fail(u"Qt reports: "_s + message);
    }
}

/// Permissions do not apply to the superuser, but the walk needs files without permissions.
void dropSuperuser()
{
    constexpr uid_t kNobody = 65534;
    if (geteuid() == 0 && setgid(kNobody) == 0 && setuid(kNobody) == 0) {
        prctl(PR_SET_DUMPABLE, 1); // needed for leak detection
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
    dropSuperuser();
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
    // Consecutive clicks are never a double click, unless meant to be one.
    QApplication::setDoubleClickInterval(0);
    tarvold::look::apply();
    qInstallMessageHandler(handleMessage);

    const unsigned seed = options.value(u"seed"_s).toUInt();
    tarvold::testing::trace::start(seed, options.isSet(u"talk"_s));
    QElapsedTimer clock;
    clock.start();
    tarvold::testing::Day day(seed);
    currentDay = &day;
    const bool passed = day.walk(options.value(u"actions"_s).toInt());
    currentDay = nullptr;
    if (!passed) {
        tarvold::testing::trace::print();
        return 1;
    }
    const auto &counts = day.counts();
    print("actions", counts.actions);
    print("windows", counts.windows);
    print("message boxes", counts.boxes);
    print("answers", counts.answers);
    std::printf("restarts: %d\nseconds: %.1f\n", counts.ends, double(clock.elapsed()) / 1000);
    return 0;
}
