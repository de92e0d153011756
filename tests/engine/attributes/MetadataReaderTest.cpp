#include "attributes/MetadataReader.h"

#include "attributes/AttributeSchema.h"
#include "support/MediaFiles.h"
#include "support/TempTree.h"

#include <QDateTime>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>

using namespace selfsame;

namespace
{

class MetadataReaderTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (const QString missing = missingMediaTools(); !missing.isEmpty())
            GTEST_SKIP() << missing.toStdString();
    }
    MetadataValues read(const QString &rel, const QSet<QString> &keys = readableMetadataKeys())
    {
        return readMetadata(tree.path(rel), keys);
    }
    TempTree tree;
};

double number(const MetadataValues &values, const char *key)
{
    return values.value(QLatin1String(key)).toDouble();
}
QString text(const MetadataValues &values, const char *key)
{
    return values.value(QLatin1String(key)).toString();
}

TEST_F(MetadataReaderTest, ReadsAudioDurationsStreamsAndTags)
{
    ASSERT_TRUE(makeAudio(tree.path("tone.wav"), 2.5));
    ASSERT_TRUE(makeAudio(tree.path("song.flac"), 3,
                          {"title=Blue Song", "album=Colours", "artist=The Band", "composer=Someone",
                           "genre=Jazz", "date=2019-05-04", "track=3/12"}));
    ASSERT_TRUE(makeAudio(tree.path("voice.m4a"), 1, {"creation_time=2024-03-01T10:00:00Z"}));
    ASSERT_TRUE(makeAudio(tree.path("stream.opus"), 1, {"title=On The Stream"}));

    const MetadataValues wav = read("tone.wav");
    EXPECT_DOUBLE_EQ(number(wav, "kMDItemDurationSeconds"), 2.5);
    EXPECT_EQ(wav.value("kMDItemCodecs").toList(), QVariantList{"pcm_s16le"});
    EXPECT_EQ(number(wav, "kMDItemAudioSampleRate"), 44100);
    EXPECT_EQ(number(wav, "kMDItemAudioChannelCount"), 1);
    EXPECT_NEAR(number(wav, "kMDItemTotalBitRate"), 705600, 2000);
    EXPECT_FALSE(wav.contains("kMDItemPixelWidth"));

    const MetadataValues flac = read("song.flac");
    EXPECT_DOUBLE_EQ(number(flac, "kMDItemDurationSeconds"), 3);
    EXPECT_EQ(text(flac, "kMDItemTitle"), "Blue Song");
    EXPECT_EQ(text(flac, "kMDItemAlbum"), "Colours");
    EXPECT_EQ(flac.value("kMDItemAuthors").toList(), QVariantList{"The Band"});
    EXPECT_EQ(text(flac, "kMDItemComposer"), "Someone");
    EXPECT_EQ(text(flac, "kMDItemMusicalGenre"), "Jazz");
    EXPECT_EQ(number(flac, "kMDItemRecordingYear"), 2019);
    EXPECT_EQ(number(flac, "kMDItemAudioTrackNumber"), 3);
    EXPECT_EQ(flac.value("kMDItemRecordingDate").toDateTime(), QDateTime(QDate(2019, 5, 4), QTime(0, 0)));

    const MetadataValues m4a = read("voice.m4a");
    const QDateTime created(QDate(2024, 3, 1), QTime(10, 0), Qt::UTC);
    EXPECT_EQ(m4a.value("kMDItemContentCreationDate").toDateTime(), created);
    EXPECT_EQ(m4a.value("kMDItemRecordingDate").toDateTime(), created);
    EXPECT_NEAR(number(m4a, "kMDItemDurationSeconds"), 1, 0.05);

    // Opus keeps its tags on the stream, not the container.
    EXPECT_EQ(text(read("stream.opus"), "kMDItemTitle"), "On The Stream");
}

TEST_F(MetadataReaderTest, ReadsVideoSizeCodecsAndLocation)
{
    ASSERT_TRUE(makeVideo(tree.path("clip.mp4"), 2, 320, 240, {"location=-33.8568+151.2153/"}));
    const MetadataValues clip = read("clip.mp4");
    EXPECT_NEAR(number(clip, "kMDItemDurationSeconds"), 2, 0.05);
    EXPECT_EQ(number(clip, "kMDItemPixelWidth"), 320);
    EXPECT_EQ(number(clip, "kMDItemPixelHeight"), 240);
    EXPECT_EQ(clip.value("kMDItemCodecs").toList(), (QVariantList{"mpeg4", "aac"}));
    EXPECT_GT(number(clip, "kMDItemVideoBitRate"), 0);
    EXPECT_GT(number(clip, "kMDItemTotalBitRate"), number(clip, "kMDItemVideoBitRate"));
    EXPECT_DOUBLE_EQ(number(clip, "kMDItemLatitude"), -33.8568);
    EXPECT_DOUBLE_EQ(number(clip, "kMDItemLongitude"), 151.2153);
}

TEST_F(MetadataReaderTest, ReadsPhotoExifXmpAndIptc)
{
    ASSERT_TRUE(makeJpeg(
        tree.path("photo.jpg"),
        {"set Exif.GPSInfo.GPSLatitude 33/1 51/1 2448/100", "set Exif.GPSInfo.GPSLatitudeRef S",
         "set Exif.GPSInfo.GPSLongitude 151/1 12/1 5508/100", "set Exif.GPSInfo.GPSLongitudeRef E",
         "set Exif.GPSInfo.GPSAltitude 12/1", "set Exif.GPSInfo.GPSAltitudeRef 1",
         "set Exif.Photo.DateTimeOriginal 2024:03:01 10:00:30", "set Exif.Photo.OffsetTimeOriginal +11:00",
         "set Exif.Image.Make Acme", "set Exif.Image.Model Cam 1", "set Exif.Photo.FNumber 28/10",
         "set Exif.Photo.ExposureTime 1/250", "set Exif.Photo.ISOSpeedRatings 400", "set Exif.Photo.Flash 25",
         "set Exif.Image.Orientation 6", "set Xmp.dc.title Opera House",
         "set Iptc.Application2.Headline Harbour", "add Iptc.Application2.Keywords sea",
         "add Iptc.Application2.Keywords sails"}));
    const MetadataValues photo = read("photo.jpg");
    EXPECT_NEAR(number(photo, "kMDItemLatitude"), -(33 + 51 / 60.0 + 24.48 / 3600), 1e-9);
    EXPECT_NEAR(number(photo, "kMDItemLongitude"), 151 + 12 / 60.0 + 55.08 / 3600, 1e-9);
    EXPECT_EQ(number(photo, "kMDItemAltitude"), -12);
    EXPECT_EQ(photo.value("kMDItemContentCreationDate").toDateTime().toUTC(),
              QDateTime(QDate(2024, 2, 29), QTime(23, 0, 30), Qt::UTC));
    EXPECT_EQ(text(photo, "kMDItemAcquisitionMake"), "Acme");
    EXPECT_EQ(text(photo, "kMDItemAcquisitionModel"), "Cam 1");
    EXPECT_DOUBLE_EQ(number(photo, "kMDItemFNumber"), 2.8);
    EXPECT_DOUBLE_EQ(number(photo, "kMDItemExposureTimeSeconds"), 0.004);
    EXPECT_EQ(number(photo, "kMDItemISOSpeed"), 400);
    EXPECT_EQ(photo.value("kMDItemFlashOnOff"), QVariant(true));
    EXPECT_EQ(number(photo, "kMDItemPixelWidth"), 64);
    EXPECT_EQ(number(photo, "kMDItemPixelHeight"), 48);
    EXPECT_EQ(number(photo, "kMDItemOrientation"), 1); // 64 × 48 turned a quarter: portrait
    EXPECT_EQ(text(photo, "kMDItemTitle"), "Opera House");
    EXPECT_EQ(text(photo, "kMDItemHeadline"), "Harbour");
    EXPECT_EQ(photo.value("kMDItemKeywords").toList(), (QVariantList{"sea", "sails"}));
    EXPECT_FALSE(photo.contains("kMDItemDurationSeconds"));
}

TEST_F(MetadataReaderTest, CoordinatesBeyondTheirRangeCountAsMissing)
{
    ASSERT_TRUE(
        makeJpeg(tree.path("far.jpg"),
                 {"set Exif.GPSInfo.GPSLatitude 299965352/1 57/1 36/1", "set Exif.GPSInfo.GPSLatitudeRef S",
                  "set Exif.GPSInfo.GPSLongitude 10/1 0/1 0/1", "set Exif.GPSInfo.GPSLongitudeRef E"}));
    ASSERT_TRUE(
        makeJpeg(tree.path("past.jpg"),
                 {"set Exif.GPSInfo.GPSLatitude 91/1 1/1 12/1", "set Exif.GPSInfo.GPSLatitudeRef S",
                  "set Exif.GPSInfo.GPSLongitude 181/1 0/1 0/1", "set Exif.GPSInfo.GPSLongitudeRef W"}));
    const MetadataValues far = read("far.jpg");
    EXPECT_FALSE(far.contains("kMDItemLatitude")) << number(far, "kMDItemLatitude");
    EXPECT_EQ(number(far, "kMDItemLongitude"), 10) << "the other coordinate is kept";
    const MetadataValues past = read("past.jpg");
    EXPECT_FALSE(past.contains("kMDItemLatitude")) << number(past, "kMDItemLatitude");
    EXPECT_FALSE(past.contains("kMDItemLongitude")) << number(past, "kMDItemLongitude");
}

TEST_F(MetadataReaderTest, ReadsFileSystemValuesAndOnlyTheKeysAsked)
{
    tree.file("notes.txt", "twelve bytes");
    const MetadataValues all = read("notes.txt");
    EXPECT_EQ(number(all, "kMDItemFSSize"), 12);
    EXPECT_EQ(text(all, "kMDItemFSName"), "notes.txt");
    EXPECT_EQ(text(all, "kMDItemDisplayName"), "notes.txt");
    EXPECT_EQ(text(all, "kMDItemContentType"), "text/plain");
    EXPECT_TRUE(all.value("kMDItemContentTypeTree").toList().contains("application/octet-stream"));
    EXPECT_FALSE(text(all, "kMDItemKind").isEmpty());
    struct stat st;
    ASSERT_EQ(stat(tree.stdPath("notes.txt").c_str(), &st), 0);
    EXPECT_EQ(all.value("kMDItemFSContentChangeDate").toDateTime().toSecsSinceEpoch(), st.st_mtime);

    const MetadataValues some = read("notes.txt", {"kMDItemFSSize", "kMDItemTitle"});
    EXPECT_EQ(some.keys(), QList<QString>{"kMDItemFSSize"});
}

TEST_F(MetadataReaderTest, ReadsTagsAndDownloadOriginsFromExtendedAttributes)
{
    const std::string path = tree.file("download.bin", "x").toStdString();
    const char tags[] = "Red,holiday";
    const char origin[] = "https://example.org/download.bin";
    if (setxattr(path.c_str(), "user.xdg.tags", tags, sizeof(tags) - 1, 0) != 0)
        GTEST_SKIP() << "the file system of the temporary folder refuses user extended attributes";
    ASSERT_EQ(setxattr(path.c_str(), "user.xdg.origin.url", origin, sizeof(origin) - 1, 0), 0);
    const MetadataValues values = read("download.bin");
    EXPECT_EQ(values.value("kMDItemUserTags").toList(), (QVariantList{"Red", "holiday"}));
    EXPECT_EQ(values.value("kMDItemWhereFroms").toList(), QVariantList{QString::fromLatin1(origin)});
}

TEST_F(MetadataReaderTest, DamagedAndUnreadableFilesHaveNoMediaValues)
{
    ASSERT_TRUE(makeVideo(tree.path("whole.mp4"), 2, 160, 120));
    QFile whole(tree.path("whole.mp4"));
    ASSERT_TRUE(whole.open(QIODevice::ReadOnly));
    tree.file("truncated.mp4", whole.read(whole.size() / 3));
    tree.file("garbage.jpg", patternBytes(5000, 7));
    tree.file("garbage.mp3", patternBytes(5000, 8));
    tree.file("empty.wav", {});
    ASSERT_EQ(mkfifo(tree.stdPath("pipe.mp3").c_str(), 0600), 0); // would block a reader that opened it

    for (const char *name : {"truncated.mp4", "garbage.jpg", "garbage.mp3", "empty.wav", "pipe.mp3"}) {
        const MetadataValues values = read(QLatin1String(name));
        EXPECT_FALSE(values.contains("kMDItemDurationSeconds")) << name;
        EXPECT_FALSE(values.contains("kMDItemPixelWidth")) << name;
    }
    EXPECT_TRUE(read("missing.mp4").isEmpty());
}

TEST(AttributeSchema, DescribesEveryKeyTheReaderProduces)
{
    const AttributeRecords &records = AttributeSchema::shipped().attributes();
    for (const QString &key : readableMetadataKeys()) {
        ASSERT_TRUE(records.contains(key)) << key.toStdString();
        EXPECT_FALSE(records[key].name.isEmpty()) << key.toStdString();
        EXPECT_FALSE(records[key].description.isEmpty()) << key.toStdString();
        EXPECT_NE(records[key].type, AnyType) << key.toStdString();
    }
}

} // namespace
