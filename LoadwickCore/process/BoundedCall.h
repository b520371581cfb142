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
/// own everything it uses, and its value is destroyed as soon as it is there. An exception of the
/// call, or of starting the thread, reaches the caller.
template<typename Call>
[[nodiscard]] auto callWithin(std::chrono::duration<double> limit, Call call)
    -> std::optional<decltype(call())>
{
    using Value = decltype(call());
    struct Outcome
    {
        std::optional<Value> value; // of the call's thread until it has ended
        std::exception_ptr error;
        std::mutex mutex;
        std::condition_variable ended;
        bool hasEnded = false;
    };
    const auto outcome = std::make_shared<Outcome>();
    std::thread thread([outcome, call = std::move(call)]() mutable {
        try {
            outcome->value.emplace(call());
        } catch (...) {
            outcome->error = std::current_exception();
        }
        const std::lock_guard lock(outcome->mutex);
        outcome->hasEnded = true;
        outcome->ended.notify_all();
    });

    std::unique_lock lock(outcome->mutex);
    const auto hasEnded = [&outcome] { return outcome->hasEnded; };
    if (limit.count() <= 0 || !outcome->ended.wait_for(lock, limit, hasEnded)) {
        thread.detach();
        return std::nullopt;
    }
    lock.unlock();
    thread.join();
    if (outcome->error)
        std::rethrow_exception(outcome->error);
    return std::move(outcome->value);
}

} // namespace Loadwick
