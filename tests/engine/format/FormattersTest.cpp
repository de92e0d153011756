#include "format/Formatters.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace {

const QLocale kC = QLocale::c();
const QLocale kGerman(QLocale::German, QLocale::Germany);

TEST(IntegerFormatter, GroupsThousandsWithLocaleSeparator)
{
    const IntegerFormatter c(kC);
    EXPECT_EQ(c.stringForIntegerValue(1'234'567).toStdString(), "1,234,567");
    EXPECT_EQ(c.stringForIntegerValue(9'000'000'000).toStdString(), "9,000,000,000");
    EXPECT_EQ(c.stringForIntValue(-1234).toStdString(), "-1,234");
    EXPECT_EQ(c.stringForIntValue(999).toStdString(), "999");
    EXPECT_EQ(IntegerFormatter(kGerman).stringForIntValue(1'234'567).toStdString(), "1.234.567");
}

struct AngleCase {
    double degrees;
    const char *plain, *latitude, *longitude;
};

TEST(DegreeMinuteSecondFormatter, FormatsTruncatedHundredthsOfArcseconds)
{
    const DegreeMinuteSecondFormatter plain(kC);
    const DegreeMinuteSecondFormatter latitude(kC, QStringLiteral("N"), QStringLiteral("S"));
    const DegreeMinuteSecondFormatter longitude(kC, QStringLiteral("E"), QStringLiteral("W"));
    const AngleCase cases[] = {
        {48.8566, "48°\u00A051′\u00A023.76″", "48°\u00A051′\u00A023.76″\u00A0N",
         "48°\u00A051′\u00A023.76″\u00A0E"},
        {-33.5, "-33°\u00A030′\u00A000.00″", "33°\u00A030′\u00A000.00″\u00A0S",
         "33°\u00A030′\u00A000.00″\u00A0W"},
        // Less than a hundredth of an arcsecond truncates to zero, which is not negative.
        {-0.000001, "0°\u00A000′\u00A000.00″", "0°\u00A000′\u00A000.00″\u00A0N",
         "0°\u00A000′\u00A000.00″\u00A0E"},
        {-179.99999, "-179°\u00A059′\u00A059.96″", "179°\u00A059′\u00A059.96″\u00A0S",
         "179°\u00A059′\u00A059.96″\u00A0W"},
    };
    for (const AngleCase &c : cases) {
        EXPECT_EQ(plain.stringFromDoubleValue(c.degrees).toStdString(), c.plain) << c.degrees;
        EXPECT_EQ(latitude.stringFromDoubleValue(c.degrees).toStdString(), c.latitude) << c.degrees;
        EXPECT_EQ(longitude.stringFromDoubleValue(c.degrees).toStdString(), c.longitude) << c.degrees;
    }
}

TEST(DegreeMinuteSecondFormatter, OnlyBothCardinalsReplaceMinusSign)
{
    const DegreeMinuteSecondFormatter negativeOnly(kC, QString(), QStringLiteral("S"));
    EXPECT_EQ(negativeOnly.stringFromDoubleValue(-1.0).toStdString(), "-1°\u00A000′\u00A000.00″");
    EXPECT_EQ(negativeOnly.stringFromDoubleValue(1.0).toStdString(), "1°\u00A000′\u00A000.00″");
}

TEST(DegreeMinuteSecondFormatter, UsesLocaleSeparatorAndMinusSign)
{
    EXPECT_EQ(DegreeMinuteSecondFormatter(kGerman, QStringLiteral("N"), QStringLiteral("S"))
                  .stringFromDoubleValue(48.8566)
                  .toStdString(),
              "48°\u00A051′\u00A023,76″\u00A0N");

    const QLocale swedish(QLocale::Swedish, QLocale::Sweden);
    ASSERT_NE(swedish.negativeSign(), QStringLiteral("-"));
    EXPECT_EQ(DegreeMinuteSecondFormatter(swedish).stringFromDoubleValue(-2.5),
              swedish.negativeSign() + QString::fromUtf8("2°\u00A030′\u00A000,00″"));
}

TEST(DegreeMinuteSecondFormatter, ObjectValueMustBeNumber)
{
    const DegreeMinuteSecondFormatter plain(kC);
    EXPECT_EQ(plain.stringForObjectValue(QVariant(2)).toStdString(), "2°\u00A000′\u00A000.00″");
    EXPECT_EQ(plain.stringFromNumber(QVariant(0.5)).toStdString(), "0°\u00A030′\u00A000.00″");
    EXPECT_TRUE(plain.stringForObjectValue(QVariant(QStringLiteral("2"))).isNull());
    EXPECT_TRUE(plain.stringForObjectValue(QVariant()).isNull());
}

struct DurationCase {
    double seconds;
    const char *text;
};

TEST(HourMinuteSecondFormatter, FormatsTruncatedHundredthsOfSeconds)
{
    const HourMinuteSecondFormatter formatter(kC);
    const DurationCase cases[] = {
        {1.999, "00:00:01.99"},
        {-0.004, "00:00:00.00"},
        {-61.5, "-00:01:01.50"},
        {3723.25, "01:02:03.25"},
        {360'000, "100:00:00.00"},
        // Beyond 2^31 - 1 hundredths the count wraps to a negative one.
        {21'474'837, "-5965:13:55.96"},
    };
    for (const DurationCase &c : cases)
        EXPECT_EQ(formatter.stringFromDoubleValue(c.seconds).toStdString(), c.text) << c.seconds;

    EXPECT_EQ(HourMinuteSecondFormatter(kGerman).stringFromIntegerValue(3661).toStdString(), "01:01:01,00");
    EXPECT_EQ(formatter.stringFromNumber(QVariant(qint64(59))).toStdString(), "00:00:59.00");
    EXPECT_TRUE(formatter.stringForObjectValue(QVariant(QStringLiteral("59"))).isNull());
}

} // namespace
