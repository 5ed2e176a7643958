#include "walk/trace.h"

#include <QByteArray>

#include <array>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

// A hook of the sanitizers; null without them.
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

namespace tarvold::testing::trace {
namespace {

constexpr unsigned kTimeout = 300; ///< timeout in seconds, even on a busy machine
constexpr std::size_t kKept = 40;

std::array<QByteArray, kKept> notes;
std::size_t noted = 0;
unsigned currentSeed = 0;
int currentAction = 0;
bool isVerbose = false;

void printAndExit(int signal)
{
    print();
    std::fprintf(stderr, "ended by signal %d\n", signal);
    std::_Exit(1);
}

} // namespace

void start(unsigned seed, bool talk)
{
    currentSeed = seed;
    currentAction = 0;
    isVerbose = talk;
    noted = 0;
    for (const int signal : {SIGABRT, SIGALRM, SIGFPE}) {
        static_cast<void>(std::signal(signal, printAndExit));
    }
    if (__sanitizer_set_death_callback != nullptr) {
        __sanitizer_set_death_callback(print);
    } else {
        static_cast<void>(std::signal(SIGSEGV, printAndExit));
    }
}

void begin(int number)
{
    currentAction = number;
    alarm(kTimeout);
}

void note(const QString &text)
{
    const QByteArray line = QByteArray::number(currentAction) + ": " + text.toUtf8();
    notes.at(noted++ % kKept) = line;
    if (isVerbose) {
        std::fprintf(stderr, "%s\n", line.constData());
    }
}

void print()
{
    std::fprintf(stderr, "\nseed %u, action %d; last actions:\n", currentSeed, currentAction);
    for (std::size_t kept = noted < kKept ? 0 : noted - kKept; kept < noted; ++kept) {
        std::fprintf(stderr, "  %s\n", notes.at(kept % kKept).constData());
    }
    std::fprintf(stderr, "to repeat it: walk --seed %u --actions %d --talk\n", currentSeed,
                 currentAction);
}

} // namespace tarvold::testing::trace
