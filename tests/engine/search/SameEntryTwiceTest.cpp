// One directory entry reached through two paths is one item: never a duplicate of itself.

#include "support/MountedVolume.h"
#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <QFileInfo>
#include <gtest/gtest.h>

using namespace selfsame;

namespace
{

// The tree's root as the file system names it: results come under real paths.
QString realRoot(const TempTree &tree)
{
    return QFileInfo(tree.path()).canonicalFilePath();
}

SearchRequest requestFor(const QStringList &locations, DetectionMode mode = DetectionMode::Content,
                         bool compareFolders = false)
{
    SearchRequest request;
    request.searchInFolderURLs = locations;
    request.detectionMode = mode;
    request.compareFolders = compareFolders;
    return request;
}

TEST(SameEntryTwice, AFolderReachedThroughALinkOrAnOverlapIsSearchedOnceInEveryMode)
{
    TempTree tree;
    tree.file(QStringLiteral("A/sub/only.bin"), patternBytes(5000, 1));
    tree.file(QStringLiteral("A/sub/other.bin"), patternBytes(6000, 2));
    tree.symlink(QStringLiteral("Alink"), tree.path(QStringLiteral("A")));
    const QString root = realRoot(tree);
    const QString a = tree.path(QStringLiteral("A")), link = tree.path(QStringLiteral("Alink"));

    for (const QStringList &locations :
         {QStringList{a, link}, QStringList{link, a}, QStringList{a, a + "/sub"},
          QStringList{a + "/sub/only.bin", link}, QStringList{link + "/sub/only.bin", a}}) {
        const std::string where = locations.join(u' ').toStdString();
        EXPECT_EQ(searchGroups(root, requestFor(locations)), "") << where;
        EXPECT_EQ(searchGroups(root, requestFor(locations, DetectionMode::Content, true)), "") << where;
        EXPECT_EQ(searchGroups(root, requestFor(locations, DetectionMode::FileName)), "") << where;
    }

    // A real copy is still found, under the real path of the linked folder.
    tree.file(QStringLiteral("B/only.bin"), patternBytes(5000, 1));
    EXPECT_EQ(searchGroups(root, requestFor({link, tree.path(QStringLiteral("B"))})),
              "A/sub/only.bin B/only.bin");
    EXPECT_EQ(
        searchGroups(root, requestFor({link, a, tree.path(QStringLiteral("B"))}, DetectionMode::FileName)),
        "A/sub/only.bin B/only.bin");
}

TEST(SameEntryTwice, HardLinksStayCopiesThatShareStorage)
{
    TempTree tree;
    tree.file(QStringLiteral("A/one.bin"), patternBytes(5000, 3));
    tree.hardLink(QStringLiteral("A/two.bin"), QStringLiteral("A/one.bin"));
    EXPECT_EQ(searchGroups(realRoot(tree), requestFor({tree.path(QStringLiteral("A"))})),
              "A/one.bin A/two.bin");
}

TEST(SameEntryTwice, CopiesOfASingleFileNeverIncludeTheFileThroughALinkedFolder)
{
    TempTree tree;
    tree.file(QStringLiteral("A/sub/only.bin"), patternBytes(5000, 4));
    tree.symlink(QStringLiteral("Alink"), tree.path(QStringLiteral("A")));
    SearchRequest request =
        requestFor({tree.path(QStringLiteral("A/sub/only.bin")), tree.path(QStringLiteral("Alink"))});
    request.findAllDupesForSingleFiles = true;
    SearchHarness harness;
    harness.context.singleFileScope = {tree.path()};
    EXPECT_EQ(describeGroups(harness.run(request, {}), realRoot(tree)), "");
}

// A bind mount shows the same folders, with the same device and inodes, under another path.
class BindMount
{
public:
    BindMount(const QString &from, const QString &to) : m_to(to)
    {
        m_mounted = shell(QStringLiteral("mount --bind \"$0\" \"$1\" 2>/dev/null"), {from, to});
    }
    ~BindMount()
    {
        if (m_mounted) shell(QStringLiteral("umount \"$0\""), {m_to});
    }
    bool mounted() const { return m_mounted; }

private:
    QString m_to;
    bool m_mounted = false;
};

TEST(SameEntryTwice, ABindMountedFolderIsSearchedOnceAndNeverMakesItsParentLookEmpty)
{
    TempTree tree;
    tree.file(QStringLiteral("A/sub/only.bin"), patternBytes(5000, 5));
    tree.folder(QStringLiteral("bind"));
    // Two folders that differ only in what a bind mount hides: X/m shows A, Y/m is empty.
    tree.folder(QStringLiteral("X/m"));
    tree.file(QStringLiteral("X/same.bin"), patternBytes(7000, 6));
    tree.folder(QStringLiteral("Y/m"));
    tree.file(QStringLiteral("Y/same.bin"), patternBytes(7000, 6));
    BindMount bind(tree.path(QStringLiteral("A")), tree.path(QStringLiteral("bind")));
    if (!bind.mounted()) GTEST_SKIP() << "this process may not make bind mounts";
    BindMount inside(tree.path(QStringLiteral("A")), tree.path(QStringLiteral("X/m")));
    ASSERT_TRUE(inside.mounted());
    const QString root = realRoot(tree);

    EXPECT_EQ(
        searchGroups(root, requestFor({tree.path(QStringLiteral("A")), tree.path(QStringLiteral("bind"))})),
        "");
    EXPECT_EQ(
        searchGroups(root, requestFor({tree.path(QStringLiteral("A")), tree.path(QStringLiteral("bind"))},
                                      DetectionMode::Content, true)),
        "");
    // X/m was listed already as A (the last location is listed first): it must not pass for
    // the empty Y/m, nor X for a copy of Y.
    EXPECT_EQ(searchGroups(root, requestFor({tree.path(QStringLiteral("X")), tree.path(QStringLiteral("Y")),
                                             tree.path(QStringLiteral("A"))},
                                            DetectionMode::Content, true)),
              "X/same.bin Y/same.bin");
}

} // namespace
