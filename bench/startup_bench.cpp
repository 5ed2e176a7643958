// Time from process start until the window is mapped, and resident memory, of the editor and of a
// plain window, measured from outside: startup_bench EDITOR PLAIN_WINDOW [RUNNER]. Needs an X
// display. RUNNER is a program that runs the other two, such as wine.

#include <benchmark/benchmark.h>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <spawn.h>
#include <stdexcept>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>
#include <vector>
#include <xcb/xcb.h>

namespace {

using Clock = std::chrono::steady_clock;

/// Waits for windows of a program on the display.
class Display
{
public:
    Display() : m_connection(xcb_connect(nullptr, nullptr))
    {
        if (xcb_connection_has_error(m_connection) != 0) {
            throw std::runtime_error("no display");
        }
        const xcb_screen_t *screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        const uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
        xcb_change_window_attributes(m_connection, screen->root, XCB_CW_EVENT_MASK, &events);
        xcb_flush(m_connection);
    }
    Display(const Display &) = delete;
    Display &operator=(const Display &) = delete;
    Display(Display &&) = delete;
    Display &operator=(Display &&) = delete;
    ~Display() { xcb_disconnect(m_connection); }

    /// Discards all events so far.
    void drain()
    {
        while (std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> event{
            xcb_poll_for_event(m_connection), std::free}) {
        }
    }

    /// Waits until a top-level window is mapped. Override-redirect windows do not count: a runner
    /// has such windows of its own.
    void waitForWindow()
    {
        constexpr uint8_t kTypeBits = 0x7F;
        while (true) {
            const std::unique_ptr<xcb_generic_event_t, decltype(&std::free)> event{
                xcb_wait_for_event(m_connection), std::free};
            if (!event || ((event->response_type & kTypeBits) == XCB_MAP_NOTIFY &&
                           isManaged(*reinterpret_cast<xcb_map_notify_event_t *>(event.get())))) {
                return;
            }
        }
    }

private:
    static bool isManaged(const xcb_map_notify_event_t &mapped)
    {
        return mapped.override_redirect == 0;
    }

    xcb_connection_t *m_connection;
};

double residentMegabytes(pid_t process)
{
    std::ifstream statm("/proc/" + std::to_string(process) + "/statm");
    double total = 0;
    double resident = 0;
    statm >> total >> resident;
    return resident * static_cast<double>(sysconf(_SC_PAGESIZE)) / 1e6;
}

void measure(benchmark::State &state, std::vector<char *> command)
{
    Display display;
    double resident = 0;
    for (auto _ : state) {
        display.drain();
        pid_t process = 0;
        const auto start = Clock::now();
        if (posix_spawnp(&process, command.front(), nullptr, nullptr, command.data(), environ) !=
            0) {
            state.SkipWithError("the program did not start");
            return;
        }
        display.waitForWindow();
        const std::chrono::duration<double> taken = Clock::now() - start;
        state.SetIterationTime(taken.count());
        std::this_thread::sleep_for(std::chrono::milliseconds(300)); // until startup is complete
        resident += residentMegabytes(process);
        kill(process, SIGKILL);
        waitpid(process, nullptr, 0);
    }
    state.counters["resident_MB"] =
        benchmark::Counter(resident, benchmark::Counter::kAvgIterations);
}

} // namespace

int main(int argc, char *argv[])
{
    benchmark::Initialize(&argc, argv);
    if (argc != 3 && argc != 4) {
        return EXIT_FAILURE;
    }
    for (const auto &[name, program] : {std::pair{"editor", argv[1]}, {"plain_window", argv[2]}}) {
        std::vector<char *> command{program, nullptr};
        if (argc == 4) {
            command.insert(command.begin(), argv[3]);
        }
        benchmark::RegisterBenchmark(name, measure, command)
            ->UseManualTime()
            ->Iterations(10)
            ->Repetitions(5)
            ->ReportAggregatesOnly()
            ->Unit(benchmark::kMillisecond);
    }
    benchmark::RunSpecifiedBenchmarks();
    return EXIT_SUCCESS;
}
