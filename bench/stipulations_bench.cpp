// The stipulations editor with 100,000 stipulations, compared with system tools on the same file.

#include "controls/look.h"
#include "datafiles/stipulation_table.h"
#include "editor.h"
#include "press.h"
#include "stipulations/stipulation_list_model.h"

#include <QApplication>
#include <QTemporaryDir>

#include <array>
#include <benchmark/benchmark.h>
#include <cstdlib>
#include <fcntl.h>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

using namespace Qt::StringLiterals;

using tarvold::Editor;
using tarvold::StipulationListModel;
using tarvold::StipulationTable;

constexpr int kStipulations = 100'000;
constexpr int kMiddle = kStipulations / 2 * StipulationTable::kLinesPerRecord;

/// The lines of a typical stipulation.
StipulationTable::Record stipulation(int number)
{
    constexpr std::array kMatchTypes = {"Singles", "Tag Team", "Triple Threat", "Battle Royal"};
    constexpr std::array kNames = {"Steel Cage", "Falls Count Anywhere", "Ladder Match",
                                   "Two Out Of Three Falls", "Loser Leaves Town"};
    constexpr std::array kPromotions = {"No", "No", "No", "TWF"};
    const QByteArray name = QByteArray(kNames.at(std::size_t(number) % kNames.size())) + " #" +
                            QByteArray::number(number);
    const auto value = [number](int line) { return QByteArray::number((number + line) % 100 + 1); };
    return {kMatchTypes.at(std::size_t(number) % kMatchTypes.size()),
            name,
            name + " Match",
            "Yes",
            "No",
            "No",
            "Yes",
            "5",
            value(9),
            value(10),
            value(11),
            value(12),
            "NA",
            value(14),
            value(15),
            "NA",
            kPromotions.at(std::size_t(number) % kPromotions.size()),
            "Both",
            "No"};
}

/// A temporary folder on disk with the file that all benchmarks use.
class Workplace
{
public:
    Workplace() : m_folder(u"/var/tmp/stipulations-bench-XXXXXX"_s)
    {
        StipulationTable table;
        for (int number = 0; number < kStipulations; ++number) {
            table.append(stipulation(number));
        }
        if (!m_folder.isValid() || !table.writeBack(file())) {
            qFatal("the file for the benchmarks cannot be written");
        }
    }

    QString file() const { return m_folder.filePath(u"stipulations.tvd"_s); }
    QString copy() const { return m_folder.filePath(u"copy.tvd"_s); }

private:
    QTemporaryDir m_folder;
};

const Workplace &workplace()
{
    static const Workplace place;
    return place;
}

StipulationTable &loaded()
{
    static StipulationTable table = [] {
        StipulationTable fresh;
        if (!fresh.load(workplace().file())) {
            qFatal("the file for the benchmarks cannot be read");
        }
        return fresh;
    }();
    return table;
}

/// Runs a system tool and discards its output; returns whether it succeeded.
bool runs(std::vector<std::string> arguments)
{
    posix_spawn_file_actions_t quiet;
    posix_spawn_file_actions_init(&quiet);
    posix_spawn_file_actions_addopen(&quiet, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
    std::vector<char *> pointers;
    pointers.reserve(arguments.size() + 1);
    for (std::string &argument : arguments) {
        pointers.push_back(argument.data());
    }
    pointers.push_back(nullptr);
    pid_t process = 0;
    int status = -1;
    const bool started =
        posix_spawnp(&process, pointers[0], &quiet, nullptr, pointers.data(), environ) == 0;
    posix_spawn_file_actions_destroy(&quiet);
    return started && waitpid(process, &status, 0) == process && status == 0;
}

void wcLines(benchmark::State &state)
{
    const std::string file = workplace().file().toStdString();
    for (auto _ : state) {
        if (!runs({"wc", "-l", file})) {
            state.SkipWithError("wc failed");
            return;
        }
    }
}

void copyAndSync(benchmark::State &state)
{
    const std::string file = workplace().file().toStdString();
    const std::string copy = workplace().copy().toStdString();
    for (auto _ : state) {
        if (!runs({"cp", file, copy}) || !runs({"sync", copy})) {
            state.SkipWithError("cp or sync failed");
            return;
        }
    }
}

void load(benchmark::State &state)
{
    for (auto _ : state) {
        StipulationTable table;
        if (!table.load(workplace().file())) {
            state.SkipWithError("the file could not be loaded");
            return;
        }
    }
}

/// From pressing the menu button until the list is painted, in a freshly started program.
void loadToListShown(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto editor = std::make_unique<Editor>();
        editor->start();
        tarvold::bench::settle(editor->screens()["Form1"]);
        editor->screens()["Form1"].setText("Text1", workplace().file());
        state.ResumeTiming();
        tarvold::bench::pressUntilPainted(*editor, "Form1", "Command1", "Form16", "List1");
        state.PauseTiming();
        editor.reset();
        state.ResumeTiming();
    }
}

/// Rebuilds the list, as after every change.
void rebuild(benchmark::State &state)
{
    StipulationListModel model(loaded(), nullptr);
    for (auto _ : state) {
        model.show(loaded().namedRecords());
    }
    if (model.rowCount() != kStipulations) {
        state.SkipWithError("the list is not complete");
    }
}

void duplicateCheck(benchmark::State &state)
{
    const QByteArray matchType = loaded().line(kMiddle).toByteArray();
    const QByteArray name = loaded().line(kMiddle + 1).toByteArray();
    int count = 0;
    for (auto _ : state) {
        count = loaded().countKey(matchType, name, 0);
        benchmark::DoNotOptimize(count);
    }
    if (count != 1) {
        state.SkipWithError("the stipulation was not found");
    }
}

void save(benchmark::State &state)
{
    for (auto _ : state) {
        if (!loaded().writeBack(workplace().copy())) {
            state.SkipWithError("the file could not be saved");
            return;
        }
    }
}

/// An edit, without saving and rebuilding the list: copy the table, find the entry, replace the
/// record.
void edit(benchmark::State &state)
{
    StipulationTable table;
    if (!table.load(workplace().file())) {
        state.SkipWithError("the file could not be loaded");
        return;
    }
    const StipulationTable::Record record = stipulation(kStipulations / 2);
    for (auto _ : state) {
        StipulationTable changed = table;
        changed.replace(changed.find(changed.displayText(kMiddle)).back(), record);
        benchmark::DoNotOptimize(changed.lineCount());
    }
}

/// A delete, without saving and rebuilding the list: copy the table, find the entry, remove the
/// record.
void remove(benchmark::State &state)
{
    StipulationTable table;
    if (!table.load(workplace().file())) {
        state.SkipWithError("the file could not be loaded");
        return;
    }
    for (auto _ : state) {
        StipulationTable changed = table;
        changed.remove(changed.find(changed.displayText(kMiddle)).back());
        benchmark::DoNotOptimize(changed.lineCount());
    }
}

void registerAll()
{
    using Function = void (*)(benchmark::State &);
    constexpr int kRepetitions = 5;
    const std::initializer_list<std::pair<const char *, Function>> all = {
        {"wc -l", wcLines},
        {"load", load},
        {"load to list shown", loadToListShown},
        {"rebuild", rebuild},
        {"duplicate check", duplicateCheck},
        {"edit", edit},
        {"delete", remove},
        {"cp and sync", copyAndSync},
        {"save", save},
    };
    for (const auto &[name, function] : all) {
        benchmark::RegisterBenchmark(name, function)
            ->Unit(benchmark::kMillisecond)
            ->UseRealTime()
            ->Repetitions(kRepetitions)
            ->ReportAggregatesOnly();
    }
}

} // namespace

int main(int argc, char *argv[])
{
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tarvold::look::apply();
    loaded(); // creates the file before the first measurement
    registerAll();
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
