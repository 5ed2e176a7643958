#pragma once

#include <QDir>

#include <csignal>
#include <functional>
#include <grp.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

/// Ways to make writing a file fail.
namespace tarvold::testing {

/// Limits the size of files that this process writes while it lives, in bytes.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes) : m_oldAction(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_old);
        const rlimit limited = {bytes, m_old.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_old);
        static_cast<void>(std::signal(SIGXFSZ, m_oldAction));
    }
    FileSizeLimit(const FileSizeLimit &) = delete;
    FileSizeLimit &operator=(const FileSizeLimit &) = delete;

private:
    rlimit m_old = {};
    void (*m_oldAction)(int);
};

/// Runs a check in a child process as an ordinary user, as permissions do not apply to the
/// superuser: a superuser's child becomes the user "nobody".
/// \param groups supplementary groups of that user
/// \return whether the check returned `true`
inline bool holdsForOrdinaryUser(const std::function<bool()> &check,
                                 const std::vector<gid_t> &groups = {})
{
    using namespace Qt::StringLiterals;
    constexpr uid_t kNobody = 65534;
    // A lock that another thread holds at a fork() is never released in the child.
    for (int wait = 0; wait < 200 && QDir(u"/proc/self/task"_s).count() > 3; ++wait) {
        ::usleep(10'000);
    }
    const pid_t child = fork();
    if (child == 0) {
        const bool ordinary = geteuid() != 0 || (setgroups(groups.size(), groups.data()) == 0 &&
                                                 setgid(kNobody) == 0 && setuid(kNobody) == 0 &&
                                                 geteuid() == kNobody);
        _exit(ordinary && check() ? 0 : 1);
    }
    int status = -1;
    return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

} // namespace tarvold::testing
