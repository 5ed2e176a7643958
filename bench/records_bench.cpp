// The records window's document and list with 100,000 normal endings, compared with a system tool
// on the same file.

#include "controls/look.h"
#include "records/catalog.h"
#include "records/document.h"
#include "records/problem_scan.h"
#include "records/record_list_model.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTreeView>

#include <algorithm>
#include <array>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <functional>
#include <memory>
#include <string>

namespace {

using namespace Qt::StringLiterals;

using tarvold::DataFileKind;
using tarvold::records::Catalog;
using tarvold::records::Document;
using tarvold::records::KnownField;
using tarvold::records::ProblemScan;
using tarvold::records::RecordListModel;

constexpr int kEndings = 100'000;
constexpr auto kKind = DataFileKind::NormalEndings;

/// A line of a typical ending.
QByteArray lineOf(const Catalog &catalog, int field, int number)
{
    constexpr std::array kNames = {"Rocco Vance", "Dex Vance",      "The Masked Comet",
                                   "Lena Storm",  "Bruno Ironside", "Any"};
    constexpr std::array kSentences = {
        "<att1fullname> whips <recfullname> into the corner, and charges in with a clothesline!",
        "The crowd is on its feet as the referee checks the shoulders: one, two... and three!",
        "-BLANK-", "-BLANK-", "-BLANK-"};
    const auto pick = [number, field](const auto &from) {
        return from[std::size_t(number * 7 + field * 3) % std::size_t(std::size(from))];
    };
    const KnownField &known = catalog.fields()[std::size_t(field)];
    if (field == catalog.firstCommentary()) {
        return QByteArray(kSentences.front()) + " That was number " + QByteArray::number(number);
    }
    if (catalog.isCommentary(field)) {
        return pick(kSentences);
    }
    if (known.words.isEmpty()) {
        return pick(kNames);
    }
    const bool isAny = (number + field) % 3 != 0 && known.words.contains(u"Any"_s);
    return isAny ? "Any" : known.words.at((number + field) % known.words.size()).toLatin1();
}

/// A temporary folder on disk with the file that all benchmarks use.
class Workplace
{
public:
    Workplace() : m_folder(u"/var/tmp/records-bench-XXXXXX"_s)
    {
        const Catalog &catalog = Catalog::of(kKind);
        QByteArray bytes;
        for (int number = 0; number < kEndings; ++number) {
            for (int field = 0; field < catalog.fieldCount(); ++field) {
                bytes += lineOf(catalog, field, number) + "\r\n";
            }
        }
        QFile opened(file());
        m_size = bytes.size();
        if (!opened.open(QIODevice::WriteOnly) || opened.write(bytes) != bytes.size()) {
            qFatal("the file for the benchmarks cannot be written");
        }
    }

    QString file() const { return m_folder.filePath(u"normreports.tvd"_s); }
    qsizetype size() const { return m_size; }

private:
    QTemporaryDir m_folder;
    qsizetype m_size = 0;
};

const Workplace &workplace()
{
    static const Workplace place;
    return place;
}

/// A file with its list, as a window has them.
struct Opened
{
    Opened()
    {
        if (!document.open(workplace().file(), kKind) || document.count() != kEndings) {
            qFatal("the file for the benchmarks cannot be read");
        }
        view.setUniformRowHeights(true);
        view.setModel(&list);
        view.resize(900, 600);
        view.show();
        paint();
    }

    /// Paints at once what is to be painted.
    void paint() { view.viewport()->repaint(); }

    /// Waits for something; returns the longest time that an event had to wait, in milliseconds.
    static double waitFor(const std::function<bool()> &isDone)
    {
        double longest = 0;
        QElapsedTimer timer;
        while (!isDone()) {
            timer.start();
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
            longest = std::max(longest, double(timer.nsecsElapsed()) / 1e6);
        }
        return longest;
    }

    Document document;
    ProblemScan scan{document};
    RecordListModel list{document, scan};
    QTreeView view;
};

/// A line of the system's figures on this process, in bytes.
double memory(const char *name)
{
    QFile status(u"/proc/self/status"_s);
    if (!status.open(QIODevice::ReadOnly)) {
        return 0;
    }
    for (const QByteArray &line : status.readAll().split('\n')) {
        if (line.startsWith(name)) {
            return line.simplified().split(' ').at(1).toDouble() * 1024;
        }
    }
    return 0;
}

/// Lets the system forget what this process used most, for the next measurement of that.
void resetPeak()
{
    QFile refs(u"/proc/self/clear_refs"_s);
    if (refs.open(QIODevice::WriteOnly)) {
        refs.write("5");
    }
}

void wcLines(benchmark::State &state)
{
    const QByteArray command = "wc -l " + QFile::encodeName(workplace().file()) + " > /dev/null";
    for (auto _ : state) {
        if (std::system(command.constData()) != 0) {
            state.SkipWithError("wc failed");
        }
    }
}

void readAndDivide(benchmark::State &state)
{
    for (auto _ : state) {
        Document document;
        if (!document.open(workplace().file(), kKind)) {
            state.SkipWithError("the file cannot be read");
        }
    }
}

/// Until the first rows are painted.
void openToFirstRows(benchmark::State &state)
{
    for (auto _ : state) {
        auto opened = std::make_unique<Opened>();
        state.PauseTiming();
        opened.reset();
        state.ResumeTiming();
    }
}

/// What the file takes in memory, in times its size.
void memoryUsed(benchmark::State &state)
{
    const double before = memory("VmRSS:");
    const auto size = double(workplace().size());
    for (auto _ : state) {
        resetPeak();
        Opened opened;
        state.counters["opened"] = (memory("VmRSS:") - before) / size;
        Opened::waitFor([&] { return !opened.scan.isRunning(); });
        state.counters["checked"] = (memory("VmRSS:") - before) / size;
        opened.list.setSearch(u"vance"_s);
        Opened::waitFor([&] { return !opened.list.isSearching(); });
        opened.list.setSearch({});
        Opened::waitFor([&] { return !opened.list.isSearching(); });
        state.counters["searched"] = (memory("VmRSS:") - before) / size;
        state.counters["peak"] = (memory("VmHWM:") - before) / size;
    }
}

/// Types a text into the search box, letter by letter; each time is that of one letter until the
/// list is painted.
void searchLetter(benchmark::State &state, const QString &text)
{
    Opened opened;
    opened.scan.stop();
    double longest = 0;
    double settled = 0;
    for (auto _ : state) {
        state.PauseTiming();
        opened.list.setSearch({});
        Opened::waitFor([&] { return !opened.list.isSearching(); });
        state.ResumeTiming();
        for (int letters = 1; letters <= text.size(); ++letters) {
            QElapsedTimer timer;
            timer.start();
            opened.list.setSearch(text.first(letters));
            opened.paint();
            longest = std::max(longest, double(timer.nsecsElapsed()) / 1e6);
            Opened::waitFor([&] { return !opened.list.isSearching(); });
            settled = std::max(settled, double(timer.nsecsElapsed()) / 1e6);
        }
    }
    state.counters["answer_ms"] = longest;
    state.counters["all_found_ms"] = settled;
    state.counters["hits"] = opened.list.rowCount();
}

/// Until all records are checked and compared.
void scanAll(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        Opened opened;
        state.ResumeTiming();
        state.counters["longest_wait_ms"] =
            Opened::waitFor([&] { return !opened.scan.isRunning(); });
        if (opened.scan.total() > 0) {
            int bad = 0;
            while (opened.scan.countAt(bad) == 0) {
                ++bad;
            }
            const std::string text = opened.scan.problemsAt(bad).front().text.toStdString();
            state.SkipWithError(("the file is not clean: " + text).c_str());
        }
    }
}

void sortByText(benchmark::State &state)
{
    Opened opened;
    opened.scan.stop();
    bool isDone = false;
    QObject::connect(&opened.list, &RecordListModel::settled, [&isDone] { isDone = true; });
    double longest = 0;
    for (auto _ : state) {
        isDone = false;
        opened.list.sort(opened.list.problemColumn() - 1);
        longest = std::max(longest, Opened::waitFor([&isDone] { return isDone; }));
    }
    state.counters["longest_wait_ms"] = longest;
}

void editAndUndo(benchmark::State &state)
{
    Opened opened;
    opened.scan.stop();
    const QByteArray other = opened.document.entry(1).bytes;
    for (auto _ : state) {
        opened.document.replace(kEndings / 2, other, u"Edit"_s);
        opened.document.duplicate(kEndings / 2);
        opened.document.undoStack().undo();
        opened.document.undoStack().undo();
    }
}

void save(benchmark::State &state)
{
    Opened opened;
    opened.scan.stop();
    for (auto _ : state) {
        opened.document.duplicate(0);
        if (!opened.document.save({})) {
            state.SkipWithError("the file cannot be saved");
        }
        opened.document.undoStack().undo();
        if (!opened.document.save({})) {
            state.SkipWithError("the file cannot be saved");
        }
    }
}

void registerAll()
{
    using Function = std::function<void(benchmark::State &)>;
    struct Row
    {
        const char *name;
        Function function;
        int iterations; ///< 0: as many as it takes
    };
    const auto search = [](const QString &text) {
        return [text](benchmark::State &state) { searchLetter(state, text); };
    };
    const std::initializer_list<Row> all = {
        {"memory", memoryUsed, 1},
        {"wc -l", wcLines, 0},
        {"read and divide", readAndDivide, 0},
        {"open to first rows", openToFirstRows, 0},
        {"search a name", search(u"rocco"_s), 3},
        {"search one record", search(u"number 99999"_s), 3},
        {"search nothing", search(u"zzyzx"_s), 3},
        {"search an umlaut", search(u"\u00FC"_s), 3},
        {"search a finisher type", search(u"top rope"_s), 3},
        {"scan", scanAll, 1},
        {"sort by text", sortByText, 1},
        {"edit, duplicate, undo", editAndUndo, 0},
        {"save twice", save, 1},
    };
    for (const Row &row : all) {
        auto *made = benchmark::RegisterBenchmark(row.name, row.function);
        made->Unit(benchmark::kMillisecond)->UseRealTime();
        if (row.iterations > 0) {
            made->Iterations(row.iterations);
        }
    }
}

} // namespace

int main(int argc, char *argv[])
{
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tarvold::look::apply();
    static_cast<void>(workplace()); // creates the file before the first measurement
    registerAll();
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
