#include "search/SearchState.h"

#include <chrono>
#include <condition_variable>
#include <mutex>

namespace selfsame {

namespace {

// One for all searches of the process: pausing and resuming are rare, and a waiter woken for
// another search only looks at its own state and waits again.
std::mutex g_pauseMutex;
std::condition_variable g_resumed;

} // namespace

int waitWhilePaused(const std::atomic<int> &state)
{
    std::unique_lock lock(g_pauseMutex);
    int now;
    while ((now = state.load()) == Paused)
        g_resumed.wait_for(lock, std::chrono::milliseconds(50));
    return now;
}

void wakePausedSearches()
{
    {
        std::lock_guard lock(g_pauseMutex); // no waiter misses the change between its check and its wait
    }
    g_resumed.notify_all();
}

} // namespace selfsame
