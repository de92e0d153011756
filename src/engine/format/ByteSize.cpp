#include "format/ByteSize.h"

#include <QCoreApplication>
#include <QLocale>
#include <QRegularExpression>

#include <array>
#include <limits>

namespace selfsame {

namespace {

struct Unit {
    const char *name;
    qint64 value;
};

// Order used when parsing.
constexpr std::array<Unit, 8> kParseUnits{{
    {QT_TRANSLATE_NOOP("ByteSize", "kB"), 1000LL},
    {QT_TRANSLATE_NOOP("ByteSize", "KiB"), 1LL << 10},
    {QT_TRANSLATE_NOOP("ByteSize", "MB"), 1000LL * 1000},
    {QT_TRANSLATE_NOOP("ByteSize", "MiB"), 1LL << 20},
    {QT_TRANSLATE_NOOP("ByteSize", "GB"), 1000LL * 1000 * 1000},
    {QT_TRANSLATE_NOOP("ByteSize", "GiB"), 1LL << 30},
    {QT_TRANSLATE_NOOP("ByteSize", "TB"), 1000LL * 1000 * 1000 * 1000},
    {QT_TRANSLATE_NOOP("ByteSize", "TiB"), 1LL << 40},
}};

// Order used when formatting: largest first, binary before decimal of the same rank.
constexpr std::array<Unit, 9> kFormatUnits{{
    {QT_TRANSLATE_NOOP("ByteSize", "TiB"), 1LL << 40},
    {QT_TRANSLATE_NOOP("ByteSize", "TB"), 1000LL * 1000 * 1000 * 1000},
    {QT_TRANSLATE_NOOP("ByteSize", "GiB"), 1LL << 30},
    {QT_TRANSLATE_NOOP("ByteSize", "GB"), 1000LL * 1000 * 1000},
    {QT_TRANSLATE_NOOP("ByteSize", "MiB"), 1LL << 20},
    {QT_TRANSLATE_NOOP("ByteSize", "MB"), 1000LL * 1000},
    {QT_TRANSLATE_NOOP("ByteSize", "KiB"), 1LL << 10},
    {QT_TRANSLATE_NOOP("ByteSize", "kB"), 1000LL},
    {QT_TRANSLATE_NOOP("ByteSize", "B"), 1LL},
}};

QString unitName(const Unit &unit)
{
    return QCoreApplication::translate("ByteSize", unit.name);
}

// Digits may be any Unicode decimal digits, as \d matches them; a count too large for
// 64 bits saturates rather than being lost.
qint64 digitsToNumber(const QString &digits)
{
    constexpr qint64 max = std::numeric_limits<qint64>::max();
    qint64 number = 0;
    for (char32_t c : digits.toUcs4()) {
        const int digit = QChar::digitValue(c);
        if (digit < 0)
            continue;
        if (number > (max - digit) / 10)
            return max;
        number = number * 10 + digit;
    }
    return number;
}

} // namespace

qint64 stringToBytes(const QString &text)
{
    // Unicode properties, so that a translated unit name counts as one word.
    static const QRegularExpression sizeExpression(QStringLiteral("(\\d+)\\s*(\\w*)"),
                                                   QRegularExpression::UseUnicodePropertiesOption);
    const QRegularExpressionMatch match = sizeExpression.match(text);
    if (!match.hasMatch())
        return 0;

    const qint64 number = digitsToNumber(match.captured(1));
    const QString unit = match.captured(2).toLower();
    // The English names are always understood too: sizes in scripts and habits do not change
    // with the language of the session.
    for (const Unit &candidate : kParseUnits) {
        if (unit.compare(unitName(candidate), Qt::CaseInsensitive) == 0 ||
            unit.compare(QLatin1String(candidate.name), Qt::CaseInsensitive) == 0) {
            // Wraps on overflow instead of being undefined.
            return static_cast<qint64>(static_cast<quint64>(number) * static_cast<quint64>(candidate.value));
        }
    }
    return number;
}

bool formatBytes(qint64 bytes, QString *out, qint64 unitValue, const QString &name)
{
    if (unitValue <= 0 || bytes < unitValue || bytes % unitValue != 0)
        return false;
    // The count is printed as a 32-bit integer; larger quotients wrap.
    const auto count = static_cast<qint32>(bytes / unitValue);
    *out = QString::number(count) + QLatin1Char(' ') + name;
    return true;
}

QString bytesToString(qint64 bytes)
{
    QString text;
    for (const Unit &unit : kFormatUnits) {
        if (formatBytes(bytes, &text, unit.value, unitName(unit)))
            return text;
    }
    return QString::number(0) + QLatin1Char(' ') + unitName(kFormatUnits.back());
}

SizeFieldTexts sizeFieldTexts(qint64 min, qint64 max)
{
    SizeFieldTexts texts;
    texts.min = bytesToString(min);
    if (!(min >= 1 && max == 0))
        texts.max = bytesToString(max);
    return texts;
}

QString formatByteCount(qint64 bytes)
{
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

} // namespace selfsame
