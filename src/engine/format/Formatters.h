#pragma once

#include <QLocale>
#include <QString>
#include <QVariant>

namespace selfsame {

// Whole numbers with grouped thousands ("1,234,567"), separators from the locale.
class IntegerFormatter
{
public:
    explicit IntegerFormatter(const QLocale &locale = QLocale());

    // Shared instance on the default locale, created on first use.
    static const IntegerFormatter &shared();

    QString stringForIntValue(int value) const;
    QString stringForIntegerValue(qint64 value) const;

private:
    QLocale m_locale;
};

// Angles in degrees as 48° 51′ 23.76″, to the hundredth of an arcsecond (truncated).
// With both cardinal letters the sign is shown by the letter instead of a minus sign.
// A count for messages and status lines, grouped the locale's way ("#,##0").
QString formatCount(qint64 value);

class DegreeMinuteSecondFormatter
{
public:
    // Empty cardinals mean none.
    explicit DegreeMinuteSecondFormatter(const QLocale &locale = QLocale(),
                                         const QString &positiveCardinal = QString(),
                                         const QString &negativeCardinal = QString());

    // Shared instances on the default locale: plain, N/S and E/W.
    static const DegreeMinuteSecondFormatter &shared();
    static const DegreeMinuteSecondFormatter &latitude();
    static const DegreeMinuteSecondFormatter &longitude();

    QString stringFromDoubleValue(double degrees) const;
    QString stringFromIntegerValue(qint64 degrees) const;
    QString stringFromNumber(const QVariant &number) const;
    // A null string for anything that is not a number.
    QString stringForObjectValue(const QVariant &value) const;

private:
    QLocale m_locale;
    QString m_positiveCardinal; // including the non-breaking space before the letter
    QString m_negativeCardinal;
};

// Durations in seconds as 01:02:03.45, hours not limited to two digits (truncated).
class HourMinuteSecondFormatter
{
public:
    explicit HourMinuteSecondFormatter(const QLocale &locale = QLocale());

    static const HourMinuteSecondFormatter &shared();

    QString stringFromDoubleValue(double seconds) const;
    QString stringFromIntegerValue(qint64 seconds) const;
    QString stringFromNumber(const QVariant &number) const;
    // A null string for anything that is not a number.
    QString stringForObjectValue(const QVariant &value) const;

private:
    QLocale m_locale;
};

} // namespace selfsame
