// No action may remove the last copy of a content: each step first checks the file it removes
// and the copy that is kept.

#include "fileops/DeleteActions.h"
#include "fileops/ItemSafety.h"
#include "fileops/Replacement.h"
#include "support/FileItems.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QDir>
#include <QFile>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace selfsame;

namespace
{

class KeptCopy : public ::testing::Test
{
protected:
    // A file as a search records it, claimed to have the content `digestSeed` stands for.
    ResultItem *found(const QString &path, int digestSeed = 1)
    {
        ResultItem *item = group.add(path);
        item->digest.fill(std::uint8_t(digestSeed));
        item->set(HasDigest);
        return item;
    }
    bool exists(const QString &path) const
    {
        struct stat st {
        };
        return lstat(path.toUtf8().constData(), &st) == 0;
    }
    TrashHome home;
    TempTree tree;
    ItemGroup group;
    const QByteArray content = patternBytes(50000, 11);
};

} // namespace

TEST_F(KeptCopy, OneFileReachedThroughTwoPathsIsNeverItsOwnCopy)
{
    tree.file(QStringLiteral("A/sub/only.bin"), content);
    tree.symlink(QStringLiteral("Alink"), tree.path(QStringLiteral("A")));
    ResultItem *real = found(tree.path(QStringLiteral("A/sub/only.bin")));
    ResultItem *linked = found(tree.path(QStringLiteral("Alink/sub/only.bin")));

    for (const auto &[kind, mode] :
         {std::pair{DeleteKind::Delete, ReplaceWithNone}, std::pair{DeleteKind::Trash, ReplaceWithNone},
          std::pair{DeleteKind::Delete, ReplaceWithSymbolicLink},
          std::pair{DeleteKind::Trash, ReplaceWithRelativeSymbolicLink},
          std::pair{DeleteKind::Delete, ReplaceWithHardLink}}) {
        const DeleteReport report = performDeleteAction(kind, mode, real, {linked});
        EXPECT_EQ(report.refused, QStringList{linked->path}) << "mode " << mode;
        EXPECT_TRUE(report.outcomes[0].error.contains(QStringLiteral("one file reached through two paths")))
            << report.outcomes[0].error.toStdString();
        EXPECT_EQ(readFile(real->path), content);
        EXPECT_TRUE(S_ISREG(statOf(real->path).st_mode)) << "never a link to itself";
    }
    // The same from the top list, where the kept copy is whatever else the group holds.
    const DeleteReport fromTop =
        performDeleteAction(DeleteKind::Delete, ReplaceWithNone, nullptr, {real},
                            [&](const ResultItem &i) { return group.duplicatesFor(i); });
    EXPECT_EQ(fromTop.refused.size(), 1);
    EXPECT_EQ(readFile(real->path), content);
}

TEST_F(KeptCopy, HardLinksAreCopiesOneOfWhichMayGo)
{
    tree.file(QStringLiteral("keep.bin"), content);
    tree.hardLink(QStringLiteral("a.bin"), QStringLiteral("keep.bin"));
    tree.hardLink(QStringLiteral("b.bin"), QStringLiteral("keep.bin"));
    tree.file(QStringLiteral("c.bin"), content);
    tree.file(QStringLiteral("d.bin"), content);
    ResultItem *keep = found(tree.path(QStringLiteral("keep.bin")));
    ResultItem *a = found(tree.path(QStringLiteral("a.bin")));
    ResultItem *b = found(tree.path(QStringLiteral("b.bin")));
    // Removing a moves the change time of b and keep: our own step must not make them look changed.
    const DeleteReport removed = performDeleteAction(DeleteKind::Delete, ReplaceWithNone, keep, {a, b});
    EXPECT_TRUE(removed.refused.isEmpty()) << removed.outcomes[0].error.toStdString();
    EXPECT_FALSE(exists(a->path));
    EXPECT_FALSE(exists(b->path));
    EXPECT_EQ(readFile(keep->path), content);

    // Each hard link made to keep moves its change time too.
    ResultItem *c = found(tree.path(QStringLiteral("c.bin")));
    ResultItem *d = found(tree.path(QStringLiteral("d.bin")));
    const DeleteReport linked = performDeleteAction(DeleteKind::Delete, ReplaceWithHardLink, keep, {c, d});
    EXPECT_EQ(linked.removalFailures + linked.replacementFailures, 0)
        << linked.outcomes[1].error.toStdString();
    EXPECT_EQ(statOf(d->path).st_ino, statOf(keep->path).st_ino);
    EXPECT_EQ(statOf(keep->path).st_nlink, 3u);
}

TEST_F(KeptCopy, AChangedKeptCopyOrAFileGivenItsOldTimeBackIsLeftAlone)
{
    tree.file(QStringLiteral("keep.bin"), content);
    tree.file(QStringLiteral("dup.bin"), content);
    ResultItem *keep = found(tree.path(QStringLiteral("keep.bin")));
    ResultItem *dup = found(tree.path(QStringLiteral("dup.bin")));

    // The kept copy is written to after the search: the old content lives only in dup now.
    const QByteArray edited = patternBytes(content.size(), 12);
    writeFile(keep->path, edited);
    DeleteReport report = performDeleteAction(DeleteKind::Delete, ReplaceWithNone, keep, {dup});
    EXPECT_EQ(report.refused, QStringList{dup->path});
    EXPECT_TRUE(report.outcomes[0].error.contains(QStringLiteral("kept copy")))
        << report.outcomes[0].error.toStdString();
    EXPECT_EQ(readFile(dup->path), content);
    report = performDeleteAction(DeleteKind::Trash, ReplaceWithNone, keep, {dup});
    EXPECT_EQ(report.refused.size(), 1);
    EXPECT_EQ(readFile(dup->path), content);

    // The selected copy is rewritten and its modification time set back: its change time tells.
    writeFile(keep->path, content);
    keep = found(keep->path);
    writeFile(dup->path, edited);
    const timespec times[2] = {{0, UTIME_OMIT}, {dup->modified, dup->modifiedNsec}};
    ASSERT_EQ(utimensat(AT_FDCWD, dup->path.toUtf8().constData(), times, 0), 0);
    report = performDeleteAction(DeleteKind::Delete, ReplaceWithNone, keep, {dup});
    EXPECT_EQ(report.refused.size(), 1);
    EXPECT_TRUE(report.outcomes[0].error.contains(QStringLiteral("change time")))
        << report.outcomes[0].error.toStdString();
    EXPECT_EQ(readFile(dup->path), edited);
}

TEST_F(KeptCopy, AnActionReachesOnlyTheFileTheSearchSawWhateverItsName)
{
    // Two names that a lossy conversion would confuse: the item's path now names another file.
    const QString seen = tree.file(QStringLiteral("u-seen.bin"), content);
    const QString lookalike = tree.file(QStringLiteral("u-lookalike.bin"), patternBytes(content.size(), 13));
    tree.file(QStringLiteral("keep.bin"), content);
    ResultItem *keep = found(tree.path(QStringLiteral("keep.bin")));
    ResultItem *item = found(seen);
    item->path = lookalike;
    for (const DeleteKind kind : {DeleteKind::Delete, DeleteKind::Trash}) {
        const DeleteReport report = performDeleteAction(kind, ReplaceWithNone, keep, {item});
        EXPECT_EQ(report.refused.size(), 1);
        EXPECT_TRUE(report.outcomes[0].error.contains(QStringLiteral("no longer the file the search found")));
    }
    EXPECT_TRUE(exists(lookalike));
    EXPECT_TRUE(exists(seen));
}

TEST_F(KeptCopy, BytesAreComparedForADeletionAndForATrashOntoAnotherDevice)
{
    // Recorded as equal, though their bytes differ: as if rewritten within the recorded times.
    tree.file(QStringLiteral("keep.bin"), content);
    tree.file(QStringLiteral("trashed.bin"), patternBytes(content.size(), 14));
    tree.file(QStringLiteral("deleted.bin"), patternBytes(content.size(), 15));
    ResultItem *keep = found(tree.path(QStringLiteral("keep.bin")));
    ResultItem *deleted = found(tree.path(QStringLiteral("deleted.bin")));
    DeleteReport report = performDeleteAction(DeleteKind::Delete, ReplaceWithNone, keep, {deleted});
    EXPECT_TRUE(report.outcomes[0].error.contains(QStringLiteral("no longer has the content")));
    EXPECT_TRUE(exists(deleted->path));
    // Copies the search did not find equal (another mode) are not compared: the user chose.
    deleted->set(HasDigest, false);
    report = performDeleteAction(DeleteKind::Delete, ReplaceWithNone, keep, {deleted});
    EXPECT_TRUE(report.refused.isEmpty());
    EXPECT_FALSE(exists(deleted->path));
    // A trash on the kept copy's own device can be put back: no comparison.
    ResultItem *trashed = found(tree.path(QStringLiteral("trashed.bin")));
    report = performDeleteAction(DeleteKind::Trash, ReplaceWithNone, keep, {trashed});
    EXPECT_TRUE(report.refused.isEmpty());

    MountedVolume other(QStringLiteral("tmpfs"));
    if (const QString why = other.mount(); !why.isEmpty()) GTEST_SKIP() << why.toStdString();
    writeFile(other.path(QStringLiteral("keep.bin")), content);
    ResultItem *far = found(other.path(QStringLiteral("keep.bin")));
    tree.file(QStringLiteral("near.bin"), patternBytes(content.size(), 16));
    ResultItem *near = found(tree.path(QStringLiteral("near.bin")));
    report = performDeleteAction(DeleteKind::Trash, ReplaceWithNone, far, {near});
    EXPECT_TRUE(report.outcomes[0].error.contains(QStringLiteral("no longer has the content")));
    EXPECT_TRUE(exists(near->path));
}

TEST_F(KeptCopy, FromTheTopListAnyUnchangedOtherCopyIsTheKeptOne)
{
    tree.file(QStringLiteral("a.bin"), content);
    tree.file(QStringLiteral("b.bin"), content);
    tree.file(QStringLiteral("c.bin"), content);
    ResultItem *a = found(tree.path(QStringLiteral("a.bin")));
    ResultItem *b = found(tree.path(QStringLiteral("b.bin")));
    ResultItem *c = found(tree.path(QStringLiteral("c.bin")));
    const DuplicatesFor duplicatesFor = [&](const ResultItem &i) { return group.duplicatesFor(i); };

    writeFile(b->path, patternBytes(content.size(), 17)); // b no longer holds the content
    DeleteReport report =
        performDeleteAction(DeleteKind::Delete, ReplaceWithNone, nullptr, {a}, duplicatesFor);
    EXPECT_TRUE(report.refused.isEmpty()) << "c still holds it";
    EXPECT_FALSE(exists(a->path));

    writeFile(c->path, patternBytes(content.size(), 18));
    tree.file(QStringLiteral("d.bin"), content);
    ResultItem *d = found(tree.path(QStringLiteral("d.bin")));
    report = performDeleteAction(DeleteKind::Delete, ReplaceWithNone, nullptr, {d}, duplicatesFor);
    EXPECT_EQ(report.refused, QStringList{d->path}) << "a is gone, b and c changed: d is the last copy";
    EXPECT_TRUE(exists(d->path));
}
