#pragma once

#include <QString>

#include <array>
#include <gtest/gtest.h>
#include <string>
#include <windows.h>

/// Tasks that run at the same time on Windows, each in a program of its own.
namespace tarvold::testing {

/// This test program, started once more for one of its tests in the current folder. That test is
/// disabled, so that it runs in no other way.
class Task
{
public:
    /// \param test suite and name of it, such as "Task.DISABLED_Appends"
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

    /// Waits for its end and tells whether the test passed.
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
