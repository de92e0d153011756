#include "search/Enumerator.h"
#include "search/NamePatterns.h"
#include "search/RunContext.h"
#include "support/TempTree.h"

#include <gtest/gtest.h>

#include <functional>
#include <sys/stat.h>
#include <unistd.h>

using namespace selfsame;

namespace {

// What the enumeration records below the tree's root, sorted: folders end in "/", links in "@".
std::string recorded(const TempTree &tree, SearchRequest request, uid_t user = geteuid())
{
    request.searchInFolderURLs = {tree.path()};
    std::atomic<int> state{Running};
    const EnumerationResult result = Enumerator(request, state, user, [](qint64) {}).run();
    QStringList names;
    for (std::size_t i = 0; i < result.entries.size(); ++i) {
        const FileEntry &e = result.entries[i];
        names.append(result.entries.qPath(e).mid(tree.path().size() + 1));
        if (e.has(IsFolder) || e.has(IsSymlink))
            names.last() += e.has(IsFolder) ? u'/' : u'@';
    }
    names.sort();
    return names.join(u' ').toStdString();
}

using Configure = std::function<void(SearchRequest &)>;
void expectRecorded(const TempTree &tree, std::initializer_list<std::pair<Configure, const char *>> cases)
{
    for (const auto &[configure, expected] : cases) {
        SearchRequest request;
        configure(request);
        EXPECT_EQ(recorded(tree, request), expected);
    }
}

TEST(Enumerator, ExtensionModesCompareLowerCasedExtensions)
{
    TempTree tree;
    tree.build({"A.JPG", "a.jpeg", "b.txt", "noext", "sub/c.jpg"});
    const QSet<QString> jpg{QStringLiteral("jpg")};
    expectRecorded(tree, {
        {[&](SearchRequest &r) { r.extensions = jpg; }, "A.JPG a.jpeg b.txt noext sub/c.jpg"},
        // "sub" fails the extension test but is still entered.
        {[&](SearchRequest &r) { r.extensions = jpg, r.extensionsMode = ExtensionsMode::Only; },
         "A.JPG sub/c.jpg"},
        {[&](SearchRequest &r) { r.extensions = jpg, r.extensionsMode = ExtensionsMode::AllBut; },
         "a.jpeg b.txt noext"},
    });
}

TEST(Enumerator, SkipExpressionsDropItemsAndStopDescent)
{
    TempTree tree;
    tree.build({"keep.txt", "x.TMP", "Cache/inner.txt", "other/inner.txt"});
    const auto skip = *compileSkipPatterns({QStringLiteral("*.tmp"), QStringLiteral("cache")}, nullptr);
    expectRecorded(tree, {
        {[&](SearchRequest &r) { r.skipFilenameRegexes = skip; }, "keep.txt other/inner.txt"},
        {[&](SearchRequest &r) { r.skipFilenameRegexes = skip, r.compareFolders = true; },
         "keep.txt other/ other/inner.txt"},
    });
}

TEST(Enumerator, SizeLimitsApplyToFilesAndAMaximumBelowTheMinimumMeansNone)
{
    TempTree tree;
    for (int size : {0, 10, 1000, 10000})
        tree.file(QStringLiteral("s%1").arg(size), QByteArray(size, 'x'));
    expectRecorded(tree, {
        {[](SearchRequest &r) { r.minFileSize = 100, r.maxFileSize = 50; }, "s1000 s10000"},
        {[](SearchRequest &r) { r.minFileSize = 100, r.maxFileSize = 5000; }, "s1000"},
        {[](SearchRequest &r) { r.minFileSize = 100, r.filterFileSize = false; }, "s0 s10 s1000 s10000"},
    });
}

TEST(Enumerator, DepthLimitCountsLevelsBelowTheLocation)
{
    TempTree tree;
    tree.build({"top.txt", "d1/mid.txt", "d1/d2/deep.txt"});
    expectRecorded(tree, {
        {[](SearchRequest &r) { r.limitFolderDepth = -1; }, "d1/d2/deep.txt d1/mid.txt top.txt"},
        {[](SearchRequest &r) { r.limitFolderDepth = 0; }, "top.txt"},
        {[](SearchRequest &r) { r.limitFolderDepth = 1; }, "d1/mid.txt top.txt"},
        {[](SearchRequest &r) { r.limitFolderDepth = 0, r.compareFolders = true; }, "d1/ top.txt"},
    });
}

TEST(Enumerator, HiddenItemsAndPackageContentsAreSkippedTogether)
{
    TempTree tree;
    tree.build({".hidden.txt", ".hid/f.txt", "X.app/f.txt", "plain.txt"});
    expectRecorded(tree, {
        {[](SearchRequest &r) { r.skipHiddenFiles = true; }, "plain.txt"},
        {[](SearchRequest &r) { r.skipHiddenFiles = false; }, ".hid/f.txt .hidden.txt X.app/f.txt plain.txt"},
        // Comparing folders enters packages; their contents are dropped after the comparison.
        {[](SearchRequest &r) { r.compareFolders = true; }, "X.app/ X.app/f.txt plain.txt"},
    });
}

TEST(Enumerator, LinksAndFoldersOnlyWithFolderComparisonAndAliasesNever)
{
    TempTree tree;
    tree.build({"f.txt", "sub/g.txt", "link@f.txt"});
    tree.file(QStringLiteral("alias.desktop"),
              "[Desktop Entry]\nType=Link\nURL=file://" + tree.path().toUtf8() + "/f.txt\n");
    tree.file(QStringLiteral("app.desktop"), "[Desktop Entry]\nType=Application\nExec=true\n");
    ASSERT_EQ(mkfifo(tree.stdPath(QStringLiteral("pipe")).c_str(), 0600), 0);
    expectRecorded(tree, {
        {[](SearchRequest &) {}, "app.desktop f.txt sub/g.txt"},
        {[](SearchRequest &r) { r.compareFolders = true; }, "app.desktop f.txt link@ sub/ sub/g.txt"},
    });
}

TEST(Enumerator, ItemsOfOthersInAStickyFolderCannotBeDeleted)
{
    TempTree tree;
    tree.build({"sticky/f.txt"});
    ASSERT_EQ(chmod(tree.stdPath(QStringLiteral("sticky")).c_str(), 01777), 0);
    const uid_t someoneElse = geteuid() + 1; // owns neither the file nor its folder
    SearchRequest request;
    request.ignoreOtherOwner = false;
    EXPECT_EQ(recorded(tree, request), "sticky/f.txt");
    EXPECT_EQ(recorded(tree, request, someoneElse), "");
    request.ignoreNonWritable = false;
    EXPECT_EQ(recorded(tree, request, someoneElse), "sticky/f.txt");
    request.ignoreOtherOwner = true;
    EXPECT_EQ(recorded(tree, request, someoneElse), "");
}

TEST(Enumerator, FilesInAFolderWithoutWritePermissionAreSkippedAsNonWritable)
{
    if (geteuid() == 0)
        GTEST_SKIP() << "running as root: the access check passes whatever the permissions";
    TempTree tree;
    tree.build({"ro/f.txt", "rw/f.txt"});
    ASSERT_EQ(chmod(tree.stdPath(QStringLiteral("ro")).c_str(), 0555), 0);
    expectRecorded(tree, {
        {[](SearchRequest &) {}, "rw/f.txt"},
        {[](SearchRequest &r) { r.ignoreNonWritable = false; }, "ro/f.txt rw/f.txt"},
    });
    chmod(tree.stdPath(QStringLiteral("ro")).c_str(), 0755);
}

TEST(Enumerator, AnotherOwnersFolderIsNotEnteredWhenComparingFolders)
{
    if (geteuid() != 0)
        GTEST_SKIP() << "not running as root: cannot give a folder to another owner";
    TempTree tree;
    tree.build({"theirs/f.txt", "mine/f.txt"});
    ASSERT_EQ(chown(tree.stdPath(QStringLiteral("theirs")).c_str(), 12345, 12345), 0);
    expectRecorded(tree, {
        {[](SearchRequest &) {}, "mine/f.txt theirs/f.txt"},
        {[](SearchRequest &r) { r.compareFolders = true; }, "mine/ mine/f.txt"},
    });
}

} // namespace
