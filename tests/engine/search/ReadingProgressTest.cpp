#include "language/EnglishPlurals.h"
#include "search/DigestCache.h"
#include "search/ReadProgress.h"
#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

#include <set>

using namespace selfsame;

namespace {

// Files the reading plans for and then partly never reads: pairs read whole, near twins that
// differ only in their last byte, files told apart by their samples or halfway through, a
// hard link, small and empty files.
void buildReadingTree(TempTree &tree)
{
    for (int pair = 0; pair < 6; ++pair)
        for (const char *copy : {"a", "b"})
            tree.file(QStringLiteral("pairs/%1%2").arg(pair).arg(QLatin1String(copy)),
                      patternBytes(200'000 + pair * 50'000, pair));
    QByteArray twin = patternBytes(1'500'000, 40);
    tree.file(QStringLiteral("twins/one"), twin);
    twin[twin.size() - 1] = char(twin.back() + 1);
    tree.file(QStringLiteral("twins/two"), twin);
    for (int seed = 0; seed < 4; ++seed)
        tree.file(QStringLiteral("sampled/%1").arg(seed), patternBytes(700'000, 50 + seed));
    QByteArray middle = patternBytes(900'000, 60);
    tree.file(QStringLiteral("middle/one"), middle);
    middle[450'000] = char(middle[450'000] + 1);
    tree.file(QStringLiteral("middle/two"), middle);
    tree.hardLink(QStringLiteral("pairs/link"), QStringLiteral("pairs/0a"));
    tree.build({"small/a:3", "small/b:3", "small/c:3", "empty/x", "empty/y"});
    tree.file(QStringLiteral("empty/none"), {});
    tree.file(QStringLiteral("empty/nothing"), {});
}

// Below 0 only before the reading; from then on never back, below 1 until the very last.
void expectHonestProgress(const std::vector<double> &values, bool someRead, const std::string &label)
{
    const auto first = std::find_if(values.begin(), values.end(), [](double v) { return v >= 0; });
    ASSERT_NE(first, values.end()) << label;
    std::set<double> between;
    for (auto at = first; at != values.end(); ++at) {
        ASSERT_GE(*at, 0) << label << ": indeterminate after the reading began";
        if (at != first) {
            ASSERT_GE(*at, *(at - 1)) << label << ": back at message " << (at - values.begin());
        }
        if (at + 1 != values.end()) {
            ASSERT_LT(*at, 1.0) << label << ": 100 % at message " << (at - values.begin());
        }
        if (*at > 0 && *at < 1)
            between.insert(*at);
    }
    EXPECT_EQ(values.back(), 1.0) << label;
    if (someRead) {
        EXPECT_GE(between.size(), 5u) << label << ": the reading did not show its way";
    }
}

TEST(ReadingProgress, NeverGoesBackAndReachesAllOnlyAtTheEnd)
{
    TempTree tree, cacheFolder;
    buildReadingTree(tree);
    DigestCache cache{cacheFolder.path(QStringLiteral("digests.sqlite")), {.settleNs = 0}};
    const struct {
        const char *label;
        bool compareFolders;
        DigestCache *cache;
    } cases[] = {{"plain", false, nullptr},
                 {"folders", true, nullptr},
                 {"filling the cache", false, &cache},
                 {"from the cache", false, &cache}};
    for (const auto &c : cases) {
        SearchHarness harness;
        harness.clockRuns = true;
        harness.context.digestCache = c.cache;
        // The counts themselves, before the status line keeps its value from going back.
        std::vector<std::pair<qint64, qint64>> counts; // bytes read, bytes to read
        harness.onPost = [&](const QString &) {
            const ReadProgress &reading = harness.context.reading;
            counts.emplace_back(reading.bytesRead(), reading.bytesToRead());
        };
        SearchRequest request;
        request.compareFolders = c.compareFolders;
        EXPECT_FALSE(harness.run(request, tree.path()).isEmpty()) << c.label;
        cache.flush();
        const auto planned = std::find_if(counts.begin(), counts.end(), [](const auto &n) { return n.second > 0; });
        for (auto at = planned; at != counts.end() && at + 1 != counts.end(); ++at) {
            EXPECT_LE((at + 1)->second, at->second) << c.label << ": more to read at message " << (at - counts.begin());
            EXPECT_GE((at + 1)->first, at->first) << c.label;
        }
        // Every byte read was planned, and nothing planned is left over at the end.
        const ReadProgress &reading = harness.context.reading;
        expectHonestProgress(harness.values, reading.bytesRead() > 0, c.label);
        EXPECT_EQ(reading.bytesRead(), harness.context.statistics.bytesRead) << c.label;
        EXPECT_EQ(reading.bytesToRead(), reading.bytesRead()) << c.label;
        EXPECT_TRUE(harness.posted.filter(QStringLiteral("Comparing files… ")).size() >= 5) << c.label;
    }
}

TEST(ReadProgress, BytesToReadOnlyShrinkAndNeverFallBelowTheBytesRead)
{
    ReadProgress progress;
    progress.plan(1000);
    EXPECT_EQ(progress.fraction(), 0.0);
    progress.read(300);
    EXPECT_DOUBLE_EQ(progress.fraction(), 0.3);
    progress.release(500); // a job ended having read 300 of its 800
    EXPECT_EQ(progress.bytesToRead(), 500);
    EXPECT_DOUBLE_EQ(progress.fraction(), 0.6);
    progress.read(250);
    progress.release(300); // released too early by a racing job: the bytes read still count
    EXPECT_EQ(progress.bytesToRead(), 550);
    EXPECT_DOUBLE_EQ(progress.fraction(), 1.0);
}

TEST(ReadProgress, TheTimeLeftFollowsTheRecentRate)
{
    static int argc = 1;
    static char name[] = "engine-tests", *argv[] = {name, nullptr};
    if (!QCoreApplication::instance())
        new QCoreApplication(argc, argv); // translators need one
    EnglishPlurals plurals;
    QCoreApplication::installTranslator(&plurals);
    ReadProgress progress;
    progress.plan(2'000'000'000);
    qint64 now = 1'000'000;
    EXPECT_EQ(progress.text(now).toStdString(), "0 bytes of 2.0 GB");
    // 10 MB a second: no estimate before two seconds, then 198 s for the rest.
    for (int tenth = 1; tenth <= 30; ++tenth) {
        progress.read(1'000'000);
        now += 100'000;
        const QString text = progress.text(now);
        if (tenth < 20) {
            EXPECT_FALSE(text.contains(QStringLiteral("left"))) << text.toStdString();
        }
    }
    EXPECT_EQ(progress.text(now).toStdString(), "30.0 MB of 2.0 GB, about 3 minutes left");
    // Five times as fast: after a few seconds the estimate has mostly followed.
    for (int tenth = 1; tenth <= 100; ++tenth) {
        progress.read(5'000'000);
        now += 100'000;
        progress.text(now);
    }
    EXPECT_EQ(progress.text(now).toStdString(), "530.0 MB of 2.0 GB, about 30 seconds left");
    QCoreApplication::removeTranslator(&plurals);
}

TEST(MovingRate, WeighsRecentSpansMostAndWaitsUntilItMeansSomething)
{
    MovingRate rate;
    rate.add(0, 0);
    rate.add(1'000'000, 100);
    EXPECT_FALSE(rate.perSecond()); // one second is too short to tell
    rate.add(2'000'000, 200);
    ASSERT_TRUE(rate.perSecond());
    EXPECT_DOUBLE_EQ(*rate.perSecond(), 100);
    // Five seconds at 300 a second: the average has gone most of the way, not all of it.
    rate.add(7'000'000, 200 + 5 * 300);
    EXPECT_GT(*rate.perSecond(), 200);
    EXPECT_LT(*rate.perSecond(), 300);
}

} // namespace
