#include "format/TimeLeft.h"

#include <QCoreApplication>

#include <cmath>

namespace selfsame {

namespace {

struct TimeLeftText {
    Q_DECLARE_TR_FUNCTIONS(TimeLeft)
};

} // namespace

QString timeLeftText(double seconds)
{
    if (seconds < 10)
        return TimeLeftText::tr("a few seconds left");
    if (seconds < 60)
        return TimeLeftText::tr("about %Ln second(s) left", nullptr, int(std::min(5L, std::lround(seconds / 10)) * 10));
    if (seconds < 90 * 60)
        return TimeLeftText::tr("about %Ln minute(s) left", nullptr, int(std::max(1L, std::lround(seconds / 60))));
    return TimeLeftText::tr("about %Ln hour(s) left", nullptr, int(std::min(std::lround(seconds / 3600), 9999L)));
}

} // namespace selfsame
