#include "format/Formatters.h"

#include <QCoreApplication>

#include <cmath>
#include <cstdlib>

namespace selfsame {

namespace {

const QChar kNbsp(0x00A0);

// Truncates toward zero and keeps the low 32 bits, so out-of-range values wrap the
// same way for every input instead of being undefined.
qint32 truncateToInt32(double value)
{
    if (!std::isfinite(value))
        return 0;
    const double wrapped = std::fmod(std::trunc(value), 4294967296.0);
    return static_cast<qint32>(static_cast<qint64>(wrapped));
}

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Char:
    case QMetaType::SChar:
    case QMetaType::UChar:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

QString twoDigits(qint64 value)
{
    return QStringLiteral("%1").arg(value, 2, 10, QLatin1Char('0'));
}

} // namespace

IntegerFormatter::IntegerFormatter(const QLocale &locale) : m_locale(locale)
{
    // The C locale omits group separators by default; counts always show them.
    m_locale.setNumberOptions(m_locale.numberOptions() & ~QLocale::OmitGroupSeparator);
}

const IntegerFormatter &IntegerFormatter::shared()
{
    static const IntegerFormatter instance;
    return instance;
}

QString IntegerFormatter::stringForIntValue(int value) const
{
    return m_locale.toString(value);
}

QString IntegerFormatter::stringForIntegerValue(qint64 value) const
{
    return m_locale.toString(value);
}

DegreeMinuteSecondFormatter::DegreeMinuteSecondFormatter(const QLocale &locale,
                                                         const QString &positiveCardinal,
                                                         const QString &negativeCardinal)
    : m_locale(locale)
{
    if (!positiveCardinal.isEmpty())
        m_positiveCardinal = kNbsp + positiveCardinal;
    if (!negativeCardinal.isEmpty())
        m_negativeCardinal = kNbsp + negativeCardinal;
}

const DegreeMinuteSecondFormatter &DegreeMinuteSecondFormatter::shared()
{
    static const DegreeMinuteSecondFormatter instance;
    return instance;
}

const DegreeMinuteSecondFormatter &DegreeMinuteSecondFormatter::latitude()
{
    static const DegreeMinuteSecondFormatter instance(
        QLocale(), QCoreApplication::translate("DegreeMinuteSecondFormatter", "N"),
        QCoreApplication::translate("DegreeMinuteSecondFormatter", "S"));
    return instance;
}

const DegreeMinuteSecondFormatter &DegreeMinuteSecondFormatter::longitude()
{
    static const DegreeMinuteSecondFormatter instance(
        QLocale(), QCoreApplication::translate("DegreeMinuteSecondFormatter", "E"),
        QCoreApplication::translate("DegreeMinuteSecondFormatter", "W"));
    return instance;
}

QString DegreeMinuteSecondFormatter::stringFromDoubleValue(double degrees) const
{
    const qint32 h = truncateToInt32(degrees * 60 * 60 * 100); // hundredths of an arcsecond
    QString sign;
    QString cardinal;
    if (h < 0) {
        if (!m_positiveCardinal.isEmpty() && !m_negativeCardinal.isEmpty())
            cardinal = m_negativeCardinal;
        else
            sign = m_locale.negativeSign();
    } else {
        cardinal = m_positiveCardinal;
    }

    const qint64 a = std::abs(static_cast<qint64>(h));
    return sign + QString::number(a / 360000) + QChar(0x00B0) + kNbsp + twoDigits(a % 360000 / 6000) +
           QChar(0x2032) + kNbsp + twoDigits(a % 6000 / 100) + m_locale.decimalPoint() +
           twoDigits(a % 100) + QChar(0x2033) + cardinal;
}

QString DegreeMinuteSecondFormatter::stringFromIntegerValue(qint64 degrees) const
{
    return stringFromDoubleValue(static_cast<double>(degrees));
}

QString DegreeMinuteSecondFormatter::stringFromNumber(const QVariant &number) const
{
    return stringForObjectValue(number);
}

QString DegreeMinuteSecondFormatter::stringForObjectValue(const QVariant &value) const
{
    return isNumber(value) ? stringFromDoubleValue(value.toDouble()) : QString();
}

HourMinuteSecondFormatter::HourMinuteSecondFormatter(const QLocale &locale) : m_locale(locale) {}

const HourMinuteSecondFormatter &HourMinuteSecondFormatter::shared()
{
    static const HourMinuteSecondFormatter instance;
    return instance;
}

QString HourMinuteSecondFormatter::stringFromDoubleValue(double seconds) const
{
    const qint32 h = truncateToInt32(seconds * 100); // hundredths of a second
    const QString sign = h < 0 ? m_locale.negativeSign() : QString();
    const qint64 a = std::abs(static_cast<qint64>(h));
    return sign + twoDigits(a / 360000) + QLatin1Char(':') + twoDigits(a % 360000 / 6000) +
           QLatin1Char(':') + twoDigits(a % 6000 / 100) + m_locale.decimalPoint() + twoDigits(a % 100);
}

QString HourMinuteSecondFormatter::stringFromIntegerValue(qint64 seconds) const
{
    return stringFromDoubleValue(static_cast<double>(seconds));
}

QString HourMinuteSecondFormatter::stringFromNumber(const QVariant &number) const
{
    return stringForObjectValue(number);
}

QString HourMinuteSecondFormatter::stringForObjectValue(const QVariant &value) const
{
    return isNumber(value) ? stringFromDoubleValue(value.toDouble()) : QString();
}

QString formatCount(qint64 value)
{
    return IntegerFormatter::shared().stringForIntegerValue(value);
}

} // namespace selfsame
