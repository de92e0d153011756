#include "format/IsoDate.h"

#include <chrono>
#include <ctime>

namespace selfsame {

QByteArray isoDate(qint64 seconds)
{
    const time_t t = time_t(seconds);
    struct tm utc;
    char text[32];
    if (!gmtime_r(&t, &utc)) return "1970-01-01T00:00:00Z";
    const std::size_t n = strftime(text, sizeof(text), "%Y-%m-%dT%H:%M:%SZ", &utc);
    return QByteArray(text, qsizetype(n));
}

std::optional<qint64> parseIsoDate(std::string_view text)
{
    // A sign before the year for dates before year 0 or after 9999, as gmtime writes them.
    const bool negative = text.starts_with('-');
    const std::string_view rest = negative ? text.substr(1) : text;
    const std::size_t yearDigits = rest.find('-');
    if (yearDigits == std::string_view::npos || yearDigits < 1 || rest.size() != yearDigits + 16) return std::nullopt;
    static constexpr char kShape[] = "-00-00T00:00:00Z"; // after the year; 0 is any digit
    for (std::size_t i = 0; i < 16; ++i) {
        const char c = rest[yearDigits + i];
        if (kShape[i] == '0' ? (c < '0' || c > '9') : c != kShape[i]) return std::nullopt;
    }
    auto number = [&](std::size_t from, std::size_t count) {
        qint64 n = 0;
        for (std::size_t i = from; i < from + count; ++i) {
            if (rest[i] < '0' || rest[i] > '9') return qint64(-1);
            n = n * 10 + (rest[i] - '0');
        }
        return n;
    };
    const qint64 year = number(0, yearDigits);
    const qint64 month = number(yearDigits + 1, 2), day = number(yearDigits + 4, 2);
    const qint64 hour = number(yearDigits + 7, 2), minute = number(yearDigits + 10, 2);
    const qint64 second = number(yearDigits + 13, 2);
    if (year < 0 || yearDigits > 5 || hour > 23 || minute > 59 || second > 60) return std::nullopt;
    using namespace std::chrono;
    const year_month_day date{std::chrono::year(int(negative ? -year : year)), std::chrono::month(unsigned(month)),
                              std::chrono::day(unsigned(day))};
    if (!date.ok()) return std::nullopt;
    return qint64(sys_days(date).time_since_epoch().count()) * 86400 + hour * 3600 + minute * 60 + second;
}

} // namespace selfsame
