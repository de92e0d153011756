#include "search/DuplicateSearch.h"
#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QThread>

#include <gtest/gtest.h>

using namespace selfsame;

namespace {

TEST(SearchRun, ContentSearchNumbersItsSteps)
{
    TempTree tree;
    tree.build({"A/f:1", "B/f:1"});
    for (const bool compareFolders : {false, true}) {
        SearchHarness harness;
        SearchRequest request;
        request.compareFolders = compareFolders;
        EXPECT_FALSE(harness.run(request, tree.path()).isEmpty());
        const int steps = compareFolders ? 6 : 4;
        const QStringList &posted = harness.posted;
        ASSERT_FALSE(posted.isEmpty());
        const auto prefix = [&](int step) { return QStringLiteral("Step %1 of %2: ").arg(step).arg(steps); };
        EXPECT_TRUE(posted.first().startsWith(prefix(1) + QStringLiteral("Enumerating files… ")));
        for (int step = 1; step <= steps; ++step) // the last one again at 100 % when the search is over
            EXPECT_EQ(posted.filter(prefix(step)).size(), step == steps ? 2 : 1) << step;
        EXPECT_EQ(posted.filter(QStringLiteral("Step ")).size(), posted.size());
        const QString last = compareFolders ? QStringLiteral("Filtering out contents of duplicate folders…")
                                            : QStringLiteral("Comparing file hashes…");
        EXPECT_EQ(posted.last(), prefix(steps) + last);
    }
}

TEST(StatusThrottle, ShowsOneMessagePerTenthOfASecondAndEveryStepsFirst)
{
    qint64 now = 5'000'000;
    StatusThrottle throttle([&] { return now; });
    EXPECT_TRUE(throttle.admit());
    now += 50'000;
    EXPECT_FALSE(throttle.admit());
    now += 50'000; // exactly 0.1 s after the last one shown
    EXPECT_FALSE(throttle.admit());
    now += 1;
    EXPECT_TRUE(throttle.admit());
    throttle.reset();
    EXPECT_TRUE(throttle.admit());
    EXPECT_FALSE(throttle.admit());
}

TEST(SearchRequest, FolderComparisonIsKeptForContentOnlyAndArcSecondsBecomeDegrees)
{
    const struct {
        DetectionMode mode;
        const char *attribute;
        double tolerance;
        bool compareFolders;
    } cases[] = {
        {DetectionMode::Content, "", 36, true},
        {DetectionMode::FileName, "", 36, false},
        {DetectionMode::Attribute, "kMDItemLatitude", 0.01, false},
        {DetectionMode::Attribute, "kMDItemLongitude", 0.01, false},
    };
    for (const auto &c : cases) {
        SearchRequest request;
        request.detectionMode = c.mode;
        request.compareFolders = true;
        request.spotlightAttribute = QString::fromUtf8(c.attribute);
        request.spotlightTolerance = 36;
        const SearchRequest stored = storedRequest(request);
        EXPECT_EQ(stored.compareFolders, c.compareFolders) << int(c.mode);
        EXPECT_NEAR(stored.spotlightTolerance, c.tolerance, 1e-12) << c.attribute;
    }
}

TEST(SearchRun, AbortDuringEnumerationLeavesNoGroups)
{
    TempTree tree;
    tree.build({"a/f:1", "b/f:1", "c/f:1", "d/f:1"});
    SearchHarness harness;
    harness.onPost = [&](const QString &text) {
        if (text.contains(QStringLiteral("Enumerating")))
            harness.state = AbortRequested;
    };
    EXPECT_TRUE(harness.run({}, tree.path()).isEmpty());
    EXPECT_TRUE(harness.context.statistics.stopped);
    EXPECT_TRUE(harness.posted.filter(QStringLiteral("Comparing")).isEmpty()); // nothing grouped, nothing compared
}

TEST(DuplicateSearch, ReportsToTheStartingThreadAndCanBeAborted)
{
    static int argc = 1;
    static char name[] = "engine-tests", *argv[] = {name, nullptr};
    if (!QCoreApplication::instance())
        new QCoreApplication(argc, argv); // queued signals need an event loop
    TempTree tree;
    for (int i = 0; i < 300; ++i)
        tree.file(QStringLiteral("d%1/f%2").arg(i % 30).arg(i), patternBytes(1000 + i % 150, i % 150));
    DuplicateSearch search;
    bool done = false;
    int statusOnStartingThread = 0;
    QObject::connect(&search, &DuplicateSearch::searchDone, [&] { done = true; });
    QObject::connect(&search, &DuplicateSearch::progress, [&] {
        statusOnStartingThread += QThread::currentThread() == search.thread() ? 1 : -1000;
    });
    const auto finished = [&] {
        for (QDeadlineTimer deadline(60'000); !done && !deadline.hasExpired();)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
        return std::exchange(done, false);
    };
    SearchRequest request;
    request.searchInFolderURLs = {tree.path()};
    search.searchInFolderURLs(request);
    ASSERT_TRUE(finished());
    EXPECT_EQ(search.mainItems().size(), 300);
    EXPECT_FALSE(search.aborted());
    EXPECT_EQ(search.searchingState(), Finished);
    EXPECT_GT(statusOnStartingThread, 0);

    search.searchInFolderURLs(request);
    search.abortAndWait(true);
    EXPECT_EQ(search.searchingState(), Finished);
    ASSERT_TRUE(finished());
    EXPECT_TRUE(search.aborted());
    EXPECT_TRUE(search.mainItems().isEmpty());
}

} // namespace
