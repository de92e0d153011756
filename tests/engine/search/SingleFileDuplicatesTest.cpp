#include "search/ExactSizeIndex.h"
#include "search/SingleFileDuplicates.h"
#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace {

QStringList relative(QStringList paths, const TempTree &tree)
{
    for (QString &path : paths)
        path = path.mid(tree.path().size() + 1);
    paths.sort();
    return paths;
}

TEST(VolumeScanIndex, FindsFilesOfTheAskedSizesWithinItsFolders)
{
    TempTree tree;
    tree.build({"in/a:3", "in/deep/er/b:3", "in/c:4", "in/.hidden/d:3", "in/e:5", "out/f:3"});
    SearchHarness harness;
    VolumeScanIndex scan({tree.path(QStringLiteral("in")), tree.path(QStringLiteral("in/deep"))}, true,
                         harness.context);
    auto found = scan.findFilesWithExactSizes({3000, 4000, 7000});
    EXPECT_EQ(relative(found[3000], tree), (QStringList{"in/a", "in/deep/er/b"})) << "each once, nothing hidden";
    EXPECT_EQ(relative(found[4000], tree), QStringList{"in/c"});
    EXPECT_TRUE(found[7000].isEmpty());

    VolumeScanIndex withHidden({tree.path(QStringLiteral("in"))}, false, harness.context);
    EXPECT_EQ(relative(withHidden.findFilesWithExactSize(3000), tree),
              (QStringList{"in/.hidden/d", "in/a", "in/deep/er/b"}));

    harness.state = AbortRequested;
    EXPECT_TRUE(scan.findFilesWithExactSize(3000).isEmpty()) << "an aborted walk stops at once";
}

TEST(VolumeScanIndex, TheVolumeRootHoldsThePath)
{
    TempTree tree;
    tree.build({"x/y"});
    const QString root = volumeRoot(tree.path(QStringLiteral("x/y")));
    EXPECT_TRUE(tree.path().startsWith(root == u"/" ? root : root + u'/')) << root.toStdString();
    EXPECT_EQ(volumeRoot(root), root);
}

TEST(SingleFileDuplicates, CopiesAreFoundAndTheFileItselfIsNeverDigestedAlone)
{
    TempTree tree;
    tree.build({"alone:7", "one:3", "copy:3", "sub/copy2:3"});
    tree.file(QStringLiteral("same size"), patternBytes(3000, 99));
    SearchHarness harness;
    SearchRequest request;
    VolumeScanIndex scan({tree.path()}, true, harness.context);
    SingleFileDuplicates lookup(request, harness.context, scan);

    EXPECT_TRUE(lookup.searchIdenticalUsingMDQuery(tree.path(QStringLiteral("alone"))).isEmpty());
    EXPECT_EQ(harness.context.statistics.filesHashed, 0) << "the only file of its size is itself";
    EXPECT_EQ(harness.context.statistics.bytesRead, 0);
    EXPECT_TRUE(lookup.searchIdenticalUsingMDQuery(tree.path(QStringLiteral("sub"))).isEmpty()) << "a folder";

    EXPECT_EQ(relative(lookup.searchIdenticalUsingMDQuery(tree.path(QStringLiteral("one"))), tree),
              (QStringList{"copy", "sub/copy2"}));
}

TEST(SingleFileDuplicates, CopiesJoinTheLocationsOnceAndAreGrouped)
{
    TempTree tree;
    tree.build({"pics/one:3", "pics/two:4", "backup/one:3", "backup/two:4", "backup/other:5",
                "elsewhere/one again:3"});
    SearchRequest request;
    request.findAllDupesForSingleFiles = true;
    request.searchInFolderURLs = {tree.path(QStringLiteral("pics/one")), tree.path(QStringLiteral("pics/two")),
                                  tree.path(QStringLiteral("backup/two"))};
    SearchHarness harness;
    harness.context.singleFileScope = {tree.path(QStringLiteral("backup")), tree.path(QStringLiteral("pics"))};
    VolumeScanIndex scan(harness.context.singleFileScope, true, harness.context);
    SingleFileDuplicates lookup(request, harness.context, scan);
    EXPECT_EQ(lookup.extendedLocations(), request.searchInFolderURLs + QStringList{tree.path(QStringLiteral("backup/one"))})
        << "backup/two is a location already; pics/two is found from backup/two, and is one too";

    EXPECT_EQ(describeGroups(harness.run(request, {}), tree.path()), "backup/two pics/two | backup/one pics/one");
    request.findAllDupesForSingleFiles = false;
    EXPECT_EQ(describeGroups(harness.run(request, {}), tree.path()), "backup/two pics/two");
}

} // namespace
