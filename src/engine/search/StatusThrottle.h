#pragma once

#include <QtGlobal>

#include <atomic>
#include <functional>

namespace selfsame {

// Lets at most one status message through every 0.1 s, from any number of threads.
class StatusThrottle {
public:
    using Clock = std::function<qint64()>; // wall clock in microseconds

    explicit StatusThrottle(Clock clock = wallClockMicroseconds) : m_clock(std::move(clock)) {}

    // True when the message may be shown: strictly more than 0.1 s after the last one shown.
    bool admit();
    // At the start of every step, so that the step's first message is always shown.
    void reset() { m_last.store(0, std::memory_order_relaxed); }
    // The time on the throttle's clock, for rates shown with the messages.
    qint64 now() const { return m_clock(); }

    static qint64 wallClockMicroseconds();

private:
    static constexpr qint64 kInterval = 100000;
    Clock m_clock;
    std::atomic<qint64> m_last{0};
};

} // namespace selfsame
