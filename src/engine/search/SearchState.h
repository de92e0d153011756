#pragma once

#include <atomic>

namespace selfsame {

enum SearchingState : int { Running = 0, AbortRequested = 1, Finished = 2, Paused = 3 };

// Holds the calling thread while its search is paused; returns the state it left with.
// Waits at most 50 ms at a time, so that an abort set where no one can wake the waiters (a
// signal handler) is still seen at once.
int waitWhilePaused(const std::atomic<int> &state);
// Wakes the waiting threads of every paused search to look at their state again.
void wakePausedSearches();

// The check of every loop that reads: false while running, waits while paused, true once an
// abort was requested. A single relaxed load while the search runs.
inline bool stopRequested(const std::atomic<int> &state)
{
    int now = state.load(std::memory_order_relaxed);
    if (now == Paused)
        now = waitWhilePaused(state);
    return now == AbortRequested;
}

} // namespace selfsame
