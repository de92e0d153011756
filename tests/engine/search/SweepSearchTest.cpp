#include "search/SweepSearch.h"

#include "search/FilenameSortKey.h"
#include "search/NamePatterns.h"
#include "support/MediaFiles.h"
#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <QDateTime>
#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

// The runs of a descending list of numbers swept with a tolerance, as "a-b" position ranges.
std::string numberRuns(const std::vector<double> &values, double tolerance)
{
    QStringList described;
    for (const SweepRun &run : sweep(
             values.size(), [&](std::size_t a) { return values[a] > 0; },
             [&](std::size_t a, std::size_t k) { return std::fabs(values[k] - values[a]) <= tolerance; }))
        described.append(QStringLiteral("%1-%2").arg(run.begin).arg(run.end - 1));
    return described.join(u' ').toStdString();
}

TEST(Sweep, MatchesAgainstTheAnchorAndSkipsUnusableAnchors)
{
    EXPECT_EQ(numberRuns({100.0, 99.5, 99.0, 98.4}, 1.0), "0-2");
    EXPECT_EQ(numberRuns({100.0, 99.5, 99.0, 98.4, 98.0}, 1.0), "0-2 3-4");
    EXPECT_EQ(numberRuns({5.0, 5.0, 0.0, 0.0, 0.0}, 0.0), "0-1");
    EXPECT_EQ(numberRuns({0.0, 0.0}, 10.0), "");
}

TEST(Sweep, AttributeValuesMatchWithinToleranceByKind)
{
    const QDateTime ten(QDate(2024, 3, 1), QTime(10, 0), Qt::UTC);
    EXPECT_TRUE(attributeValueMatches(ten.addSecs(30), ten, 60));
    EXPECT_FALSE(attributeValueMatches(ten.addSecs(30), ten.addSecs(-40), 60));
    EXPECT_TRUE(attributeValueMatches(48.85, 48.84, 0.01 + 1e-12));
    EXPECT_FALSE(attributeValueMatches(48.85, 48.83, 0.01));
    EXPECT_TRUE(attributeValueMatches(QString("Song"), QString("Song"), 5));
    EXPECT_FALSE(attributeValueMatches(QString("Song"), QString("song"), 5));
    EXPECT_FALSE(attributeValueMatches(3.0, QString("3"), 5));
    EXPECT_FALSE(attributeValueMatches(QString(), QString(), 0));

    // Kinds sort apart, so a descending sweep never meets a value of another kind mid-run.
    EXPECT_NE(compareAttributeValues(3.0, ten), 0);
    EXPECT_EQ(compareAttributeValues(true, 1.0), 0);
    EXPECT_GT(compareAttributeValues(QString("b"), QString("a")), 0);
}

TEST(FilenameSortKey, RemovesTheLongestSuffixAndTheExtensionWhenAsked)
{
    const QList<QRegularExpression> suffixes = compileCommonSuffixes({});
    EXPECT_EQ(removePathExtension(false, suffixes, "report copy.txt"), "report.txt");
    EXPECT_EQ(removePathExtension(false, suffixes, "report copy 12.txt"), "report.txt");
    EXPECT_EQ(removePathExtension(true, suffixes, "photo (3).jpeg"), "photo");
    EXPECT_EQ(removePathExtension(false, suffixes, "take-2"), "take");
    EXPECT_EQ(removePathExtension(false, suffixes, "version 100.txt"), "version 100.txt"); // # is 1 to 99
    EXPECT_EQ(removePathExtension(true, {}, ".profile"), ".profile");

    const FilenameSortKey plain = getFilenameSortKey(false, std::nullopt);
    EXPECT_EQ(plain.keyPath, QString(kSortByNameKeyPath));
    EXPECT_EQ(plain.keyValue("/x/Photo.JPG"), "photo.jpg");
    const FilenameSortKey bare = getFilenameSortKey(true, std::nullopt);
    EXPECT_EQ(bare.keyValue("/x/Photo.JPG"), "photo");
    const FilenameSortKey stripped = getFilenameSortKey(true, suffixes);
    EXPECT_EQ(stripped.compare(stripped.keyValue("/x/Report copy.txt"), stripped.keyValue("/y/report.pdf")),
              0);
}

TEST(SweepSearch, NameModeGroupsByComparableName)
{
    TempTree tree;
    tree.build({"Report copy.txt", "report.TXT", "sub/report.pdf", "a.JPG", "sub/A.png", "lonely.txt"});
    SearchRequest request;
    request.detectionMode = DetectionMode::FileName;
    request.filenameIgnoreCommonSuffixRegexes = compileCommonSuffixes({});
    EXPECT_EQ(searchGroups(tree.path(), request), "Report copy.txt report.TXT");
    request.filenameIgnoreExtension = true;
    EXPECT_EQ(searchGroups(tree.path(), request),
              "a.JPG sub/A.png | Report copy.txt report.TXT sub/report.pdf");
    request.filenameIgnoreCommonSuffixRegexes.reset();
    EXPECT_EQ(searchGroups(tree.path(), request), "a.JPG sub/A.png | report.TXT sub/report.pdf");
}

class MediaSearch : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (const QString missing = missingMediaTools(); !missing.isEmpty())
            GTEST_SKIP() << missing.toStdString();
    }
    QList<ResultItem> search(SearchRequest request)
    {
        request.searchInFolderURLs = {tree.path()};
        return harness.run(storedRequest(request), tree.path());
    }
    TempTree tree;
    SearchHarness harness;
};

TEST_F(MediaSearch, DurationModeGroupsWithinToleranceAndFillsMediaValues)
{
    ASSERT_TRUE(makeAudio(tree.path("long.wav"), 10.0));
    ASSERT_TRUE(makeAudio(tree.folder("a") + "/long.flac", 9.5, {"title=Long"}));
    ASSERT_TRUE(makeAudio(tree.path("longish.wav"), 9.0));
    ASSERT_TRUE(makeAudio(tree.path("shorter.wav"), 8.4));
    ASSERT_TRUE(makeVideo(tree.path("clip.mp4"), 2, 96, 64));
    ASSERT_TRUE(makeVideo(tree.path("clip-small.mp4"), 2, 48, 32));
    tree.file("notes.txt", "not media");

    SearchRequest request;
    request.detectionMode = DetectionMode::Duration;
    request.durationTolerance = 1.0;
    const QList<ResultItem> items = search(request);
    EXPECT_EQ(describeGroups(items, tree.path()),
              "a/long.flac long.wav longish.wav | clip-small.mp4 clip.mp4");
    EXPECT_TRUE(harness.context.statistics.someDurationFound);
    ASSERT_EQ(items.size(), 5);
    EXPECT_EQ(items[0].dupes, 3);
    EXPECT_DOUBLE_EQ(items[0].duration(), 10.0); // sweep order: longest first
    const auto clip =
        std::find_if(items.begin(), items.end(), [](const ResultItem &i) { return i.name() == "clip.mp4"; });
    ASSERT_NE(clip, items.end());
    EXPECT_EQ(clip->pixelSize(), QStringLiteral("96 × 64"));
    EXPECT_EQ(clip->codecs(), "mpeg4, aac");
    EXPECT_GT(clip->bitrate(), 0);

    request.durationTolerance = 0;
    EXPECT_EQ(describeGroups(search(request), tree.path()), "clip-small.mp4 clip.mp4");
}

TEST_F(MediaSearch, AttributeModeComparesPlacesInArcSecondsDatesAndExactTitles)
{
    const auto photo = [&](const char *name, const char *latitudeSeconds, const char *taken,
                           const char *title) {
        return makeJpeg(
            tree.path(QLatin1String(name)),
            {QStringLiteral("set Exif.GPSInfo.GPSLatitude 48/1 51/1 %1/100")
                 .arg(QLatin1String(latitudeSeconds)),
             "set Exif.GPSInfo.GPSLatitudeRef N", "set Exif.GPSInfo.GPSLongitude 2/1 17/1 40/1",
             "set Exif.GPSInfo.GPSLongitudeRef E",
             QStringLiteral("set Exif.Photo.DateTimeOriginal 2024:03:01 %1").arg(QLatin1String(taken)),
             "set Exif.Photo.OffsetTimeOriginal +00:00",
             QStringLiteral("set Xmp.dc.title %1").arg(QLatin1String(title))});
    };
    ASSERT_TRUE(photo("a.jpg", "3000", "10:00:30", "Tower"));
    ASSERT_TRUE(photo("b.jpg", "2000", "10:00:00", "tower"));
    ASSERT_TRUE(photo("c.jpg", "1000", "09:59:20", "Tower"));
    ASSERT_TRUE(makeJpeg(tree.path("plain.jpg")));

    SearchRequest request;
    request.detectionMode = DetectionMode::Attribute;
    request.spotlightAttribute = "kMDItemLatitude";
    request.spotlightTolerance = 15; // seconds of arc: a is 10″ north of b, 20″ of c
    EXPECT_EQ(describeGroups(search(request), tree.path()), "a.jpg b.jpg");
    EXPECT_TRUE(harness.context.statistics.someSpotlightValueFound);
    request.spotlightTolerance = 20.5;
    const QList<ResultItem> all = search(request);
    EXPECT_EQ(describeGroups(all, tree.path()), "a.jpg b.jpg c.jpg");
    ASSERT_EQ(all.size(), 3);
    EXPECT_NEAR(all[0].latitude(), 48 + 51 / 60.0 + 30 / 3600.0, 1e-9);
    EXPECT_NEAR(all[0].longitude(), 2 + 17 / 60.0 + 40 / 3600.0, 1e-9);

    request.spotlightAttribute = "kMDItemContentCreationDate";
    request.spotlightTolerance = 60;
    EXPECT_EQ(describeGroups(search(request), tree.path()), "a.jpg b.jpg");

    request.spotlightAttribute = "kMDItemTitle";
    request.spotlightTolerance = 0;
    EXPECT_EQ(describeGroups(search(request), tree.path()), "a.jpg c.jpg");

    request.spotlightAttribute = "kMDItemAlbum";
    EXPECT_TRUE(search(request).isEmpty());
    EXPECT_FALSE(harness.context.statistics.someSpotlightValueFound);
}

} // namespace
