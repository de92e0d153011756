#pragma once

#include <QString>

#include <atomic>
#include <mutex>
#include <optional>

namespace selfsame {

// A rate averaged over the last seconds (an exponential moving average), from totals taken
// at known times.
class MovingRate {
public:
    static constexpr double kSeconds = 5; // how far back the average mostly looks

    void add(qint64 nowMicroseconds, qint64 total);
    // Per second; none until the totals span long enough to mean something.
    std::optional<double> perSecond() const;

private:
    static constexpr qint64 kSettleMicroseconds = 2'000'000;
    qint64 m_firstTime = -1;
    qint64 m_lastTime = -1;
    qint64 m_lastTotal = 0;
    double m_rate = 0;
};

// Bytes read of the bytes still to read, counted by any number of threads. The bytes to read
// are planned before reading begins and only shrink after that, as work turns out to be
// unnecessary; the bytes read only grow. So the fraction never goes back, and it stays below
// 1 until everything planned has been read or given up.
class ReadProgress {
public:
    void plan(qint64 bytes) { m_planned.fetch_add(bytes, std::memory_order_relaxed); }
    void read(qint64 bytes) { m_read.fetch_add(bytes, std::memory_order_relaxed); }
    // Planned bytes that will not be read after all.
    void release(qint64 bytes) { m_released.fetch_add(bytes, std::memory_order_relaxed); }

    qint64 bytesRead() const { return m_read.load(std::memory_order_relaxed); }
    qint64 bytesToRead() const;
    double fraction() const;

    // "1.2 GB of 3.4 GB, about 2 minutes left"; the time left once the rate is known.
    QString text(qint64 nowMicroseconds);

private:
    std::atomic<qint64> m_planned{0};
    std::atomic<qint64> m_read{0};
    std::atomic<qint64> m_released{0};
    std::mutex m_rateMutex;
    MovingRate m_rate;
};

} // namespace selfsame
