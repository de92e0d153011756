#include "format/ByteSize.h"

#include <QLocale>

#include <gtest/gtest.h>

#include <string>

using namespace selfsame;

namespace {

struct ParseCase {
    const char *text;
    qint64 bytes;
};

TEST(ByteSize, ParsesFirstNumberAndUnit)
{
    const ParseCase cases[] = {
        {"500", 500},
        {"12mb", 12'000'000},
        {"12 MB", 12'000'000},
        {"12 Mb", 12'000'000},
        {"12 mib", 12'582'912},
        {"4KiB", 4096},
        {"2 GiB", 2LL << 30},
        {"5 TB", 5'000'000'000'000},
        {"1 tib", 1LL << 40},
        {"12 M", 12},      // unknown unit: bytes
        {"5 bytes", 5},
        {"1.5 GB", 1},     // "." ends the number and leaves the unit empty
        {"abc 7 kB", 7000},
        {"7 kB 9 MB", 7000},
        {"", 0},
        {"abc", 0},
    };
    for (const ParseCase &c : cases)
        EXPECT_EQ(stringToBytes(QString::fromUtf8(c.text)), c.bytes) << c.text;
}

struct FormatCase {
    qint64 bytes;
    const char *text;
};

TEST(ByteSize, FormatsInLargestExactUnit)
{
    const FormatCase cases[] = {
        {1, "1 B"},
        {1000, "1 kB"},
        {1024, "1 KiB"},
        {1500, "1500 B"},
        {2'048'000, "2000 KiB"}, // KiB is tried before kB; neither MiB nor MB divides it
        {3LL << 30, "3 GiB"},
        {5'000'000'000'000, "5 TB"},
        {1LL << 40, "1 TiB"},
        {0, "0 B"},
        {-1024, "0 B"},
        {(1LL << 31) + 1, "-2147483647 B"}, // the count is a 32-bit integer
    };
    for (const FormatCase &c : cases)
        EXPECT_EQ(bytesToString(c.bytes).toStdString(), c.text) << c.bytes;
}

TEST(ByteSize, FailedFormatLeavesOutputAlone)
{
    QString out = QStringLiteral("unchanged");
    EXPECT_FALSE(formatBytes(1500, &out, 1000, QStringLiteral("kB")));
    EXPECT_FALSE(formatBytes(999, &out, 1000, QStringLiteral("kB")));
    EXPECT_EQ(out, QStringLiteral("unchanged"));
}

struct FieldCase {
    qint64 min, max;
    const char *minText, *maxText;
};

TEST(ByteSize, MaximumFieldIsEmptyOnlyForZeroUnderPositiveMinimum)
{
    const FieldCase cases[] = {
        {1, 0, "1 B", ""},
        {1024, 0, "1 KiB", ""},
        {0, 0, "0 B", "0 B"},
        {-5, 0, "0 B", "0 B"},
        {1, 1'000'000, "1 B", "1 MB"},
        {10, -1, "10 B", "0 B"},
    };
    for (const FieldCase &c : cases) {
        const SizeFieldTexts texts = sizeFieldTexts(c.min, c.max);
        EXPECT_EQ(texts.min.toStdString(), c.minText) << c.min << " " << c.max;
        EXPECT_EQ(texts.max.toStdString(), c.maxText) << c.min << " " << c.max;
    }
}

TEST(ByteSize, ByteCountUsesDecimalUnits)
{
    const QLocale saved;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    const std::string megabytes = formatByteCount(12'345'678).toStdString();
    const std::string kilobytes = formatByteCount(1500).toStdString();
    QLocale::setDefault(saved);
    EXPECT_EQ(megabytes, "12.3 MB");
    EXPECT_EQ(kilobytes, "1.5 kB");
}

} // namespace
