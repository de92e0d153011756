#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <optional>
#include <string_view>

namespace selfsame {

// Whole seconds since 1970 as ISO 8601 in UTC ("2024-05-01T08:30:00Z"), written and read
// directly: saved results hold several dates for each of millions of items.
QByteArray isoDate(qint64 seconds);
// The same text without an allocation, for writers of many dates.
struct IsoDateText {
    char text[32];
    qsizetype length = 0;
    QByteArrayView view() const { return {text, length}; }
};
IsoDateText isoDateText(qint64 seconds);
// Reads exactly that form back; nothing for any other text.
std::optional<qint64> parseIsoDate(std::string_view text);

} // namespace selfsame
