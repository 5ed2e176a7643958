#pragma once

#include <QString>

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <windows.h>

/// Tasks that run at the same time on Windows, each in a process of its own.
namespace tarvold::testing {

/// Starts this test program again in the current folder, to run one of its tests. That test is
/// disabled, so that it does not run otherwise.
class Task
{
public:
    /// \param test suite and name, such as "Task.DISABLED_Appends"
    explicit Task(const std::string &test)
    {
        std::array<char, MAX_PATH> program{};
        ::GetModuleFileNameA(nullptr, program.data(), DWORD(program.size()));
        std::string command = '"' + std::string(program.data()) + "\" --gtest_filter=" + test +
                              " --gtest_also_run_disabled_tests";
        STARTUPINFOA start = {};
        start.cb = sizeof start;
        EXPECT_TRUE(::CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                     nullptr, &start, &m_process));
    }
    ~Task()
    {
        ::CloseHandle(m_process.hThread);
        ::CloseHandle(m_process.hProcess);
    }
    Q_DISABLE_COPY_MOVE(Task)

    bool isRunning() const { return ::WaitForSingleObject(m_process.hProcess, 0) == WAIT_TIMEOUT; }

    /// Waits for the process to end; returns whether the test passed.
    bool succeeds() const
    {
        DWORD code = 1;
        return ::WaitForSingleObject(m_process.hProcess, INFINITE) == WAIT_OBJECT_0 &&
               ::GetExitCodeProcess(m_process.hProcess, &code) != FALSE && code == 0;
    }

private:
    PROCESS_INFORMATION m_process = {};
};

} // namespace tarvold::testing
