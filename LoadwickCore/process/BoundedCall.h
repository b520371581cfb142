#pragma once

#include <chrono>
#include <condition_variable>
#include <exception>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>

namespace Loadwick {

/// Runs `call` on a thread of its own and waits at most `limit` seconds for its value. Nothing when
/// the limit came first, and always when it is 0 or less: the call then continues alone, so it must
/// own everything it uses. An exception of the call, or of starting the thread, reaches the caller.
template<typename Call>
[[nodiscard]] auto callWithin(std::chrono::duration<double> limit, Call call)
    -> std::optional<decltype(call())>
{
    using Value = decltype(call());
    struct Outcome
    {
        std::mutex mutex;
        std::condition_variable arrived;
        std::optional<Value> value;
        std::exception_ptr error;
    };
    const auto outcome = std::make_shared<Outcome>();
    std::thread([outcome, call = std::move(call)]() mutable {
        std::optional<Value> value;
        std::exception_ptr error;
        try {
            value.emplace(call());
        } catch (...) {
            error = std::current_exception();
        }
        const std::lock_guard lock(outcome->mutex);
        outcome->value = std::move(value);
        outcome->error = error;
        outcome->arrived.notify_all();
    }).detach();

    std::unique_lock lock(outcome->mutex);
    const auto hasArrived = [&outcome] { return outcome->value || outcome->error; };
    if (limit.count() <= 0 || !outcome->arrived.wait_for(lock, limit, hasArrived))
        return std::nullopt;
    if (outcome->error)
        std::rethrow_exception(outcome->error);
    return std::move(outcome->value);
}

} // namespace Loadwick
