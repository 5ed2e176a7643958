#pragma once

#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

/// Tasks that run at the same time, each in a program of its own.
namespace tarvold::testing {

/// Starts a task in a process of its own.
/// \param task returns whether it succeeded; see succeeds()
template <class Task>
pid_t start(const Task &task)
{
    const pid_t process = fork();
    if (process == 0) {
        _exit(task() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    return process;
}

/// Waits for a started task and tells whether it returned `true`.
inline bool succeeds(pid_t process)
{
    int status = 0;
    return waitpid(process, &status, 0) == process && WIFEXITED(status) &&
           WEXITSTATUS(status) == EXIT_SUCCESS;
}

/// Whether a started task is still at it. One that is not was waited for, so ask it only once more
/// through the status that it left.
inline bool isRunning(pid_t process)
{
    siginfo_t info = {};
    return waitid(P_PID, static_cast<id_t>(process), &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           info.si_pid == 0;
}

} // namespace tarvold::testing
