#include "search/ReadProgress.h"

#include "format/ByteSize.h"
#include "format/TimeLeft.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>

namespace selfsame {

namespace {

struct ReadProgressText {
    Q_DECLARE_TR_FUNCTIONS(DuplicateSearch)
};

} // namespace

void MovingRate::add(qint64 nowMicroseconds, qint64 total)
{
    if (m_firstTime < 0) {
        m_firstTime = m_lastTime = nowMicroseconds;
        m_lastTotal = total;
        return;
    }
    const qint64 elapsed = nowMicroseconds - m_lastTime;
    if (elapsed <= 0)
        return;
    const double seconds = double(elapsed) / 1e6;
    const double recent = double(total - m_lastTotal) / seconds;
    // The first span sets the rate; later ones weigh in by how long they lasted.
    const double weight = m_lastTime == m_firstTime ? 1 : 1 - std::exp(-seconds / kSeconds);
    m_rate += weight * (recent - m_rate);
    m_lastTime = nowMicroseconds;
    m_lastTotal = total;
}

std::optional<double> MovingRate::perSecond() const
{
    if (m_firstTime < 0 || m_lastTime - m_firstTime < kSettleMicroseconds)
        return std::nullopt;
    return m_rate;
}

qint64 ReadProgress::bytesToRead() const
{
    const qint64 read = bytesRead();
    return std::max(read, m_planned.load(std::memory_order_relaxed) - m_released.load(std::memory_order_relaxed));
}

double ReadProgress::fraction() const
{
    const qint64 read = bytesRead();
    const qint64 toRead = bytesToRead();
    return toRead > 0 ? double(read) / double(toRead) : 0.0;
}

QString ReadProgress::text(qint64 nowMicroseconds)
{
    const qint64 read = bytesRead();
    const qint64 toRead = bytesToRead();
    std::optional<double> rate;
    {
        std::lock_guard lock(m_rateMutex);
        m_rate.add(nowMicroseconds, read);
        rate = m_rate.perSecond();
    }
    if (!rate || *rate <= 0 || read >= toRead)
        return ReadProgressText::tr("%1 of %2").arg(formatByteCount(read), formatByteCount(toRead));
    return ReadProgressText::tr("%1 of %2, %3")
        .arg(formatByteCount(read), formatByteCount(toRead), timeLeftText(double(toRead - read) / *rate));
}

} // namespace selfsame
