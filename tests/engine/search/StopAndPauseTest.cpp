#include "search/Digest.h"
#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <QThread>

#include <gtest/gtest.h>

#include <map>
#include <thread>

using namespace selfsame;

namespace {

constexpr qint64 kMiB = 1 << 20;

// The largest files, read first, are near twins that differ only in their last byte; then
// eight pairs of equal files, largest first, and small groups that come last.
void buildTree(TempTree &tree)
{
    QByteArray twin = patternBytes(4 * kMiB, 1);
    tree.file(QStringLiteral("twins/one"), twin);
    twin[twin.size() - 1] = char(twin.back() + 1);
    tree.file(QStringLiteral("twins/two"), twin);
    for (int pair = 0; pair < 8; ++pair)
        for (const char *copy : {"a", "b"})
            tree.file(QStringLiteral("pairs/%1%2").arg(pair).arg(QLatin1String(copy)),
                      patternBytes(kMiB + pair * 10'000, 10 + pair));
    tree.build({"small/a:3", "small/b:3", "small/c:5", "small/d:5", "small/e:7"});
}

struct Group {
    Digest digest;
    QStringList members;
};

std::map<QString, Group> groupsByFirstMember(const QList<ResultItem> &items)
{
    std::map<int, Group> byNumber;
    for (const ResultItem &item : items) {
        byNumber[item.group].digest = item.digest;
        byNumber[item.group].members.append(item.path);
    }
    std::map<QString, Group> groups;
    for (auto &[number, group] : byNumber) {
        group.members.sort();
        groups[group.members.first()] = group;
    }
    return groups;
}

// Every group of a stopped search is part of a group of the full search, with its digest.
void expectOnlyTrueGroups(const QList<ResultItem> &partial, const QList<ResultItem> &full)
{
    std::map<QString, const Group *> fullGroupOf;
    const std::map<QString, Group> fullGroups = groupsByFirstMember(full);
    for (const auto &[first, group] : fullGroups)
        for (const QString &member : group.members)
            fullGroupOf[member] = &group;
    for (const auto &[first, group] : groupsByFirstMember(partial)) {
        EXPECT_GE(group.members.size(), 2) << first.toStdString();
        const auto found = fullGroupOf.find(first);
        ASSERT_NE(found, fullGroupOf.end()) << "a false group: " << group.members.join(u' ').toStdString();
        EXPECT_EQ(group.digest, found->second->digest) << first.toStdString();
        for (const QString &member : group.members)
            EXPECT_TRUE(found->second->members.contains(member)) << member.toStdString();
    }
}

TEST(StopWhileReading, KeepsTheGroupsReadToTheEndAndNoneThatWasNot)
{
    TempTree tree;
    buildTree(tree);
    SearchHarness fullSearch;
    const QList<ResultItem> full = fullSearch.run({}, tree.path());
    ASSERT_EQ(groupsByFirstMember(full).size(), 10u);

    // Once while the near twins are read (a digest of their equal part would group them),
    // once after the largest pairs are done.
    for (const double stopAt : {0.02, 0.6}) {
        SearchHarness harness;
        harness.clockRuns = true;
        harness.onPost = [&](const QString &) {
            if (harness.context.reading.fraction() >= stopAt)
                harness.state = AbortRequested;
        };
        const QList<ResultItem> partial = harness.run({}, tree.path());
        EXPECT_TRUE(harness.context.statistics.stopped) << stopAt;
        expectOnlyTrueGroups(partial, full);
        const std::size_t kept = groupsByFirstMember(partial).size();
        EXPECT_LT(kept, 10u) << stopAt;
        if (stopAt > 0.5) {
            EXPECT_GE(kept, 1u) << "the groups read before the stop are kept";
        }
        EXPECT_LT(*std::max_element(harness.values.begin(), harness.values.end()), 1.0)
            << "a stopped search never shows 100 %";
    }
}

TEST(StopWhileReading, FolderGroupsStayTrueWhenTheirFilesWereNotAllRead)
{
    TempTree tree;
    for (const char *side : {"left", "right"}) {
        tree.file(QStringLiteral("%1/big").arg(QLatin1String(side)), patternBytes(3 * kMiB, 2));
        tree.file(QStringLiteral("%1/small").arg(QLatin1String(side)), patternBytes(5000, 3));
    }
    SearchRequest request;
    request.compareFolders = true;
    SearchHarness fullSearch;
    const QList<ResultItem> full = fullSearch.run(request, tree.path());
    ASSERT_EQ(describeGroups(full, tree.path()), "left/ right/");

    SearchHarness harness;
    harness.clockRuns = true;
    harness.onPost = [&](const QString &) {
        if (harness.context.reading.bytesRead() > kMiB)
            harness.state = AbortRequested;
    };
    const QList<ResultItem> partial = harness.run(request, tree.path());
    EXPECT_TRUE(harness.context.statistics.stopped);
    // The big files were cut short: the folders cannot be told equal, and neither can the big
    // files. The small ones may have been compared, and then they are a group of their own.
    const std::string groups = describeGroups(partial, tree.path());
    EXPECT_TRUE(groups.empty() || groups == "left/small right/small") << groups;
}

// Pauses the search from its own status once `bytes` are read; runs it on a thread of its own.
struct PausedSearch {
    SearchHarness harness;
    std::atomic<qint64> readWhenPaused{-1};
    QList<ResultItem> items;
    std::thread thread;

    PausedSearch(const QString &root, qint64 bytes)
    {
        harness.clockRuns = true;
        harness.onPost = [this, bytes](const QString &) {
            const qint64 read = harness.context.reading.bytesRead();
            if (readWhenPaused < 0 && read >= bytes) {
                harness.state = Paused;
                readWhenPaused = read;
            }
        };
        thread = std::thread([this, root] { items = harness.run({}, root); });
        for (int wait = 0; wait < 2000 && readWhenPaused < 0; ++wait)
            QThread::msleep(10);
    }
    ~PausedSearch()
    {
        if (thread.joinable())
            thread.join();
    }
};

TEST(PauseWhileReading, NoMoreIsReadUntilTheSearchResumesWithTheSameResult)
{
    TempTree tree;
    buildTree(tree);
    SearchHarness unpaused;
    const std::string expected = describeGroups(unpaused.run({}, tree.path()), tree.path());

    PausedSearch search(tree.path(), 2 * kMiB);
    ASSERT_GE(search.readWhenPaused, 0) << "the search did not pause";
    const ReadProgress &reading = search.harness.context.reading;
    QThread::msleep(300);
    const qint64 settled = reading.bytesRead();
    const qsizetype posts = [&] {
        std::lock_guard lock(search.harness.mutex);
        return search.harness.posted.size();
    }();
    QThread::msleep(300);
    EXPECT_EQ(reading.bytesRead(), settled) << "reading went on while paused";
    {
        std::lock_guard lock(search.harness.mutex);
        EXPECT_EQ(search.harness.posted.size(), posts);
    }
    // Each hashing thread ends the block it was reading, at most a buffer's worth, and no more.
    const qint64 threads = std::clamp(std::thread::hardware_concurrency(), 1u, 16u);
    EXPECT_LE(settled - search.readWhenPaused, threads * qint64(ReadBuffer::defaultSize()));

    search.harness.state = Running;
    wakePausedSearches();
    search.thread.join();
    EXPECT_EQ(describeGroups(search.items, tree.path()), expected);
    EXPECT_EQ(search.harness.context.statistics.bytesRead, unpaused.context.statistics.bytesRead);
    EXPECT_FALSE(search.harness.context.statistics.stopped);
    EXPECT_EQ(search.harness.values.back(), 1.0);
}

TEST(PauseWhileReading, AnAbortWithoutAWakeStillEndsAPausedSearch)
{
    TempTree tree;
    buildTree(tree);
    SearchHarness fullSearch;
    const QList<ResultItem> full = fullSearch.run({}, tree.path());

    PausedSearch search(tree.path(), kMiB);
    ASSERT_GE(search.readWhenPaused, 0) << "the search did not pause";
    search.harness.state = AbortRequested; // as a signal handler does: no one is woken
    search.thread.join();
    EXPECT_TRUE(search.harness.context.statistics.stopped);
    expectOnlyTrueGroups(search.items, full);
}

} // namespace
