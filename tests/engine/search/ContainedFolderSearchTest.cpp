#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace {

// The contained groups as "contained/ in container/", the other groups as describeGroups
// gives them, in group order.
std::string searchContained(const QString &root, SearchRequest request)
{
    request.containedFolders = true;
    SearchHarness harness;
    const QList<ResultItem> items = harness.run(request, root);
    QList<ResultItem> others;
    std::string contained;
    for (qsizetype i = 0; i < items.size(); ++i) {
        if (!items[i].has(ContainedFolder) && !items[i].has(ContainingFolder)) {
            others.append(items[i]);
            continue;
        }
        // The contained folder comes first, its container right after it in the same group.
        EXPECT_TRUE(items[i].has(ContainedFolder));
        EXPECT_TRUE(i + 1 < items.size() && items[i + 1].has(ContainingFolder) &&
                    items[i + 1].group == items[i].group && items[i].dupes == 2);
        if (i + 1 >= items.size())
            break;
        contained += (contained.empty() ? "" : ", ") + items[i].path.mid(root.size() + 1).toStdString() + "/ in " +
                     items[i + 1].path.mid(root.size() + 1).toStdString() + "/";
        ++i;
    }
    const std::string rest = describeGroups(others, root);
    return contained.empty() || rest.empty() ? contained + rest : contained + " + " + rest;
}

TEST(ContainedFolderSearch, FindsABackupReorganisedUnderOtherNames)
{
    TempTree tree;
    tree.build({"old/a:1", "old/b:2", "old/trip/c:3", "new/2019/one:1", "new/misc/deep/two:2", "new/three:3",
                "new/four:4", "single:5"});
    SearchHarness harness;
    SearchRequest request;
    request.containedFolders = true;
    const QList<ResultItem> items = harness.run(request, tree.path());
    // The groups of the contained folder's files give way to the folder's own group.
    ASSERT_EQ(items.size(), 2);
    EXPECT_EQ(items[0].path, tree.path(QStringLiteral("old")));
    EXPECT_EQ(items[1].path, tree.path(QStringLiteral("new")));
    EXPECT_TRUE(items[0].has(IsFolder) && items[0].has(ContainedFolder) && !items[0].has(HasDigest));
    EXPECT_TRUE(items[1].has(IsFolder) && items[1].has(ContainingFolder));
    EXPECT_EQ(items[0].size, 6000);
    EXPECT_EQ(items[0].itemCount(), 3);
    EXPECT_EQ(items[1].size, 10000);
    EXPECT_EQ(items[0].group, items[1].group);
    EXPECT_GT(items[0].inode, 0u);

    request.containedFolders = false; // the plain search is unchanged
    EXPECT_EQ(searchGroups(tree.path(), request),
              "new/three old/trip/c | new/misc/deep/two old/b | new/2019/one old/a");
}

TEST(ContainedFolderSearch, AFileWithoutACopyOrAnythingLeftOutKeepsAFolderOut)
{
    const struct {
        std::initializer_list<const char *> specs;
        bool skipHidden;
        const char *expected;
    } cases[] = {
        {{"old/a:1", "old/u:9", "new/a:1", "new/u:8"}, true, "new/a old/a"},      // a size of its own
        {{"old/a:1", "old/.hidden:2", "new/a:1", "new/h:2"}, true, "new/a old/a"}, // not searched
        {{"old/a:1", "old/.hidden:2", "new/a:1", "new/h:2", "new/more:4"}, false, "old/ in new/"},
        {{"old/a:1", "old/l@a", "new/a:1", "new/u:8"}, true, "new/a old/a"},       // a link is not compared
        {{"p/a:1", "p/sub/b:1"}, true, "p/a p/sub/b"},                             // the copy is around it
        {{"a/f:1", "b/f:1", "b/g:2", "c/f:1", "c/g:2", "c/h:3"}, true, "a/ in c/, b/ in c/"},
    };
    for (const auto &c : cases) {
        TempTree tree;
        tree.build(c.specs);
        SearchRequest request;
        request.skipHiddenFiles = c.skipHidden;
        EXPECT_EQ(searchContained(tree.path(), request), c.expected) << *c.specs.begin();
    }

    TempTree sameSize; // digested, but of other bytes than the file of its size
    sameSize.build({"old/a:1", "new/a:1"});
    sameSize.file(QStringLiteral("old/d"), patternBytes(2000, 77));
    sameSize.file(QStringLiteral("new/d"), patternBytes(2000, 78));
    EXPECT_EQ(searchContained(sameSize.path(), {}), "new/a old/a");

    TempTree emptyFile; // an empty file, filtered out or not, holds nothing to lose
    emptyFile.build({"old/a:1", "new/a:1", "new/b:2"});
    emptyFile.file(QStringLiteral("old/.empty"), {});
    emptyFile.file(QStringLiteral("old/empty"), {});
    EXPECT_EQ(searchContained(emptyFile.path(), {}), "old/ in new/");
}

TEST(ContainedFolderSearch, EqualFoldersStayInTheirOwnGroup)
{
    TempTree tree;
    tree.build({"A/f1:1", "A/f2:2", "B/f1:1", "B/f2:2", "C/x/f1:1", "C/y:2", "C/z:3"});
    SearchRequest request;
    request.compareFolders = true;
    EXPECT_EQ(searchContained(tree.path(), request), "C/x/ in A/ + A/ B/");
    // Without folder comparison, one of the equal folders is the other's copy.
    EXPECT_EQ(searchContained(tree.path(), {}), "A/ in B/, C/x/ in B/ + B/f2 C/y");
}

} // namespace
