#include "search/StatusThrottle.h"

#include <sys/time.h>

namespace selfsame {

bool StatusThrottle::admit()
{
    const qint64 now = m_clock();
    qint64 last = m_last.load(std::memory_order_relaxed);
    while (now > last + kInterval) {
        if (m_last.compare_exchange_weak(last, now, std::memory_order_relaxed))
            return true;
    }
    return false;
}

qint64 StatusThrottle::wallClockMicroseconds()
{
    timeval tv;
    gettimeofday(&tv, nullptr);
    return qint64(tv.tv_sec) * 1000000 + tv.tv_usec;
}

} // namespace selfsame
