#include "search/Digest.h"
#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

using namespace selfsame;

namespace {

TEST(ContentSearch, EqualContentGroupsAreNumberedByDescendingSize)
{
    TempTree tree;
    tree.build({"s1a:1", "s1b:1", "s3a:3", "s3b:3", "s2a:2", "s2b:2", "unique:4"});
    tree.file(QStringLiteral("other2"), patternBytes(2000, 99)); // a group's size, other bytes
    tree.file(QStringLiteral("e1"), {});
    tree.file(QStringLiteral("e2"), {});
    QByteArray big = patternBytes(200000, 5); // first and last pages equal, middles not
    tree.file(QStringLiteral("big1"), big);
    big[100000] = char(~big[100000]);
    tree.file(QStringLiteral("big2"), big);
    SearchHarness harness;
    SearchRequest request;
    request.filterFileSize = false;
    const QList<ResultItem> items = harness.run(request, tree.path());
    EXPECT_EQ(describeGroups(items, tree.path()), "s3a s3b | s2a s2b | s1a s1b");
    for (const ResultItem &item : items) {
        EXPECT_EQ(item.group, 3 - item.size / 1000) << item.path.toStdString();
        EXPECT_EQ(item.dupes, 2);
    }
}

TEST(ContentSearch, HardLinksAreGroupedUnlessClonesAreIgnored)
{
    TempTree tree;
    tree.build({"f.bin:20"});
    ReadBuffer buffer;
    std::vector<qint64> storage;
    if (!computeDigest(tree.stdPath(QStringLiteral("f.bin")).c_str(), -1, false, buffer, storage).allocDigest)
        GTEST_SKIP() << "the file system of " << tree.stdPath() << " reports no extent map";
    tree.hardLink(QStringLiteral("link.bin"), QStringLiteral("f.bin"));
    SearchRequest request;
    EXPECT_EQ(searchGroups(tree.path(), request), "f.bin link.bin");
    request.ignoreClones = true;
    EXPECT_EQ(searchGroups(tree.path(), request), "");
    tree.build({"copy.bin:20"});
    EXPECT_EQ(searchGroups(tree.path(), request), "copy.bin f.bin link.bin");
}

TEST(ContentSearch, FileReachedFromOverlappingLocationsIsListedOnce)
{
    TempTree tree;
    tree.build({"g:1", "sub/h:1", "sub/f:2", "sub/deep/k:3", "k2:3"});
    SearchRequest request;
    request.searchInFolderURLs = {tree.path(), tree.path(QStringLiteral("sub")),
                                  tree.path(QStringLiteral("sub/deep"))}; // "deep" is reached thrice
    EXPECT_EQ(searchGroups(tree.path(), request), "k2 sub/deep/k | g sub/h");
}

TEST(ContentSearch, DuplicateFoldersReplaceTheGroupsOfTheirContents)
{
    TempTree tree;
    tree.build({"A/f1:1", "A/f2:2", "B/f1:1", "B/f2:2", "c1:1", "c2:1"});
    SearchHarness harness;
    SearchRequest request;
    request.compareFolders = true;
    const QList<ResultItem> items = harness.run(request, tree.path());
    EXPECT_EQ(describeGroups(items, tree.path()), "A/ B/ | c1 c2");
    for (const ResultItem &item : items) {
        const bool folder = item.has(IsFolder);
        EXPECT_EQ(item.group, folder ? 0 : 1); // renumbered after the group of f2 vanished
        EXPECT_EQ(item.dupes, 2);
        EXPECT_EQ(item.size, folder ? 3000 : 1000);
        EXPECT_EQ(item.itemCount(), folder ? 2 : 0);
    }
}

TEST(ContentSearch, FoldersMatchByChildNamesAndContents)
{
    const struct {
        std::initializer_list<const char *> specs;
        bool skipHidden;
        const char *expected;
    } cases[] = {
        {{"A/f1:1", "A/f2:2", "B/f1:1", "B/f3:2"}, true, "A/f2 B/f3 | A/f1 B/f1"},
        {{"A/f1:1", "A/E/", "B/f1:1", "B/E/"}, true, "A/ B/"},
        {{"A/f1:1", "A/E/", "B/f1:1", "B/F/"}, true, "A/f1 B/f1"},
        {{"A/f1:1", "A/l@x", "B/f1:1", "B/l@x"}, true, "A/ B/"},
        {{"A/f1:1", "A/l@x", "B/f1:1", "B/l@y"}, true, "A/f1 B/f1"},
        {{"A/f1:1", "A/s/f2:2", "B/f1:1", "B/s/f2:2", "f2:2"}, true, "A/ B/"},
        {{"a/f:1", "c/f:1", "ab/g:2", "h:2"}, true, "ab/g h | a/ c/"}, // "ab" is not inside "a"
        {{"X.app/f:1", "f:1"}, true, ""}, // package contents count as hidden
        {{"X.app/f:1", "f:1"}, false, "X.app/f f"},
    };
    for (const auto &c : cases) {
        TempTree tree;
        tree.build(c.specs);
        SearchRequest request;
        request.compareFolders = true;
        request.skipHiddenFiles = c.skipHidden;
        EXPECT_EQ(searchGroups(tree.path(), request), c.expected) << *c.specs.begin();
    }
}

} // namespace
