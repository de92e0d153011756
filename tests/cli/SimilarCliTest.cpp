#include "CliProcess.h"
#include "support/SimilarMedia.h"
#include "support/TempTree.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <gtest/gtest.h>

namespace
{

TEST(SimilarCli, SimilarPicturesComeAnchoredWithTheirSimilarityAndTheirUnreadableFilesNamed)
{
    if (const QString missing = missingSimilarMediaTools(); !missing.isEmpty())
        GTEST_SKIP() << missing.toStdString();
    TempTree tree;
    const QStringList made = makePictureSet(tree.path(), 2);
    ASSERT_FALSE(made.isEmpty());
    tree.build({"damaged.jpg:\xff\xd8\xff not really"});
    const CliRun run = runCli({"--no-cache", "--mode", "similar-images", "--format", "json", tree.path()});
    ASSERT_EQ(run.exitCode, 0) << run.err.toStdString();
    EXPECT_TRUE(run.err.contains("cannot decode " + tree.path("damaged.jpg").toUtf8()))
        << run.err.toStdString();
    const QJsonObject results = QJsonDocument::fromJson(run.out).object();
    EXPECT_EQ(results["request"].toObject()["detectionMode"].toInt(), 4);
    EXPECT_EQ(results["request"].toObject()["similarity"].toInt(), 90);
    const QJsonArray groups = results["groups"].toArray();
    ASSERT_EQ(groups.size(), 2);
    qint64 files = 0;
    for (const QJsonValue &group : groups) {
        const QJsonArray items = group.toObject()["items"].toArray();
        files += items.size();
        // The anchor, first, is the largest picture; the others are at least very similar to it.
        EXPECT_EQ(items.first().toObject()["similarity"].toDouble(), 100.0);
        EXPECT_TRUE(items.first().toObject()["path"].toString().endsWith(QLatin1String("original.jpg")) ||
                    items.first().toObject()["path"].toString().contains(QLatin1String("converted")))
            << items.first().toObject()["path"].toString().toStdString();
        for (const QJsonValue &item : items) {
            EXPECT_GE(item.toObject()["similarity"].toDouble(), 90.0);
            EXPECT_FALSE(item.toObject()["mediaPrint"].toString().isEmpty());
        }
    }
    EXPECT_EQ(files, made.size());
    EXPECT_EQ(results["summary"].toObject()["unreadableFiles"].toInt(), 1);
}

TEST(SimilarCli, OptionsOfTheSimilarModesAreCheckedAgainstTheMode)
{
    TempTree tree;
    const struct {
        QStringList arguments;
        const char *error;
    } cases[] = {
        {{"--mode", "similar-images", "--similarity", "101"},
         "--similarity needs a whole number from 0 to 100"},
        {{"--mode", "similar-audio", "--similarity", "x"}, "--similarity needs a whole number from 0 to 100"},
        {{"--similarity", "50"}, "--similarity applies to the similar-images and similar-audio modes only"},
        {{"--mode", "similar-audio", "--distinguish-greyscale"},
         "--distinguish-greyscale applies to the similar-images mode only"},
        {{"--mode", "similar"},
         "--mode takes content, duration, name, attribute, similar-images or similar-audio"},
        // Similar files are not copies: no link or clone may take the place of one.
        {{"--mode", "similar-images", "--select", "largest-picture", "--replace-with", "symlink", "--yes"},
         "--replace-with needs copies of the same content"},
    };
    for (const auto &c : cases) {
        const CliRun run = runCli(c.arguments + QStringList{tree.path()});
        EXPECT_EQ(run.exitCode, 2) << c.error;
        EXPECT_TRUE(run.err.contains(c.error)) << run.err.toStdString();
    }
}

} // namespace
