// Time and memory of an import, compared with cat and sync on the same bytes.
//
// Each import runs in a fresh process, as in normal use: memory that a process has used before is
// faster. So the program starts itself: with `--import-run-ins` or `--import-stipulations` it
// imports, with `--idle` it does nothing, and then it prints time and memory. Runs are in random
// order, so that background load does not affect one side only; see `bench/run`.

#include "datafiles/import_merge.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdio>
#include <functional>

namespace {

using namespace Qt::StringLiterals;

using tarvold::DataFileKind;

constexpr int kRunInRecords = 100'000;
constexpr double kBytesPerKilobyte = 1024;
constexpr int kRepetitions = 25;

const auto kSource = u"source.tvd"_s;
const auto kTarget = u"target.tvd"_s;
const auto kImportRunIns = u"--import-run-ins"_s;
const auto kImportStipulations = u"--import-stipulations"_s;
const auto kIdle = u"--idle"_s;

/// Records with unique names, so that none is a duplicate.
QByteArray records(int count, int lines, const QByteArray &name)
{
    const QByteArray rest = QByteArray("Some text of a usual length.\r\n").repeated(lines - 2);
    QByteArray bytes;
    for (int record = 0; record < count; ++record) {
        bytes += "Singles\r\n" + name + ' ' + QByteArray::number(record) + "\r\n" + rest;
    }
    return bytes;
}

void put(const QString &file, const QByteArray &bytes)
{
    QFile opened(file);
    if (!opened.open(QIODevice::WriteOnly) || opened.write(bytes) != bytes.size()) {
        qFatal("a file for the benchmark could not be written");
    }
}

void runOrDie(const QString &program, const QStringList &arguments)
{
    if (QProcess::execute(program, arguments) != 0) {
        qFatal("a program of the benchmark failed");
    }
}

/// Keeps earlier writes from slowing down what is measured.
void flushWriteBuffers()
{
    runOrDie(u"sync"_s, {});
}

void importOrDie(DataFileKind kind)
{
    const auto imported = tarvold::importRecords({kSource, kTarget, kind}, [](const QString &) {
        qFatal("a record was reported as a duplicate");
    });
    if (!imported) {
        qFatal("the import failed");
    }
}

double secondsOf(const std::function<void()> &task)
{
    const auto start = std::chrono::steady_clock::now();
    task();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// The measurements that a child process prints.
struct Run
{
    double seconds; ///< duration of the import, without program startup
    double memory;  ///< peak resident memory, in bytes
};

Run runAgain(const QString &task)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {task});
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        qFatal("the import in a child process failed");
    }
    const QList<QByteArray> figures = process.readAllStandardOutput().split(' ');
    return {figures.value(0).toDouble(), figures.value(1).toDouble() * kBytesPerKilobyte};
}

/// Runs `append`, which returns its time in seconds, on a fresh target.
void measure(benchmark::State &state, const QByteArray &source, const QByteArray &target,
             const std::function<double()> &append)
{
    for (auto _ : state) {
        put(kSource, source);
        put(kTarget, target);
        flushWriteBuffers();
        state.SetIterationTime(append());
    }
}

double catAndSync()
{
    return secondsOf([] {
        runOrDie(u"sh"_s, {u"-c"_s, u"cat source.tvd >> target.tvd && sync "
                                    "target.tvd"_s});
    });
}

void reportMemory(benchmark::State &state)
{
    const QByteArray source = records(kRunInRecords, 44, "Feud");
    put(kSource, source);
    const auto size = double(source.size());
    for (auto _ : state) {
        put(kTarget, {});
        const double idle = runAgain(kIdle).memory;
        const double peak = runAgain(kImportRunIns).memory;
        state.counters["peakBySourceSize"] = (peak - idle) / size;
        state.counters["sourceMB"] = size / 1e6;
    }
}

void runInByCat(benchmark::State &state)
{
    measure(state, records(kRunInRecords, 44, "Feud"), {}, catAndSync);
}

void runInByImport(benchmark::State &state)
{
    measure(state, records(kRunInRecords, 44, "Feud"), {},
            [] { return runAgain(kImportRunIns).seconds; });
}

void stipulationsByCat(benchmark::State &state)
{
    const int count = int(state.range());
    measure(state, records(count, 19, "New"), records(count, 19, "Old"), catAndSync);
}

void stipulationsByImport(benchmark::State &state)
{
    const int count = int(state.range());
    measure(state, records(count, 19, "New"), records(count, 19, "Old"),
            [] { return runAgain(kImportStipulations).seconds; });
}

double worst(const std::vector<double> &times)
{
    return *std::max_element(times.begin(), times.end());
}

void asLarge(benchmark::internal::Benchmark *bench)
{
    bench->Unit(benchmark::kMillisecond)->UseManualTime()->Iterations(1);
    bench->Repetitions(kRepetitions)->ComputeStatistics("worst", worst)->ReportAggregatesOnly();
}

void asGrowing(benchmark::internal::Benchmark *bench)
{
    asLarge(bench);
    for (const int count : {10'000, 20'000, 50'000, 100'000}) {
        bench->Arg(count);
    }
}

BENCHMARK(runInByCat)->Apply(asLarge);
BENCHMARK(runInByImport)->Apply(asLarge);
BENCHMARK(reportMemory)->Iterations(1);
BENCHMARK(stipulationsByCat)->Apply(asGrowing);
BENCHMARK(stipulationsByImport)->Apply(asGrowing);

/// The peak resident memory of this process, in kilobytes.
QByteArray peakMemory()
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly)) {
        qFatal("this system has no memory figures");
    }
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) {
            return line.mid(6).trimmed().split(' ').front();
        }
    }
    qFatal("this system has no peak memory figure");
}

int runAsChild(const QString &task)
{
    const bool hasStipulations = task == kImportStipulations;
    const auto kind = hasStipulations ? DataFileKind::Stipulations : DataFileKind::RunInEndings;
    const double seconds = task == kIdle ? 0 : secondsOf([kind] { importOrDie(kind); });
    std::printf("%f %s\n", seconds, peakMemory().constData());
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (!arguments.isEmpty() && !arguments.front().startsWith(u"--benchmark"_s)) {
        return runAsChild(arguments.front());
    }
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    QDir::setCurrent(QDir::tempPath());
    return EXIT_SUCCESS;
}
