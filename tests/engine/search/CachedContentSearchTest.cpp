#include "search/Digest.h"
#include "search/DigestCache.h"
#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

#include <cstring>
#include <sys/xattr.h>

using namespace selfsame;

namespace {

// Every grouped item as "group path digest", so that two searches compare in full.
std::string describeItems(const QList<ResultItem> &items, const QString &root)
{
    QStringList lines;
    for (const ResultItem &item : items)
        lines.append(QStringLiteral("%1 %2 %3 %4 %5 [%6]")
                         .arg(item.group)
                         .arg(item.path.mid(root.size() + 1))
                         .arg(QString::fromLatin1(digestToHex(item.digest).left(16)))
                         .arg(item.has(HasAllocDigest))
                         .arg(QString::fromLatin1(QByteArray(reinterpret_cast<const char *>(item.allocDigest.data()),
                                                             qsizetype(item.allocDigest.size()))
                                                      .toHex()
                                                      .left(16)))
                         .arg(item.tagList().join(u',')));
    lines.sort();
    return lines.join(u'\n').toStdString();
}

struct CachedSearch {
    TempTree cacheFolder;
    DigestCache cache{cacheFolder.path(QStringLiteral("digests.sqlite")), {.settleNs = 0}};
    SearchStatistics statistics;

    std::string run(const QString &root, SearchRequest request = {})
    {
        SearchHarness harness;
        harness.context.digestCache = &cache;
        const std::string described = describeItems(harness.run(request, root), root);
        cache.flush();
        statistics = harness.context.statistics;
        return described;
    }
};

std::string uncached(const QString &root, const SearchRequest &request = {})
{
    SearchHarness harness;
    return describeItems(harness.run(request, root), root);
}

// Files of every kind the hasher treats apart: small ones compared whole, large ones told
// apart by their first and last bytes or only in the middle, hard links, MP4 headers.
void buildMixedTree(TempTree &tree)
{
    tree.build({"small/a:3", "small/b:3", "small/c:5", "small/lone:7"});
    tree.file(QStringLiteral("small/d"), patternBytes(3000, 42)); // read whole, needs no digest
    QByteArray big = patternBytes(300000, 1);
    tree.file(QStringLiteral("big/one"), big);
    tree.file(QStringLiteral("big/two"), big);
    big[150000] = char(~big[150000]); // same first and last bytes, other middle
    tree.file(QStringLiteral("big/middle"), big);
    tree.file(QStringLiteral("big/other"), patternBytes(300000, 2));
    tree.file(QStringLiteral("big/third"), patternBytes(300000, 3));
    tree.hardLink(QStringLiteral("big/link"), QStringLiteral("big/third"));
    QByteArray clip = patternBytes(40000, 4);
    tree.file(QStringLiteral("clips/a.mp4"), clip);
    clip[10] = 'x';
    tree.file(QStringLiteral("clips/b.MP4"), clip);
}

TEST(CachedContentSearch, ASecondSearchReadsNothingAndFindsTheSameGroups)
{
    TempTree tree;
    buildMixedTree(tree);
    for (const bool ignoreMp4Header : {false, true}) {
        SearchRequest request;
        request.ignoreMp4Header = ignoreMp4Header;
        const std::string expected = uncached(tree.path(), request);
        CachedSearch search;
        EXPECT_EQ(search.run(tree.path(), request), expected);
        EXPECT_GT(search.statistics.bytesRead, 0);
        EXPECT_EQ(search.run(tree.path(), request), expected) << "from the cache";
        EXPECT_EQ(search.statistics.bytesRead, 0);
        EXPECT_GT(search.statistics.filesFromCache, 5);
    }
}

TEST(CachedContentSearch, ChangedAndNewFilesAreReadAgain)
{
    TempTree tree;
    buildMixedTree(tree);
    CachedSearch search;
    search.run(tree.path());

    // A copy rewritten with other bytes of its size; new copies of a file known only by its
    // sample, of one known by its digest, and of one that was alone in its size.
    tree.file(QStringLiteral("small/b"), patternBytes(3000, 9));
    tree.file(QStringLiteral("big/other copy"), patternBytes(300000, 2));
    tree.file(QStringLiteral("big/one copy"), patternBytes(300000, 1));
    tree.file(QStringLiteral("small/lone copy"), patternBytes(7000, 7));
    tree.file(QStringLiteral("small/d copy"), patternBytes(3000, 42)); // of a file known by its fingerprint
    QByteArray middle = patternBytes(300000, 1);
    middle[150000] = char(~middle[150000]);
    middle[200000] = 'y';
    tree.file(QStringLiteral("big/middle too"), middle); // agrees with "middle" in its first and last bytes

    const std::string expected = uncached(tree.path());
    EXPECT_EQ(search.run(tree.path()), expected);
    EXPECT_GT(search.statistics.filesFromCache, 0);
    EXPECT_EQ(search.run(tree.path()), expected);
    EXPECT_EQ(search.statistics.bytesRead, 0);
}

TEST(CachedContentSearch, FolderComparisonAndPlainSearchesShareTheCache)
{
    TempTree tree;
    buildMixedTree(tree);
    tree.build({"copy/a:3", "copy/c:5", "orig/a:3", "orig/c:5"});
    SearchRequest folders;
    folders.compareFolders = true;
    const std::string plainExpected = uncached(tree.path());
    const std::string foldersExpected = uncached(tree.path(), folders);
    CachedSearch search;
    EXPECT_EQ(search.run(tree.path(), folders), foldersExpected);
    EXPECT_EQ(search.run(tree.path()), plainExpected);
    EXPECT_EQ(search.run(tree.path(), folders), foldersExpected);
    EXPECT_EQ(search.run(tree.path()), plainExpected);
    EXPECT_EQ(search.statistics.bytesRead, 0);
}

TEST(CachedContentSearch, TagsAndSharedStorageAreThoseOfTheFilesNow)
{
    TempTree tree;
    tree.build({"a:3", "b:3", "c:4", "d:4"});
    tree.hardLink(QStringLiteral("a link"), QStringLiteral("a"));
    auto tag = [&](const char *name, const char *tags) {
        return setxattr(tree.stdPath(QString::fromLatin1(name)).c_str(), "user.xdg.tags", tags, std::strlen(tags), 0) == 0;
    };
    if (!tag("a", "Red,holiday"))
        GTEST_SKIP() << "the file system of " << tree.stdPath() << " keeps no user attributes";
    CachedSearch search;
    EXPECT_EQ(search.run(tree.path()), uncached(tree.path()));
    EXPECT_EQ(search.run(tree.path()), uncached(tree.path())) << "from the cache";
    EXPECT_EQ(search.statistics.bytesRead, 0);

    // New tags change the files' keys: the next search sees them.
    ASSERT_TRUE(tag("a", "Blue") && tag("c", "Green"));
    EXPECT_EQ(search.run(tree.path()), uncached(tree.path()));
    EXPECT_EQ(search.run(tree.path()), uncached(tree.path()));
    EXPECT_NE(uncached(tree.path()).find("[Green]"), std::string::npos);
}

TEST(CachedContentSearch, FilesChangedJustBeforeTheSearchAreNotCached)
{
    TempTree tree;
    tree.build({"a:3", "b:3"});
    TempTree cacheFolder;
    DigestCache cache(cacheFolder.path(QStringLiteral("digests.sqlite"))); // the usual settling time
    for (int run = 0; run < 2; ++run) {
        SearchHarness harness;
        harness.context.digestCache = &cache;
        EXPECT_EQ(describeGroups(harness.run({}, tree.path()), tree.path()), "a b");
        cache.flush();
        EXPECT_EQ(harness.context.statistics.filesFromCache, 0);
        EXPECT_GT(harness.context.statistics.bytesRead, 0);
    }
}

} // namespace
