// A whole records window with 100,000 normal endings, each time in a fresh process, in turns with a
// system tool on the same file: records_bench [ROUNDS]. Prints the median and the worst of each
// figure, in milliseconds where it says nothing else.

#include "controls/look.h"
#include "records_samples.h"
#include "records_session.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <vector>

namespace {

using namespace Qt::StringLiterals;
using Clock = std::chrono::steady_clock;
using tarvold::bench::Endings;
using tarvold::bench::Session;

/// What was measured, in the order of the first time.
class Figures
{
public:
    void add(const QString &name, double figure)
    {
        if (!m_all.contains(name)) {
            m_names << name;
        }
        m_all[name].push_back(figure);
    }

    double median(const QString &name) const
    {
        std::vector<double> sorted = m_all.at(name);
        std::sort(sorted.begin(), sorted.end());
        return sorted[sorted.size() / 2];
    }

    void print() const
    {
        std::printf("%-40s %8s %8s %6s\n", "", "median", "worst", "of");
        for (const QString &name : m_names) {
            const std::vector<double> &all = m_all.at(name);
            std::printf("%-40s %8.2f %8.2f %6zu\n", qPrintable(name), median(name),
                        *std::max_element(all.begin(), all.end()), all.size());
        }
    }

private:
    QStringList m_names;
    std::map<QString, std::vector<double>> m_all;
};

QByteArray runProcess(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (!process.waitForFinished(600'000) || process.exitStatus() != QProcess::NormalExit ||
        process.exitCode() != EXIT_SUCCESS) {
        qFatal("%s failed", qPrintable(program));
    }
    return process.readAllStandardOutput();
}

void addSession(Figures &figures, const QString &file, const QString &what, double size)
{
    const QString start = QString::number(Clock::now().time_since_epoch().count());
    const QByteArray printed =
        runProcess(QCoreApplication::applicationFilePath(), {what, file, start});
    for (const QByteArray &line : printed.trimmed().split('\n')) {
        const QList<QByteArray> parts = line.split('\t');
        const QString name = QString::fromLatin1(parts.at(0));
        const bool isMemory = name.startsWith(u"memory"_s);
        figures.add(isMemory ? name + u", in times the file"_s : name,
                    parts.at(1).toDouble() / (isMemory ? size : 1));
    }
}

void printLoad()
{
    QFile load(u"/proc/loadavg"_s);
    if (load.open(QIODevice::ReadOnly)) {
        std::printf("load of the machine: %s", load.readAll().constData());
    }
}

int measure(int rounds)
{
    const QTemporaryDir folder(u"/var/tmp/records-bench-XXXXXX"_s);
    const QString file = folder.filePath(u"normreports.tvd"_s);
    Figures figures;
    for (int round = 0; round < rounds; ++round) {
        printLoad();
        const auto soundSize = double(writeEndings(file, Endings::Sound));
        const auto start = Clock::now();
        runProcess(u"wc"_s, {u"-l"_s, file});
        figures.add(u"wc -l"_s,
                    std::chrono::duration<double, std::milli>(Clock::now() - start).count());
        addSession(figures, file, u"read"_s, soundSize);
        const auto faultySize = double(writeEndings(file, Endings::Faulty));
        addSession(figures, file, u"change"_s, faultySize);
    }
    figures.print();
    std::printf("first rows: %.1f times wc -l\n",
                figures.median(u"first rows"_s) / figures.median(u"wc -l"_s));
    return EXIT_SUCCESS;
}

int runInWindow(const QStringList &arguments)
{
    tarvold::look::apply();
    const Clock::duration start(arguments.at(3).toLongLong());
    tarvold::bench::runSession(
        {arguments.at(2), arguments.at(1) == u"change"_s, Clock::time_point(start)});
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc == 4) {
        const QApplication application(argc, argv);
        QApplication::setQuitOnLastWindowClosed(false);
        return runInWindow(QCoreApplication::arguments());
    }
    const QCoreApplication application(argc, argv);
    return measure(argc > 1 ? std::atoi(argv[1]) : 5);
}
