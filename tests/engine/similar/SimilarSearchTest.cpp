#include "search/DigestCache.h"
#include "support/MediaFiles.h"
#include "support/SearchHarness.h"
#include "support/SimilarMedia.h"
#include "support/TempTree.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>
#include <map>
#include <set>

using namespace selfsame;

namespace
{

// How well the groups match the test set: of the files made from one original, the share
// that landed in one group with the original's most common group (recall), and the number of
// groups holding files of different originals (must be none).
struct Scores {
    double recall = 0;
    int mixedGroups = 0;
};

Scores score(const QList<ResultItem> &items, const QStringList &made)
{
    std::map<int, std::set<int>> originalsOfGroup;
    std::map<int, std::map<int, int>> groupCounts; // original → group → files
    for (const ResultItem &item : items) {
        originalsOfGroup[item.group].insert(originalOf(item.path));
        ++groupCounts[originalOf(item.path)][item.group];
    }
    Scores scores;
    for (const auto &[group, originals] : originalsOfGroup)
        scores.mixedGroups += originals.size() > 1;
    int together = 0;
    for (const auto &[original, counts] : groupCounts) {
        int most = 0;
        for (const auto &[group, count] : counts)
            most = std::max(most, count);
        together += most;
    }
    scores.recall = double(together) / double(made.size());
    return scores;
}

class SimilarSearchTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (const QString missing = missingSimilarMediaTools(); !missing.isEmpty())
            GTEST_SKIP() << missing.toStdString();
    }
    TempTree tree;
};

TEST_F(SimilarSearchTest, PicturesGroupWithTheirVariantsOnlyAndComeFromTheCacheAgain)
{
    const QStringList made = makePictureSet(tree.path(), 4);
    ASSERT_FALSE(made.isEmpty());
    // Files that are no pictures at all, or pictures that must not be decoded.
    tree.build({"broken.jpg:not a picture", "notes.txt:text"});
    QFile truncated(tree.path("truncated.png"));
    ASSERT_TRUE(QFile::copy(made[3], truncated.fileName()));
    ASSERT_TRUE(truncated.resize(200));
    // A JPEG header claiming 65,000 × 65,000 pixels: refused before any decoding.
    QFile original(made[0]);
    ASSERT_TRUE(original.open(QIODevice::ReadOnly));
    QByteArray bomb = original.readAll();
    const qsizetype frame = bomb.indexOf("\xff\xc0");
    ASSERT_GT(frame, 0);
    bomb[frame + 5] = char(0xfd), bomb[frame + 6] = char(0xe8), bomb[frame + 7] = char(0xfd),
                 bomb[frame + 8] = char(0xe8);
    QFile bombFile(tree.path("bomb.jpg"));
    ASSERT_TRUE(bombFile.open(QIODevice::WriteOnly));
    bombFile.write(bomb);
    bombFile.close();

    TempTree cacheFolder;
    DigestCache cache(cacheFolder.path(QStringLiteral("digests.sqlite")), {.settleNs = 0});
    SearchRequest request;
    request.detectionMode = DetectionMode::SimilarImages;
    SearchHarness first;
    first.context.digestCache = &cache;
    const QList<ResultItem> items = first.run(request, tree.path());
    const Scores scores = score(items, made);
    EXPECT_EQ(scores.mixedGroups, 0);
    EXPECT_GE(scores.recall, 0.9);
    EXPECT_EQ(first.context.statistics.unreadableFiles, 3);
    QStringList unreadable;
    for (const QString &path : first.context.statistics.unreadableFilePaths)
        unreadable << QFileInfo(path).fileName();
    unreadable.sort();
    EXPECT_EQ(unreadable, (QStringList{"bomb.jpg", "broken.jpg", "truncated.png"}));
    for (const ResultItem &item : items) {
        EXPECT_FALSE(item.pixelSize().isEmpty()) << item.path.toStdString();
        EXPECT_GE(item.similarity(), 90) << item.path.toStdString();
    }

    // The anchor is the largest picture, and the grey copies go when colour counts.
    request.distinguishGreyscale = true;
    SearchHarness second;
    second.context.digestCache = &cache;
    const QList<ResultItem> again = second.run(request, tree.path());
    EXPECT_EQ(second.context.statistics.filesFromCache, qint64(made.size()));
    std::map<int, QString> anchors;
    for (const ResultItem &item : again) {
        anchors.try_emplace(item.group, item.path);
        if (item.path.endsWith(QLatin1String("grey.jpg"))) {
            ADD_FAILURE() << "a grey copy has no grey company: " << item.path.toStdString();
        }
    }
    for (const auto &[group, path] : anchors)
        EXPECT_FALSE(path.contains(QLatin1String("half"))) << path.toStdString();
    EXPECT_EQ(score(again, made).mixedGroups, 0);
}

TEST_F(SimilarSearchTest, AMatchFoundThroughEmbeddedThumbnailsHoldsOnlyIfThePicturesThemselvesMatch)
{
    // Two different pictures, the second carrying the first one's thumbnail as if an editor had
    // left it behind, and a copy of the first with its own thumbnail. By their thumbnails all
    // three are one picture: the second must leave once the pictures themselves are compared.
    auto file = [&](const char *name) { return tree.path(QLatin1String(name)); };
    for (const auto &[seed, name] : {std::pair{"1", "first.jpg"}, std::pair{"2", "second.jpg"}})
        ASSERT_TRUE(runTool("convert", {"-seed", QLatin1String(seed), "-size", "640x480", "plasma:", "-blur",
                                        "0x2", file(name)}));
    ASSERT_TRUE(runTool("convert", {file("first.jpg"), "-resize", "160x120", file("first-thumb.jpg")}));
    ASSERT_TRUE(QFile::copy(file("first-thumb.jpg"), file("second-thumb.jpg")));
    ASSERT_TRUE(runTool("exiv2", {"-it", file("first.jpg"), file("second.jpg")}));
    ASSERT_TRUE(QFile::remove(file("first-thumb.jpg")) && QFile::remove(file("second-thumb.jpg")));
    ASSERT_TRUE(runTool("convert", {file("first.jpg"), "-quality", "50", file("copy.jpg")}));

    SearchRequest request;
    request.detectionMode = DetectionMode::SimilarImages;
    SearchHarness harness;
    const QList<ResultItem> items = harness.run(request, tree.path());
    QStringList grouped;
    for (const ResultItem &item : items)
        grouped << QFileInfo(item.path).fileName();
    grouped.sort();
    EXPECT_EQ(grouped, (QStringList{"copy.jpg", "first.jpg"}));
}

TEST_F(SimilarSearchTest, RecordingsGroupAcrossFormatsButPiecesOfOneLengthStayApart)
{
    const QStringList made = makeMelodySet(tree.path(), 3, 20);
    ASSERT_FALSE(made.isEmpty());
    tree.build({"silence.mp3:not a recording"});
    SearchRequest request;
    request.detectionMode = DetectionMode::SimilarAudio;
    SearchHarness harness;
    const QList<ResultItem> items = harness.run(request, tree.path());
    const Scores scores = score(items, made);
    EXPECT_EQ(scores.mixedGroups, 0);
    EXPECT_DOUBLE_EQ(scores.recall, 1.0);
    EXPECT_EQ(items.size(), made.size());
    EXPECT_EQ(harness.context.statistics.unreadableFiles, 1);
    for (const ResultItem &item : items) {
        EXPECT_NEAR(item.duration(), 20.0, 0.1) << item.path.toStdString();
        EXPECT_FALSE(item.codecs().isEmpty());
    }
}

} // namespace
