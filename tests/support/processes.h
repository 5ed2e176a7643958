#pragma once

#include <cstdlib>
#include <sys/wait.h>
#include <unistd.h>

/// Tasks that run at the same time, each in a child process.
namespace tarvold::testing {

/// Starts a task in a child process.
/// \param task returns whether it succeeded; see succeeds()
/// \return its process id
template <class Task>
pid_t start(const Task &task)
{
    const pid_t process = fork();
    if (process == 0) {
        _exit(task() ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    return process;
}

/// Waits for a started task; returns whether it returned `true`.
inline bool succeeds(pid_t process)
{
    int status = 0;
    return waitpid(process, &status, 0) == process && WIFEXITED(status) &&
           WEXITSTATUS(status) == EXIT_SUCCESS;
}

/// Whether a started task is still running. Leaves its exit status for succeeds() to collect.
inline bool isRunning(pid_t process)
{
    siginfo_t info = {};
    return waitid(P_PID, static_cast<id_t>(process), &info, WEXITED | WNOHANG | WNOWAIT) == 0 &&
           info.si_pid == 0;
}

} // namespace tarvold::testing
