#include "fileops/Trash.h"

#include "fileops/PutBack.h"
#include "support/FileItems.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <cstring>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace selfsame;

namespace
{

// Every test gets its own home and data folder: the user's real trash is never touched.
class Trash : public ::testing::Test
{
protected:
    TrashHome home;
    TempTree files;
    const QString trash = home.trash();
};

} // namespace

TEST_F(Trash, MovesToTheHomeTrashWithARecordAndPutsBackExactly)
{
    const QString path = files.file(QStringLiteral("a b%/naïve name.txt"), "contents");
    const timespec times[2] = {{1000000000, 1}, {1100000000, 222}};
    utimensat(AT_FDCWD, path.toUtf8().constData(), times, 0);
    ASSERT_EQ(trashFolderFor(path), trash);

    const TrashResult result = trashItem(path);
    ASSERT_EQ(result.error, 0) << result.errorText.toStdString();
    EXPECT_EQ(result.trashedPath, trash + QStringLiteral("/files/naïve name.txt"));
    EXPECT_FALSE(QFile::exists(path));
    const QByteArray info = readFile(trash + QStringLiteral("/info/naïve name.txt.trashinfo"));
    EXPECT_TRUE(info.startsWith("[Trash Info]\nPath=" + encodeTrashInfoPath(path) + "\nDeletionDate="));
    EXPECT_TRUE(encodeTrashInfoPath(path).contains("a%20b%25/na%C3%AFve%20name.txt"));
    EXPECT_TRUE(
        QRegularExpression(QStringLiteral("DeletionDate=\\d{4}-\\d\\d-\\d\\dT\\d\\d:\\d\\d:\\d\\d\n$"))
            .match(QString::fromUtf8(info))
            .hasMatch());
    EXPECT_TRUE(hasPutBackAttribute(result.trashedPath));
    EXPECT_EQ(putBackPath(result.trashedPath), path);

    ResultItem item;
    item.path = path;
    item.setTrashedURL(result.trashedPath);
    ASSERT_TRUE(putBackItem(item).ok());
    EXPECT_EQ(readFile(path), "contents");
    EXPECT_EQ(statOf(path).st_mtim.tv_sec, 1100000000);
    EXPECT_EQ(statOf(path).st_mtim.tv_nsec, 222);
    EXPECT_FALSE(hasPutBackAttribute(path)) << "the record goes with a put back from the window";
    EXPECT_FALSE(QFile::exists(trash + QStringLiteral("/info/naïve name.txt.trashinfo")));
    EXPECT_TRUE(item.trashedURL().isEmpty());
}

TEST_F(Trash, CollisionsGetFreeNamesAndPuttingBackNeverOverwrites)
{
    const QString first = files.file(QStringLiteral("one/report.pdf"), "first");
    const QString second = files.file(QStringLiteral("two/report.pdf"), "second");
    const QString third = files.file(QStringLiteral("three/report"), "third");
    const QString fourth = files.file(QStringLiteral("four/report"), "fourth");
    const TrashResult a = trashItem(first), b = trashItem(second), c = trashItem(third),
                      d = trashItem(fourth);
    EXPECT_EQ(a.trashedPath, trash + QStringLiteral("/files/report.pdf"));
    EXPECT_EQ(b.trashedPath, trash + QStringLiteral("/files/report 2.pdf"));
    EXPECT_EQ(d.trashedPath, trash + QStringLiteral("/files/report 2"));
    EXPECT_EQ(putBackPath(b.trashedPath), second);

    files.file(QStringLiteral("two/report.pdf"), "someone else's new file");
    const PutBackResult refused = putBackFile(b.trashedPath, second);
    EXPECT_EQ(refused.error, EEXIST);
    EXPECT_EQ(readFile(second), "someone else's new file");
    EXPECT_EQ(readFile(b.trashedPath), "second") << "the trashed file stays in the trash";
    EXPECT_TRUE(QFile::exists(trash + QStringLiteral("/info/report 2.pdf.trashinfo")));

    // Put back by path, as for a file handed over from the trash: the restored file keeps
    // its record, and the .trashinfo goes.
    ASSERT_TRUE(putBackFile(a.trashedPath, putBackPath(a.trashedPath)).ok());
    EXPECT_EQ(readFile(first), "first");
    EXPECT_TRUE(hasPutBackAttribute(first));
    EXPECT_FALSE(QFile::exists(trash + QStringLiteral("/info/report.pdf.trashinfo")));
    EXPECT_EQ(putBackFile(a.trashedPath, first).error, ENOENT);

    ResultItem gone;
    gone.path = third;
    EXPECT_FALSE(putBackItem(gone).ok()) << "an item that is not in the trash cannot be put back";
    gone.setTrashedURL(c.trashedPath);
    gone.set(Deleted);
    EXPECT_FALSE(putBackItem(gone).ok());
}

TEST_F(Trash, OtherVolumesUseTheirOwnTrashWithRelativePaths)
{
    MountedVolume volume(QStringLiteral("tmpfs"));
    if (const QString why = volume.mount(); !why.isEmpty()) GTEST_SKIP() << why.toStdString();
    QDir().mkpath(volume.path(QStringLiteral("photos")));
    const QString path = volume.path(QStringLiteral("photos/x.jpg"));
    writeFile(path, "jpeg");
    const TrashResult result = trashItem(path);
    ASSERT_EQ(result.error, 0) << result.errorText.toStdString();
    const QString volumeTrash = volume.path(QStringLiteral(".Trash-%1").arg(geteuid()));
    EXPECT_EQ(result.trashedPath, volumeTrash + QStringLiteral("/files/x.jpg"));
    EXPECT_TRUE(
        readFile(volumeTrash + QStringLiteral("/info/x.jpg.trashinfo")).contains("\nPath=photos/x.jpg\n"));
    EXPECT_FALSE(QDir(trash).exists()) << "nothing went through the home trash";
    struct stat st {
    };
    lstat(volumeTrash.toUtf8().constData(), &st);
    EXPECT_EQ(st.st_mode & 0777, 0700u);

    // Where the file system refuses user attributes, the .trashinfo is the record.
    removePutBackAttribute(result.trashedPath);
    EXPECT_EQ(putBackPath(result.trashedPath), path);
    ASSERT_TRUE(putBackFile(result.trashedPath, path).ok());
    EXPECT_EQ(readFile(path), "jpeg");
}

TEST_F(Trash, AFailedMoveLeavesTheFileAndNoRecord)
{
    EXPECT_EQ(trashItem(files.path(QStringLiteral("never-existed"))).error, ENOENT);
    const QString path = files.file(QStringLiteral("locked/keep.txt"), "keep");
    const QString folder = files.path(QStringLiteral("locked"));
    if (!setImmutable(folder, true)) GTEST_SKIP() << "cannot make a folder immutable here";
    const TrashResult result = trashItem(path);
    setImmutable(folder, false);
    EXPECT_NE(result.error, 0);
    EXPECT_TRUE(result.trashedPath.isEmpty());
    EXPECT_EQ(readFile(path), "keep");
    EXPECT_EQ(QDir(trash + QStringLiteral("/info")).entryList(QDir::Files).size(), 0);
    EXPECT_EQ(QDir(trash + QStringLiteral("/files")).entryList(QDir::Files).size(), 0);
}

TEST_F(Trash, AFullVolumeSaysSoAndLeavesTheFileInPlace)
{
    if (geteuid() != 0) GTEST_SKIP() << "not running as root: cannot mount a small volume";
    const QString mountPoint = files.folder(QStringLiteral("small"));
    if (!shell(QStringLiteral("mount -t tmpfs -o size=256k tmpfs \"$0\""), {mountPoint}))
        GTEST_SKIP() << "could not mount a tmpfs volume";
    const QString path = files.file(QStringLiteral("small/victim.txt"), "the only copy");
    QDir().mkpath(mountPoint + QStringLiteral("/.Trash-0/info")); // as a first trash of it would
    shell(QStringLiteral("dd if=/dev/zero of=\"$0/filler\" bs=4k 2>/dev/null; true"), {mountPoint});

    const TrashResult result = trashItem(path);
    const QStringList records = QDir(mountPoint + QStringLiteral("/.Trash-0/info")).entryList(QDir::Files);
    shell(QStringLiteral("umount \"$0\""), {mountPoint});
    EXPECT_EQ(result.error, ENOSPC);
    EXPECT_TRUE(result.errorText.contains(QString::fromLocal8Bit(strerror(ENOSPC))))
        << result.errorText.toStdString();
    EXPECT_TRUE(records.isEmpty()) << "no record without its file";
}

TEST_F(Trash, PuttingBackItemsPassesOverTheOthersAndCountsFailures)
{
    ResultItem moved, occupied, deleted, present;
    moved.path = files.file(QStringLiteral("moved"), "1");
    occupied.path = files.file(QStringLiteral("occupied"), "2");
    present.path = files.file(QStringLiteral("present"), "3");
    deleted.path = files.path(QStringLiteral("deleted"));
    deleted.setTrashedURL(trashItem(files.file(QStringLiteral("deleted"), "4")).trashedPath);
    deleted.set(Deleted);
    moved.setTrashedURL(trashItem(moved.path).trashedPath);
    occupied.setTrashedURL(trashItem(occupied.path).trashedPath);
    files.file(QStringLiteral("occupied"), "new");

    const PutBackSummary summary = putBackItems({&moved, &occupied, &deleted, &present});
    EXPECT_EQ(summary.putBack, (QList<ResultItem *>{&moved}));
    EXPECT_EQ(summary.failures, 1);
    EXPECT_FALSE(summary.lastErrorText.isEmpty());
    EXPECT_EQ(readFile(moved.path), "1");
    EXPECT_EQ(readFile(occupied.path), "new");
    EXPECT_FALSE(occupied.trashedURL().isEmpty()) << "still marked as trashed";
    EXPECT_FALSE(QFile::exists(deleted.path));
    EXPECT_EQ(putBackFailureAlert(summary, {&occupied})->message,
              QStringLiteral("“occupied” could not be put back from the Trash."));
    EXPECT_EQ(putBackFailureAlert(summary, {&moved, &occupied})->message,
              QStringLiteral("1 could not be put back from the Trash."));
}
