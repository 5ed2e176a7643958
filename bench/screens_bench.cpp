// Time from a button press until the next screen is painted.

#include "controls/look.h"
#include "editor.h"
#include "press.h"

#include <QApplication>

#include <benchmark/benchmark.h>

namespace {

using tarvold::Editor;
using tarvold::bench::pressUntilPainted;
using tarvold::bench::settle;

/// The first press of a menu button: creates four screens, and paints the first of them.
void enterFlowFirstTime(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto editor = std::make_unique<Editor>();
        editor->start();
        settle(editor->screens()["Form1"]);
        state.ResumeTiming();
        pressUntilPainted(*editor, "Form1", "Command3", "Form4");
        state.PauseTiming();
        editor.reset();
        state.ResumeTiming();
    }
}

/// Shows a screen that already exists for the first time.
void nextFirstTime(benchmark::State &state)
{
    for (auto _ : state) {
        state.PauseTiming();
        auto editor = std::make_unique<Editor>();
        editor->start();
        settle(editor->screens()["Form1"]);
        pressUntilPainted(*editor, "Form1", "Command3", "Form4");
        settle(editor->screens()["Form4"]);
        state.ResumeTiming();
        pressUntilPainted(*editor, "Form4", "Command2", "Form5");
        state.PauseTiming();
        editor.reset();
        state.ResumeTiming();
    }
}

/// Shows a screen that has been shown before.
void nextAgain(benchmark::State &state)
{
    Editor editor;
    editor.start();
    settle(editor.screens()["Form1"]);
    pressUntilPainted(editor, "Form1", "Command3", "Form4");
    settle(editor.screens()["Form4"]);
    for (auto _ : state) {
        pressUntilPainted(editor, "Form4", "Command2", "Form5");
        state.PauseTiming();
        settle(editor.screens()["Form5"]);
        pressUntilPainted(editor, "Form5", "Command1", "Form4");
        settle(editor.screens()["Form4"]);
        state.ResumeTiming();
    }
}

BENCHMARK(enterFlowFirstTime)
    ->Unit(benchmark::kMillisecond)
    ->MeasureProcessCPUTime()
    ->UseRealTime();
BENCHMARK(nextFirstTime)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();
BENCHMARK(nextAgain)->Unit(benchmark::kMillisecond)->MeasureProcessCPUTime()->UseRealTime();

} // namespace

int main(int argc, char *argv[])
{
    benchmark::Initialize(&argc, argv);
    const QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    tarvold::look::apply();
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
