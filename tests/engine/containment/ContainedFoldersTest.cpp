#include "containment/ContainedFolders.h"
#include "containment/FolderTree.h"

#include <gtest/gtest.h>

#include <deque>
#include <map>
#include <random>
#include <set>

using namespace selfsame;

namespace {

// Files given as "path/to/name=content"; each file's folders are listed as a walk lists them.
struct Files {
    std::deque<std::string> folders; // stable storage for the input's views
    ContainmentInput input;

    quint32 folder(const std::string &path)
    {
        for (std::size_t i = 0; i < folders.size(); ++i)
            if (folders[i] == path)
                return quint32(i);
        if (const auto slash = path.rfind('/'); slash != 0)
            folder(path.substr(0, slash));
        folders.push_back(path);
        input.folderPaths.emplace_back(folders.back());
        return quint32(folders.size() - 1);
    }

    Files &add(const std::string &path, qint32 content, qint64 size = 100)
    {
        input.files.push_back({folder(path.substr(0, path.rfind('/'))), content, size, size});
        return *this;
    }

    // "contained in container" per finding, joined by ", ".
    std::string found()
    {
        std::string text;
        for (const Containment &c : findContainedFolders(input))
            text += (text.empty() ? "" : ", ") + c.contained + " in " + c.container;
        return text;
    }
};

TEST(FolderTree, OrdersSubtreesAsRunsAndMergesRepeatedPaths)
{
    const std::vector<std::string_view> paths = {"/a b", "/a/c", "/a", "/a/c/d", "/b", "/a"};
    const FolderTree tree(paths);
    ASSERT_EQ(tree.size(), 5u);
    EXPECT_EQ(tree.placeOf(2), tree.placeOf(5));
    const quint32 a = tree.placeOf(2), c = tree.placeOf(1), d = tree.placeOf(3), ab = tree.placeOf(0);
    EXPECT_EQ(tree.parent(d), qint32(c));
    EXPECT_EQ(tree.parent(c), qint32(a));
    EXPECT_EQ(tree.parent(ab), FolderTree::kNone); // "/a b" does not lie in "/a"
    EXPECT_TRUE(tree.inSubtree(d, a));
    EXPECT_FALSE(tree.inSubtree(ab, a));
    EXPECT_FALSE(tree.inSubtree(a, d));
    EXPECT_TRUE(liesBelow("/x/y", "/x"));
    EXPECT_TRUE(liesBelow("/x", "/"));
    EXPECT_FALSE(liesBelow("/xy", "/x"));
    EXPECT_FALSE(liesBelow("/x", "/x"));
}

TEST(ContainedFolders, FindsTheSmallestContainerWhateverTheNamesAndLayout)
{
    Files f;
    f.add("/old/a.jpg", 1).add("/old/b.jpg", 2).add("/old/trip/c.jpg", 3);
    f.add("/new/photos/2019/x.jpg", 1).add("/new/photos/y.jpg", 2).add("/new/photos/deep/er/z.jpg", 3);
    f.add("/new/photos/w.jpg", 4).add("/new/other.txt", -1);
    // "/new/photos/2019" holds only copies of files of "/old" too, but it stays as the container.
    EXPECT_EQ(f.found(), "/old in /new/photos");
}

TEST(ContainedFolders, ReportsOnlyTheOutermostContainedFolderOfATree)
{
    Files f;
    f.add("/old/s1/a", 1).add("/old/s2/b", 2).add("/new/a", 1).add("/new/b", 2).add("/new/c", -1);
    EXPECT_EQ(f.found(), "/old in /new");

    Files partly; // one subfolder is contained, its sibling holds a file of no copy
    partly.add("/old/s1/a", 1).add("/old/s2/u", -1).add("/new/a", 1).add("/new/b", 2).add("/x/b", 2);
    EXPECT_EQ(partly.found(), "/old/s1 in /new, /x in /new");
}

TEST(ContainedFolders, ChainsOfContainmentPointAtTheFolderThatStays)
{
    Files f;
    f.add("/a/f", 1).add("/b/f", 1).add("/b/g", 2).add("/c/f", 1).add("/c/g", 2).add("/c/h", 3);
    EXPECT_EQ(f.found(), "/a in /c, /b in /c");

    Files cycle; // "/new" holds "/old/s1", which lies in "/old", which holds "/new"
    cycle.add("/old/s1/a", 1).add("/old/b", 2).add("/old/u", -1).add("/new/a", 1).add("/new/b", 2);
    EXPECT_EQ(cycle.found(), "/new in /old");
}

TEST(ContainedFolders, FoldersOfEqualContentReportOneOfThemOnce)
{
    Files sameSize;
    sameSize.add("/a/x", 1).add("/a/y", 2).add("/b/renamed/y", 2).add("/b/x2", 1);
    EXPECT_EQ(sameSize.found(), "/a in /b"); // the first of equals

    Files withRepeats; // the one holding a file twice frees more
    withRepeats.add("/b/x", 1).add("/b/x again", 1).add("/b/y", 2).add("/a/x", 1).add("/a/y", 2);
    EXPECT_EQ(withRepeats.found(), "/b in /a");
}

TEST(ContainedFolders, NeverReportsAFolderInsideOrAroundItsContainer)
{
    Files parent; // the copy lies in the parent: removing the child leaves it, but it is no report
    parent.add("/p/a", 1).add("/p/sub/a copy", 1);
    EXPECT_EQ(parent.found(), "");

    Files onlyChild; // "/q" holds only "/q/s": each holds the other's files, and neither counts
    onlyChild.add("/q/s/f", 1).add("/r/f", 1);
    EXPECT_EQ(onlyChild.found(), "/q in /r");
}

TEST(ContainedFolders, FoldersWithUnlistedOrUniqueItemsOrNothingAreNeverContained)
{
    Files unique; // "/old" holds a file of no copy; "/new" lies whole in it
    unique.add("/old/a", 1).add("/old/u", -1).add("/new/a", 1);
    EXPECT_EQ(unique.found(), "/new in /old");

    Files notWhole;
    notWhole.add("/old/sub/a", 1).add("/old/b", 2).add("/new/a", 1).add("/new/b", 2);
    notWhole.input.foldersNotWhole.push_back(notWhole.folder("/old/sub"));
    notWhole.input.foldersNotWhole.push_back(notWhole.folder("/new"));
    EXPECT_EQ(notWhole.found(), ""); // "/old/sub" is not listed whole, so neither is "/old"

    Files empty; // a folder of empty files holds no bytes to free
    empty.add("/old/e", 1, 0).add("/new/e", 1, 0);
    EXPECT_EQ(empty.found(), "");
}

TEST(ContainedFolders, TreesAccountedForElsewhereAreContainersOnly)
{
    Files f;
    f.add("/a/f", 1).add("/b/f", 1).add("/b/g", 2).add("/c/f", 1).add("/c/g", 2).add("/c/h", 3);
    f.input.accountedFor = {"/a/", "/b/"};
    EXPECT_EQ(f.found(), "");
    f.input.accountedFor = {"/a/"};
    EXPECT_EQ(f.found(), "/b in /c");
}

// Random trees: every report is true, none lies inside another, and removing every reported
// folder leaves a copy of each file it held.
TEST(ContainedFolders, RemovingEveryReportedFolderKeepsACopyOfEachFile)
{
    std::mt19937 random(18);
    for (int round = 0; round < 300; ++round) {
        Files f;
        std::vector<std::string> folders = {"/r"};
        for (int i = 0; i < 12; ++i)
            folders.push_back(folders[random() % folders.size()] + "/" + char('a' + i));
        std::map<std::string, std::vector<std::pair<std::string, qint32>>> filesIn;
        for (int i = 0; i < 24; ++i) {
            const std::string &folder = folders[random() % folders.size()];
            const qint32 content = qint32(random() % 6);
            const qint64 size = 100 + random() % 3;
            f.add(folder + "/f" + std::to_string(i), content, size);
        }
        const std::vector<Containment> found = findContainedFolders(f.input);
        auto below = [](const std::string &path, const std::string &folder) { return liesBelow(path, folder); };
        auto contentsBelow = [&](const std::string &folder, const std::vector<std::string> &removed) {
            std::set<qint32> contents;
            for (std::size_t i = 0; i < f.input.files.size(); ++i) {
                const std::string path = f.folders[f.input.files[i].folder] + "/";
                const bool gone = std::any_of(removed.begin(), removed.end(), [&](const std::string &r) {
                    return below(path, r);
                });
                if (below(path, folder) && !gone)
                    contents.insert(f.input.files[i].content);
            }
            return contents;
        };
        std::vector<std::string> removed;
        for (const Containment &c : found) {
            const std::set<qint32> held = contentsBelow(c.contained, {}), holding = contentsBelow(c.container, {});
            EXPECT_TRUE(std::includes(holding.begin(), holding.end(), held.begin(), held.end())) << round;
            EXPECT_FALSE(below(c.contained + "/", c.container) || below(c.container + "/", c.contained)) << round;
            for (const std::string &other : removed)
                EXPECT_FALSE(below(c.contained + "/", other) || below(other + "/", c.contained)) << round;
            removed.push_back(c.contained);
        }
        std::set<qint32> lost;
        for (const std::string &folder : removed)
            for (const qint32 content : contentsBelow(folder, {}))
                lost.insert(content);
        const std::set<qint32> kept = contentsBelow("", removed);
        for (const qint32 content : lost)
            EXPECT_TRUE(kept.contains(content)) << "round " << round << ", content " << content;
    }
}

} // namespace
