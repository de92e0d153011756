#include "fileops/DeleteActions.h"

#include "fileops/ItemSafety.h"
#include "fileops/Replacement.h"
#include "fileops/Trash.h"
#include "search/Digest.h"
#include "support/FileItems.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace selfsame;

namespace
{

class DeleteActions : public ::testing::Test
{
protected:
    // A reference and one duplicate of it, in two folders under `root`.
    void makePair(const QString &root)
    {
        QDir().mkpath(root + QStringLiteral("/keep"));
        QDir().mkpath(root + QStringLiteral("/old/sub"));
        writeFile(root + QStringLiteral("/keep/ref.bin"), content);
        writeFile(root + QStringLiteral("/old/sub/dup.bin"), content);
        reference = group.add(root + QStringLiteral("/keep/ref.bin"));
        duplicate = group.add(root + QStringLiteral("/old/sub/dup.bin"));
    }
    TrashHome home;
    TempTree tree;
    ItemGroup group;
    ResultItem *reference = nullptr;
    ResultItem *duplicate = nullptr;
    const QByteArray content = patternBytes(200000, 7);
};

} // namespace

TEST(RelativePath, FromAFolderToATarget)
{
    EXPECT_EQ(relativePathFromFolder(QStringLiteral("/Users/a/Pictures/x.jpg"),
                                     QStringLiteral("/Users/a/Backup/old")),
              QStringLiteral("../../Pictures/x.jpg"));
    EXPECT_EQ(relativePathFromFolder(QStringLiteral("/a/x.jpg"), QStringLiteral("/a/")),
              QStringLiteral("x.jpg"));
    EXPECT_EQ(relativePathFromFolder(QStringLiteral("/a/b/x"), QStringLiteral("/a")), QStringLiteral("b/x"));
    EXPECT_EQ(relativePathFromFolder(QStringLiteral("/x"), QStringLiteral("/a/b")),
              QStringLiteral("../../x"));
}

TEST_F(DeleteActions, TrashWithReplacementKeepsThePutBackRecordAndPlainTrashMarksTheItem)
{
    makePair(tree.path());
    const DeleteReport replaced =
        performDeleteAction(DeleteKind::Trash, ReplaceWithSymbolicLink, reference, {duplicate});
    EXPECT_EQ(replaced.outcomes[0].status, QStringLiteral("aliased"));
    EXPECT_TRUE(duplicate->trashedURL().isEmpty()) << "a replaced item has no trashedURL";
    const QString trashed = home.path(QStringLiteral("data/Trash/files/dup.bin"));
    EXPECT_EQ(readFile(trashed), content);
    EXPECT_EQ(putBackPath(trashed), duplicate->path);
    EXPECT_EQ(readLinkText(duplicate->path), reference->path);

    ResultItem *other = group.add(tree.file(QStringLiteral("other.bin"), content));
    const DeleteReport plain = performDeleteAction(DeleteKind::Trash, ReplaceWithNone, nullptr, {other});
    EXPECT_EQ(plain.outcomes[0].status, QStringLiteral("trashed"));
    EXPECT_EQ(other->trashedURL(), home.path(QStringLiteral("data/Trash/files/other.bin")));
    const DeleteReport again = performDeleteAction(DeleteKind::Trash, ReplaceWithNone, nullptr, {other});
    EXPECT_TRUE(again.outcomes[0].skipped) << "an item in the trash is not trashed again";

    // Without a reference, a replacement mode only names the status; nothing is made.
    ResultItem *third = group.add(tree.file(QStringLiteral("third.bin"), content));
    const DeleteReport noReference =
        performDeleteAction(DeleteKind::Trash, ReplaceWithHardLink, nullptr, {third});
    EXPECT_EQ(noReference.outcomes[0].status, QStringLiteral("hard linked"));
    EXPECT_TRUE(third->trashedURL().isEmpty());
    EXPECT_FALSE(QFile::exists(third->path));
}

TEST_F(DeleteActions, AFileChangedSinceTheSearchIsNotTouched)
{
    makePair(tree.path());
    writeFile(duplicate->path, content + "more");
    DeleteReport report =
        performDeleteAction(DeleteKind::Delete, ReplaceWithHardLink, reference, {duplicate});
    EXPECT_EQ(report.removalFailures, 1);
    EXPECT_TRUE(report.outcomes[0].error.contains(QStringLiteral("changed since the search")));
    EXPECT_EQ(readFile(duplicate->path), content + "more");
    EXPECT_FALSE(duplicate->has(Deleted));

    // Same size, other modification time: still a change.
    writeFile(duplicate->path, content);
    const timespec times[2] = {{0, UTIME_OMIT}, {duplicate->modified + 5, 0}};
    utimensat(AT_FDCWD, duplicate->path.toUtf8().constData(), times, 0);
    report = performDeleteAction(DeleteKind::Trash, ReplaceWithNone, nullptr, {duplicate});
    EXPECT_EQ(report.removalFailures, 1);
    EXPECT_TRUE(QFile::exists(duplicate->path));

    // Rewritten within the second the search saw: same size and time, other bytes. Deleting
    // it for good in favour of the reference would lose them.
    const QByteArray rewritten = patternBytes(content.size(), 8);
    writeFile(duplicate->path, rewritten);
    const timespec recorded[2] = {{0, UTIME_OMIT}, {duplicate->modified, 0}};
    utimensat(AT_FDCWD, duplicate->path.toUtf8().constData(), recorded, 0);
    report = performDeleteAction(DeleteKind::Delete, ReplaceWithHardLink, reference, {duplicate});
    EXPECT_EQ(report.removalFailures, 1);
    EXPECT_EQ(readFile(duplicate->path), rewritten);

    // A changed reference stops the replacement too.
    group.items.clear();
    TempTree second;
    makePair(second.path());
    writeFile(reference->path, "edited");
    report = performDeleteAction(DeleteKind::Delete, ReplaceWithSymbolicLink, reference, {duplicate});
    EXPECT_EQ(report.removalFailures, 1);
    EXPECT_EQ(readFile(duplicate->path), content);
}

// Each of these replacements fails in the middle; the file must stay as it was.
TEST_F(DeleteActions, FailedReplacementsLeaveTheFileWhereItWas)
{
    makePair(tree.path());
    const ino_t before = statOf(duplicate->path).st_ino;

    // Reference removed after the search.
    ASSERT_TRUE(QFile::rename(reference->path, reference->path + QStringLiteral(".moved")));
    DeleteReport report =
        performDeleteAction(DeleteKind::Delete, ReplaceWithHardLink, reference, {duplicate});
    EXPECT_EQ(report.removalFailures, 1);
    QFile::rename(reference->path + QStringLiteral(".moved"), reference->path);
    recordCurrentState(*reference); // the move changed its change time: taken as found again

    // A clone on a file system that cannot clone (ext4 or tmpfs: FICLONE is refused).
    report = performDeleteAction(DeleteKind::Trash, ReplaceWithClone, reference, {duplicate});
    EXPECT_EQ(report.replacementFailures, 1);
    EXPECT_EQ(report.lastDeleted, duplicate->path);
    EXPECT_EQ(report.lastReference, reference->path);
    EXPECT_TRUE(duplicate->trashedURL().isEmpty());
    EXPECT_TRUE(QDir(home.path(QStringLiteral("data/Trash/files"))).isEmpty());
    EXPECT_EQ(statOf(duplicate->path).st_ino, before);
    EXPECT_EQ(readFile(duplicate->path), content);

    // A hard link across devices.
    MountedVolume volume(QStringLiteral("tmpfs"));
    if (volume.mount().isEmpty()) {
        ResultItem *far = group.add((writeFile(volume.path(QStringLiteral("far.bin")), content),
                                     volume.path(QStringLiteral("far.bin"))));
        report = performDeleteAction(DeleteKind::Delete, ReplaceWithHardLink, reference, {far});
        EXPECT_EQ(report.replacementFailures, 1);
        EXPECT_EQ(readFile(far->path), content);
        EXPECT_FALSE(far->has(Deleted));
    }

    // A folder that takes no new entry.
    if (setImmutable(tree.path(QStringLiteral("old/sub")), true)) {
        report = performDeleteAction(DeleteKind::Delete, ReplaceWithSymbolicLink, reference, {duplicate});
        setImmutable(tree.path(QStringLiteral("old/sub")), false);
        EXPECT_EQ(report.replacementFailures, 1);
    }
    EXPECT_EQ(statOf(duplicate->path).st_ino, before);
    EXPECT_EQ(readFile(duplicate->path), content);
    EXPECT_FALSE(duplicate->has(Deleted));
}

TEST_F(DeleteActions, CloneReplacementSharesStorageAndCarriesTheDeletedFilesMetadata)
{
    MountedVolume volume(QStringLiteral("btrfs"));
    if (const QString why = volume.mount(); !why.isEmpty()) GTEST_SKIP() << why.toStdString();
    makePair(volume.path());
    const QByteArray dup = duplicate->path.toUtf8();
    lsetxattr(dup.constData(), "user.comment", "keep me", 7, 0);
    chmod(dup.constData(), 0604);
    const timespec times[2] = {{1200000000, 5}, {1300000000, 6}};
    utimensat(AT_FDCWD, dup.constData(), times, 0);
    recordCurrentState(*duplicate);

    const DeleteReport report =
        performDeleteAction(DeleteKind::Trash, ReplaceWithClone, reference, {duplicate});
    ASSERT_EQ(report.replacementFailures + report.removalFailures, 0)
        << report.outcomes[0].error.toStdString();
    EXPECT_EQ(report.outcomes[0].status, QStringLiteral("cloned"));
    EXPECT_EQ(readFile(duplicate->path), content);
    ASSERT_TRUE(allocDigestOf(duplicate->path).has_value());
    EXPECT_EQ(allocDigestOf(duplicate->path), allocDigestOf(reference->path))
        << "the clone shares the reference's extents";
    char value[16] = {};
    EXPECT_EQ(lgetxattr(dup.constData(), "user.comment", value, sizeof value), 7);
    struct stat st {
    };
    lstat(dup.constData(), &st);
    EXPECT_EQ(st.st_mode & 07777, 0604u);
    EXPECT_EQ(st.st_mtim.tv_sec, 1300000000);
    EXPECT_EQ(st.st_mtim.tv_nsec, 6);
    EXPECT_EQ(readFile(volume.path(QStringLiteral(".Trash-%1/files/dup.bin").arg(geteuid()))), content);
}
