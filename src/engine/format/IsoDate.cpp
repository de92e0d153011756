#include "format/IsoDate.h"

#include <chrono>
#include <cstring>
#include <ctime>

namespace selfsame {

IsoDateText isoDateText(qint64 seconds)
{
    IsoDateText date;
    using namespace std::chrono;
    const qint64 day = seconds >= 0 ? seconds / 86400 : -((-seconds + 86399) / 86400);
    const year_month_day ymd{sys_days{days{day}}};
    const int year = int(ymd.year());
    if (year >= 1000 && year <= 9999) {
        // Four-digit years, nearly all of them, written directly; strftime is slow for millions.
        const qint64 inDay = seconds - day * 86400;
        const int fields[6] = {
            year / 100,        year % 100,          int(unsigned(ymd.month())), int(unsigned(ymd.day())),
            int(inDay / 3600), int(inDay / 60 % 60)};
        char *out = date.text;
        for (int i = 0; i < 6; ++i) {
            *out++ = char('0' + fields[i] / 10);
            *out++ = char('0' + fields[i] % 10);
            if (i >= 1 && i <= 4) *out++ = "--T:"[i - 1];
        }
        *out++ = ':';
        *out++ = char('0' + inDay % 60 / 10);
        *out++ = char('0' + inDay % 10);
        *out++ = 'Z';
        date.length = out - date.text;
        return date;
    }
    const time_t t = time_t(seconds);
    struct tm utc;
    if (!gmtime_r(&t, &utc)) {
        date.length = qsizetype(std::strlen(std::strcpy(date.text, "1970-01-01T00:00:00Z")));
        return date;
    }
    date.length = qsizetype(strftime(date.text, sizeof(date.text), "%Y-%m-%dT%H:%M:%SZ", &utc));
    return date;
}

QByteArray isoDate(qint64 seconds)
{
    return isoDateText(seconds).view().toByteArray();
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
