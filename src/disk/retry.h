#pragma once

#include "disk/file_error.h"

#include <chrono>
#include <thread>

namespace tarvold {

/// How long to wait for a file that another program uses.
inline constexpr auto kRetryTimeout = std::chrono::seconds(2);

/// Calls a function that returns a Result, again while its error is `Busy`, until the timeout.
/// \param pause between two calls
/// \return the result of the last call
template <typename Function>
auto retry(std::chrono::microseconds pause, Function function)
{
    const auto deadline = std::chrono::steady_clock::now() + kRetryTimeout;
    while (true) {
        auto result = function();
        if (result || result.error().reason != FileError::Reason::Busy ||
            std::chrono::steady_clock::now() >= deadline) {
            return result;
        }
        std::this_thread::sleep_for(pause);
    }
}

} // namespace tarvold
