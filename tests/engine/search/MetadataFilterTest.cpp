#include "search/MetadataFilter.h"

#include <QDateTime>
#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

QStringList g_logged;
void recordMessage(QtMsgType, const QMessageLogContext &, const QString &message)
{
    g_logged.append(message);
}

TEST(MetadataFilter, ComparedValueIsTypeCheckedAndLoggedWhenUnexpected)
{
    const QtMessageHandler previous = qInstallMessageHandler(recordMessage);
    g_logged.clear();
    const MetadataValues values = {{"kMDItemTitle", QString("Song")},
                                   {"kMDItemAlbum", QString()},
                                   {"kMDItemKeywords", QVariantList{QString("sea"), QString("sails")}},
                                   {"kMDItemNoKeywords", QVariantList{}},
                                   {"kMDItemFlashOnOff", true},
                                   {"kMDItemFSSize", 12.0}};
    EXPECT_EQ(MetadataFilter::comparableValue(values, "kMDItemTitle", StringType, "/f"), QVariant("Song"));
    EXPECT_EQ(MetadataFilter::comparableValue(values, "kMDItemTitle", AnyType, "/f"), QVariant("Song"));
    EXPECT_EQ(MetadataFilter::comparableValue(values, "kMDItemKeywords", StringType, "/f"), QVariant("sea"));
    EXPECT_EQ(MetadataFilter::comparableValue(values, "kMDItemFlashOnOff", BooleanType, "/f"),
              QVariant(true));
    EXPECT_TRUE(g_logged.isEmpty());

    EXPECT_FALSE(MetadataFilter::comparableValue(values, "kMDItemMissing", StringType, "/f").isValid());
    EXPECT_FALSE(MetadataFilter::comparableValue(values, "kMDItemNoKeywords", StringType, "/f").isValid());
    EXPECT_TRUE(g_logged.isEmpty()); // absent values are no surprise

    EXPECT_FALSE(MetadataFilter::comparableValue(values, "kMDItemAlbum", StringType, "/f").isValid());
    EXPECT_FALSE(MetadataFilter::comparableValue(values, "kMDItemFSSize", DateType, "/g").isValid());
    EXPECT_EQ(g_logged, (QStringList{"/f: unexpected type for attribute kMDItemAlbum (7 instead of 7)",
                                     "/g: unexpected type for attribute kMDItemFSSize (22 instead of 42)"}));
    qInstallMessageHandler(previous);
}

TEST(MetadataFilter, ItemValuesJoinCodecsOnceAndFormatThePixelSize)
{
    const ItemMetadata none = MetadataFilter::itemMetadata({});
    EXPECT_EQ(none.duration, 0.0);
    EXPECT_TRUE(std::isnan(none.latitude));
    EXPECT_TRUE(none.pixelSize.isEmpty());
    const ItemMetadata video = MetadataFilter::itemMetadata(
        {{"kMDItemDurationSeconds", 2.5},
         {"kMDItemPixelWidth", 1920.0},
         {"kMDItemPixelHeight", 1080.0},
         {"kMDItemCodecs", QVariantList{QString("h264"), QString("aac"), QString("h264")}},
         {"kMDItemTotalBitRate", 8000.0},
         {"kMDItemLatitude", 1.5}});
    EXPECT_EQ(video.duration, 2.5);
    EXPECT_EQ(video.pixelSize, QStringLiteral("1920 × 1080"));
    EXPECT_EQ(video.codecs, "h264, aac");
    EXPECT_EQ(video.bitrate, 8000.0);
    EXPECT_EQ(video.latitude, 1.5);
    EXPECT_TRUE(std::isnan(video.longitude));
}

} // namespace
