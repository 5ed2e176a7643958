#include "walk/trace.h"

#include <QByteArray>

#include <array>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

// The sanitizers' own hook; without them it is not there.
extern "C" void __sanitizer_set_death_callback(void (*callback)()) __attribute__((weak));

namespace tarvold::testing::trace {
namespace {

constexpr unsigned kLongestAction = 300; ///< in seconds, on however busy a machine
constexpr std::size_t kKept = 40;

std::array<QByteArray, kKept> notes;
std::size_t noted = 0;
unsigned seedInUse = 0;
int actionInHand = 0;
bool talks = false;

void tellAndEnd(int signal)
{
    tell();
    std::fprintf(stderr, "ended by signal %d\n", signal);
    std::_Exit(1);
}

} // namespace

void start(unsigned seed, bool talk)
{
    seedInUse = seed;
    actionInHand = 0;
    talks = talk;
    noted = 0;
    for (const int signal : {SIGABRT, SIGALRM, SIGFPE}) {
        static_cast<void>(std::signal(signal, tellAndEnd));
    }
    if (__sanitizer_set_death_callback != nullptr) {
        __sanitizer_set_death_callback(tell);
    } else {
        static_cast<void>(std::signal(SIGSEGV, tellAndEnd));
    }
}

void begin(int number)
{
    actionInHand = number;
    alarm(kLongestAction);
}

void note(const QString &text)
{
    const QByteArray line = QByteArray::number(actionInHand) + ": " + text.toUtf8();
    notes.at(noted++ % kKept) = line;
    if (talks) {
        std::fprintf(stderr, "%s\n", line.constData());
    }
}

void tell()
{
    std::fprintf(stderr, "\nseed %u, action %d; what was done last:\n", seedInUse, actionInHand);
    for (std::size_t kept = noted < kKept ? 0 : noted - kKept; kept < noted; ++kept) {
        std::fprintf(stderr, "  %s\n", notes.at(kept % kKept).constData());
    }
    std::fprintf(stderr, "to do it again: walk --seed %u --actions %d --talk\n", seedInUse,
                 actionInHand);
}

} // namespace tarvold::testing::trace
