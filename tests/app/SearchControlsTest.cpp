// The controls of a running search in a results window: Pause, Resume and Stop, and the
// status line of results that a stopped search left partial.
#include "Dupes.h"
#include "Settings.h"
#include "results/ResultsFile.h"
#include "support/TempTree.h"

#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace selfsame;

namespace {

// Enough files that a search is still walking when its window is first clicked; the content
// of file i depends on i % 700 alone.
void buildTree(TempTree &tree)
{
    for (int i = 0; i < 2000; ++i)
        tree.file(QStringLiteral("x/d%1/f%2").arg(i % 50).arg(i), patternBytes(100 + i % 700, i % 700));
}

TEST(SearchControls, APausedSearchWaitsForResumeAndThenFinishesComplete)
{
    TempTree tree;
    buildTree(tree);
    Settings settings(tree.path(QStringLiteral("Selfsame.conf")));
    Dupes dupes(settings);
    dupes.setAttribute(Qt::WA_DeleteOnClose, false);
    SearchRequest request;
    request.searchInFolderURLs = {tree.path(QStringLiteral("x"))};
    QSignalSpy done(&dupes, &Dupes::finishedSearching);
    dupes.show();
    dupes.searchInFolderURLs(request);
    dupes.pauseButton()->click();
    ASSERT_TRUE(dupes.search().paused());
    EXPECT_EQ(dupes.pauseButton()->text(), QStringLiteral("&Resume"));
    EXPECT_TRUE(dupes.progressText().startsWith(QStringLiteral("Paused: "))) << dupes.progressText().toStdString();
    EXPECT_FALSE(done.wait(400)) << "a paused search went on to its end";

    dupes.pauseButton()->click();
    EXPECT_FALSE(dupes.search().paused());
    EXPECT_EQ(dupes.pauseButton()->text(), QStringLiteral("&Pause"));
    ASSERT_TRUE(done.wait(20000));
    EXPECT_EQ(dupes.resultModel().mainItems().size(), 2000); // 600 groups of 3 and 100 of 2
    EXPECT_FALSE(dupes.resultModel().partial());
    EXPECT_FALSE(dupes.statusText().contains(QStringLiteral("Partial"))) << dupes.statusText().toStdString();
}

TEST(SearchControls, StopEndsAPausedSearchAtOnce)
{
    TempTree tree;
    buildTree(tree);
    Settings settings(tree.path(QStringLiteral("Selfsame.conf")));
    auto *dupes = new Dupes(settings);
    QSignalSpy closed(dupes, &Dupes::closed);
    SearchRequest request;
    request.searchInFolderURLs = {tree.path(QStringLiteral("x"))};
    dupes->show();
    dupes->searchInFolderURLs(request);
    dupes->pauseButton()->click();
    ASSERT_TRUE(dupes->search().paused());
    dupes->stopButton()->click();
    // Stopped while walking: nothing was grouped, and the window goes as after any empty stop.
    EXPECT_TRUE(QTest::qWaitFor([&] { return closed.size() == 1; }, 5000));
}

TEST(SearchControls, PartialResultsSaySoInTheStatusLineAndKeepSayingItWhenReopened)
{
    TempTree tree;
    tree.build({"x/a:3", "x/b:3", "x/c:5", "x/d:5"});
    Settings settings(tree.path(QStringLiteral("Selfsame.conf")));
    Dupes searched(settings);
    searched.setAttribute(Qt::WA_DeleteOnClose, false);
    SearchRequest request;
    request.searchInFolderURLs = {tree.path(QStringLiteral("x"))};
    QSignalSpy done(&searched, &Dupes::finishedSearching);
    searched.searchInFolderURLs(request);
    ASSERT_TRUE(done.wait(20000));
    EXPECT_TRUE(searched.statusText().startsWith(QStringLiteral("2 groups"))) << searched.statusText().toStdString();

    searched.resultModel().setPartial(true); // as a search stopped while reading leaves it
    const QString file = tree.path(QStringLiteral("partial.selfsame"));
    ASSERT_EQ(searched.saveResults(file), QString());
    ResultsFile::Loaded loaded = ResultsFile::load(file);
    ASSERT_TRUE(loaded.model) << loaded.error.toStdString();
    Dupes reopened(settings);
    reopened.setAttribute(Qt::WA_DeleteOnClose, false);
    reopened.showSavedResults(std::move(*loaded.model), file);
    EXPECT_TRUE(reopened.statusText().startsWith(QStringLiteral("Partial results: the search was stopped. 2 groups")))
        << reopened.statusText().toStdString();
}

} // namespace
