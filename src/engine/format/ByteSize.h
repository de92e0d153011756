#pragma once

#include <QString>

namespace selfsame {

// Reads a size typed by the user, such as "10 MB", "4KiB" or "500"; units are read in the
// session's language and in English. Only the first run of digits counts (so "1.5 GB" is
// 1 byte); an unknown or missing unit means bytes; text without digits gives 0. Overflow of
// number × unit is not checked.
qint64 stringToBytes(const QString &text);

// The canonical text of a size: the largest unit that divides it exactly, binary units
// tried before decimal ones of the same rank; zero and negative counts read "0 B".
QString bytesToString(qint64 bytes);

// Writes "<count> <name>" to *out and returns true when bytes is a positive exact multiple
// of unitValue; the count is truncated to 32 bits. Otherwise *out is left alone.
bool formatBytes(qint64 bytes, QString *out, qint64 unitValue, const QString &name);

// Texts of the minimum and maximum size fields. The maximum stays empty when it is 0
// under a positive minimum, since 0 then means "no maximum".
struct SizeFieldTexts {
    QString min, max;
};
SizeFieldTexts sizeFieldTexts(qint64 min, qint64 max);

// A byte count for status texts, rounded to decimal units ("12.3 MB").
QString formatByteCount(qint64 bytes);

} // namespace selfsame
