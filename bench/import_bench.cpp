// Time and memory of an import, beside public tools that append the same bytes.
//
// The program starts itself again for the memory figures: as `import_bench --import`
// it imports run-in endings, as `import_bench --idle` it does nothing.

#include "datafiles/import_merge.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdio>

namespace {

using tarvold::DataFileKind;

constexpr int kRunInRecords = 100'000;
constexpr double kBytesPerKilobyte = 1024;

const auto kSource = QStringLiteral("source.tvd");
const auto kTarget = QStringLiteral("target.tvd");

/// Every record has a name of its own, so that none is a duplicate.
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

/// The time before is not to be paid for by what is measured.
void emptyWriteBuffers()
{
    runOrDie(QStringLiteral("sync"), {});
}

void importOrDie(DataFileKind kind)
{
    const auto failure = tarvold::importRecords({kSource, kTarget, kind}, [](const QString &) {
        qFatal("a record was taken for a duplicate");
    });
    if (failure) {
        qFatal("the import failed");
    }
}

void catAndSync()
{
    runOrDie(
        QStringLiteral("sh"),
        {QStringLiteral("-c"), QStringLiteral("cat source.tvd >> target.tvd && sync target.tvd")});
}

/// Runs `append` on a fresh target each time.
template <class Append>
void measure(benchmark::State &state, const QByteArray &target, const Append &append)
{
    for (auto _ : state) {
        state.PauseTiming();
        put(kTarget, target);
        emptyWriteBuffers();
        state.ResumeTiming();
        append();
    }
}

/// The most memory that a run of this program ever held, in bytes.
double peakMemory(const QStringList &arguments)
{
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), arguments);
    if (!process.waitForFinished(-1) || process.exitCode() != 0) {
        qFatal("the import in a process of its own failed");
    }
    return process.readAllStandardOutput().toDouble() * kBytesPerKilobyte;
}

void reportMemory(benchmark::State &state)
{
    const QByteArray source = records(kRunInRecords, 44, "Feud");
    put(kSource, source);
    const auto size = double(source.size());
    for (auto _ : state) {
        put(kTarget, {});
        const double idle = peakMemory({QStringLiteral("--idle")});
        const double peak = peakMemory({QStringLiteral("--import")});
        state.counters["peakBySourceSize"] = (peak - idle) / size;
        state.counters["sourceMB"] = size / 1e6;
    }
}

void runInByCat(benchmark::State &state)
{
    put(kSource, records(kRunInRecords, 44, "Feud"));
    measure(state, {}, catAndSync);
}

void runInByImport(benchmark::State &state)
{
    put(kSource, records(kRunInRecords, 44, "Feud"));
    measure(state, {}, [] { importOrDie(DataFileKind::RunInEndings); });
}

void stipulationsByCat(benchmark::State &state)
{
    put(kSource, records(int(state.range()), 19, "New"));
    measure(state, records(int(state.range()), 19, "Old"), catAndSync);
}

void stipulationsByImport(benchmark::State &state)
{
    put(kSource, records(int(state.range()), 19, "New"));
    measure(state, records(int(state.range()), 19, "Old"),
            [] { importOrDie(DataFileKind::Stipulations); });
}

void asLarge(benchmark::internal::Benchmark *bench)
{
    bench->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)->Repetitions(9);
    bench->ReportAggregatesOnly();
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

void printPeakMemory()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly)) {
        qFatal("this system tells no memory figures");
    }
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:")) {
            std::puts(line.mid(6).trimmed().split(' ').front().constData());
        }
    }
}

/// \param arguments without the program's name
int beChild(const QStringList &arguments)
{
    if (arguments.front() == QStringLiteral("--import")) {
        importOrDie(DataFileKind::RunInEndings);
    }
    printPeakMemory();
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments().mid(1);
    if (!arguments.isEmpty() && !arguments.front().startsWith(QStringLiteral("--benchmark"))) {
        return beChild(arguments);
    }
    const QTemporaryDir folder;
    QDir::setCurrent(folder.path());
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    QDir::setCurrent(QDir::tempPath());
    return EXIT_SUCCESS;
}
