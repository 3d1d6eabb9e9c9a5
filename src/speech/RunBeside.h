#pragma once

#include <future>
#include <system_error>
#include <utility>

/// work() on a thread of its own, or in line at the future's get() when no thread can be had.
template <typename Work> auto runBeside(Work work) -> std::future<decltype(work())>
{
    try {
        return std::async(std::launch::async, std::move(work));
    } catch (const std::system_error &) {
        return std::async(std::launch::deferred, std::move(work));
    }
}
