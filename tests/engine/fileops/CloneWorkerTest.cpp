#include "fileops/CloneWorker.h"

#include "fileops/ItemSafety.h"

#include "fileops/CloneAlerts.h"
#include "fileops/Dedupe.h"
#include "format/ByteSize.h"
#include "search/Digest.h"
#include "support/EnglishPluralsInstalled.h"
#include "support/FileItems.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"

#include <QDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace selfsame;

namespace
{

// Two groups on a volume that clones: a large one of three copies and a small pair.
class CloneWorkerOn : public ::testing::TestWithParam<const char *>
{
protected:
    void SetUp() override
    {
        if (const QString why = volume.mount(); !why.isEmpty()) GTEST_SKIP() << why.toStdString();
        QDir().mkpath(volume.path(QStringLiteral("a")));
        QDir().mkpath(volume.path(QStringLiteral("b")));
        for (const char *name : {"a/big1", "a/big2", "b/big3"})
            writeFile(volume.path(QString::fromUtf8(name)), big);
        for (const char *name : {"a/small1", "b/small2"})
            writeFile(volume.path(QString::fromUtf8(name)), small);
        sync();
        for (const char *name : {"a/big1", "a/big2", "b/big3"})
            group.add(volume.path(QString::fromUtf8(name)), 0);
        for (const char *name : {"a/small1", "b/small2"})
            group.add(volume.path(QString::fromUtf8(name)), 1);
    }
    CloneWorker worker(QList<ResultItem *> targets)
    {
        return CloneWorker(targets, group.all(),
                           [this](const ResultItem &item) { return group.duplicatesFor(item); });
    }
    ResultItem *item(int i) { return group.items[std::size_t(i)].get(); }
    MountedVolume volume{QString::fromUtf8(GetParam())};
    ItemGroup group;
    const QByteArray big = patternBytes(3 << 20, 1);
    const QByteArray small = patternBytes(70000, 2);
};

} // namespace

TEST_P(CloneWorkerOn, PlansLargestFirstThenClonesInPlaceKeepingEveryFilesMetadata)
{
    EnglishPluralsInstalled plurals;
    const QByteArray big2 = item(1)->path.toUtf8();
    lsetxattr(big2.constData(), "user.xdg.tags", "Blue", 4, 0);
    chmod(big2.constData(), 0600);
    recordCurrentState(*item(1)); // as the search would have seen it
    const struct stat before = statOf(item(1)->path);

    CloneWorker w = worker({item(0)}); // one selected row: all found files count
    CloneCounts plan;
    ASSERT_TRUE(w.perform(false, true, true, &plan));
    EXPECT_TRUE(plan.onAllFoundFiles);
    EXPECT_EQ(plan.replaceDuplicates, 3);
    EXPECT_EQ(plan.byClones, 2);
    EXPECT_EQ(plan.ofPhysicalSize, item(1)->physicalSize + item(2)->physicalSize + item(4)->physicalSize);
    EXPECT_TRUE(plan.singleFilenameToReplace.isEmpty());
    EXPECT_EQ(QFileInfo(w.logFilePath()).fileName(), QStringLiteral("Selfsame.log"));
    const QByteArray expected =
        item(0)->path.toUtf8() + " (" + formatByteCount(item(0)->physicalSize).toUtf8() +
        " on disk) will be cloned to:\n\t" + item(1)->path.toUtf8() + "\n\t" + item(2)->path.toUtf8() + "\n" +
        item(3)->path.toUtf8() + " (" + formatByteCount(item(3)->physicalSize).toUtf8() +
        " on disk) will be cloned to:\n\t" + item(4)->path.toUtf8() + "\n";
    EXPECT_EQ(readFile(w.logFilePath()), expected);
    EXPECT_EQ(statOf(item(1)->path).st_ino, before.st_ino) << "planning changes nothing";
    EXPECT_NE(allocDigestOf(item(1)->path), allocDigestOf(item(0)->path));
    EXPECT_TRUE(cloneConfirmationAlert(plan).message.startsWith(QStringLiteral(
        "Do you want to replace 3 duplicates among all found files, by clones of 2 different files?")));

    ASSERT_TRUE(w.perform(true, true, true));
    EXPECT_TRUE(w.failures().isEmpty()) << w.failures().value(0).reason.toStdString();
    EXPECT_EQ(w.cloned().size(), 3);
    for (int i : {1, 2}) {
        EXPECT_EQ(readFile(item(i)->path), big);
        ASSERT_TRUE(allocDigestOf(item(i)->path).has_value());
        EXPECT_EQ(allocDigestOf(item(i)->path), allocDigestOf(item(0)->path))
            << "shares the reference's extents";
    }
    EXPECT_EQ(allocDigestOf(item(4)->path), allocDigestOf(item(3)->path));
    const struct stat after = statOf(item(1)->path);
    EXPECT_EQ(after.st_ino, before.st_ino) << "deduplication keeps the duplicate's inode";
    EXPECT_EQ(after.st_mode, before.st_mode);
    EXPECT_EQ(after.st_mtim.tv_sec, before.st_mtim.tv_sec);
    EXPECT_EQ(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
    char tag[8] = {};
    EXPECT_EQ(lgetxattr(big2.constData(), "user.xdg.tags", tag, sizeof tag), 4);

    // A second planning pass finds them all shared already.
    ItemGroup again;
    for (int i = 0; i < 5; ++i)
        again.add(item(i)->path, i < 3 ? 0 : 1);
    CloneWorker second(again.all(), again.all(),
                       [&](const ResultItem &it) { return again.duplicatesFor(it); });
    CloneCounts none;
    ASSERT_TRUE(second.perform(false, true, true, &none));
    EXPECT_EQ(none.replaceDuplicates, 0);
}

TEST_P(CloneWorkerOn, WithoutDedupeMovesAsideClonesRestoresAndRollsBackEachFailingStep)
{
    CloneSteps steps = CloneSteps::real();
    steps.dedupe = [](const QString &, const QString &) { return EOPNOTSUPP; };
    const QByteArray path = item(1)->path.toUtf8();
    lsetxattr(path.constData(), "user.note", "n", 1, 0);
    recordCurrentState(*item(1));
    const struct stat original = statOf(item(1)->path);
    const struct stat folder = statOf(volume.path(QStringLiteral("a")));

    auto checkUntouched = [&](const char *step) {
        SCOPED_TRACE(step);
        const struct stat now = statOf(item(1)->path);
        EXPECT_EQ(now.st_ino, original.st_ino) << "the original is back at its path";
        EXPECT_EQ(now.st_mode, original.st_mode);
        EXPECT_EQ(now.st_mtim.tv_nsec, original.st_mtim.tv_nsec);
        EXPECT_EQ(readFile(item(1)->path), big);
        EXPECT_EQ(QDir(volume.path(QStringLiteral("a"))).entryList(QDir::Files).size(), 3)
            << "nothing left aside";
        EXPECT_EQ(statOf(volume.path(QStringLiteral("a"))).st_mtim.tv_nsec, folder.st_mtim.tv_nsec);
    };
    CloneSteps failing = steps;
    failing.moveAside = [](const QString &, const QString &) { return EACCES; };
    EXPECT_FALSE(cloneDuplicate(*item(0), *item(1), true, failing).isEmpty());
    checkUntouched("move aside");
    failing = steps;
    failing.clone = [](const QString &, const QString &, bool) { return EXDEV; };
    EXPECT_FALSE(cloneDuplicate(*item(0), *item(1), true, failing).isEmpty());
    checkUntouched("clone");
    failing = steps;
    failing.restore = [](const QString &, const FSMetadata &) { return unsigned(RestoreXattr); };
    EXPECT_FALSE(cloneDuplicate(*item(0), *item(1), true, failing).isEmpty());
    checkUntouched("restore");

    ASSERT_EQ(cloneDuplicate(*item(0), *item(1), true, steps), QString());
    EXPECT_NE(statOf(item(1)->path).st_ino, original.st_ino) << "a new inode: the clone";
    EXPECT_EQ(allocDigestOf(item(1)->path), allocDigestOf(item(0)->path));
    EXPECT_EQ(statOf(item(1)->path).st_mtim.tv_nsec, original.st_mtim.tv_nsec);
    char note[4] = {};
    EXPECT_EQ(lgetxattr(path.constData(), "user.note", note, sizeof note), 1);
    EXPECT_EQ(QDir(volume.path(QStringLiteral("a"))).entryList(QDir::Files).size(), 3);
}

TEST_P(CloneWorkerOn, WriteProtectedAndOtherOwnersFilesComeBackProtectedAndOwned)
{
    if (geteuid() != 0) GTEST_SKIP() << "not running as root: cannot give a file to another owner";
    CloneSteps steps = CloneSteps::real();
    steps.dedupe = [](const QString &, const QString &) { return EOPNOTSUPP; }; // the move-aside way
    const QString folder = volume.path(QStringLiteral("a"));
    chmod(folder.toUtf8().constData(), 0555);
    const QByteArray locked = item(1)->path.toUtf8();
    chmod(locked.constData(), 0444);
    ASSERT_TRUE(setImmutable(item(1)->path, true));
    item(1)->set(ReadOnly);
    const QByteArray foreign = item(2)->path.toUtf8();
    ASSERT_EQ(chown(foreign.constData(), 1234, 4321), 0);
    item(2)->set(OtherOwner);
    recordCurrentState(*item(1));
    recordCurrentState(*item(2));

    EXPECT_EQ(cloneDuplicate(*item(0), *item(1), true, steps), QString());
    EXPECT_TRUE(inodeFlagsOf(item(1)->path) & FS_IMMUTABLE_FL) << "the flag came back";
    setImmutable(item(1)->path, false);
    EXPECT_EQ(cloneDuplicate(*item(0), *item(2), true, steps), QString());
    const mode_t folderMode = statOf(folder).st_mode;
    chmod(folder.toUtf8().constData(), 0755);

    for (int i : {1, 2}) {
        EXPECT_EQ(readFile(item(i)->path), big);
        EXPECT_EQ(allocDigestOf(item(i)->path), allocDigestOf(item(0)->path));
    }
    EXPECT_EQ(statOf(item(1)->path).st_mode & 07777, 0444u);
    EXPECT_EQ(statOf(item(2)->path).st_uid, 1234u);
    EXPECT_EQ(statOf(item(2)->path).st_gid, 4321u);
    EXPECT_EQ(folderMode & 07777, 0555u);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files).size(), 3) << "nothing left aside";
}

TEST_P(CloneWorkerOn, SkipsWhatMustNotBeClonedAndStopsOnChangesAndAborts)
{
    // A hard link of the reference and a write-protected copy.
    ::link(item(0)->path.toUtf8().constData(),
           volume.path(QStringLiteral("a/hardlink")).toUtf8().constData());
    ResultItem *hard = group.add(volume.path(QStringLiteral("a/hardlink")), 0);
    item(2)->set(ReadOnly);
    QList<ResultItem *> previous;
    QList<ResultItem *> kept =
        filterDuplicates(group.duplicatesFor(*item(0)), *item(0), false, true, previous);
    EXPECT_EQ(kept, (QList<ResultItem *>{item(1)}));
    kept = filterDuplicates(group.duplicatesFor(*item(0)), *item(0), true, true, previous);
    EXPECT_EQ(kept, (QList<ResultItem *>{item(1), item(2)}));
    EXPECT_FALSE(kept.contains(hard));
    item(2)->set(OtherOwner);
    EXPECT_EQ(filterDuplicates(group.duplicatesFor(*item(0)), *item(0), true, true, previous).size(), 1);

    // Content changed after the search: the kernel or the size check refuses, nothing changes.
    writeFile(item(1)->path, patternBytes(3 << 20, 9));
    EXPECT_FALSE(cloneDuplicate(*item(0), *item(1), true, CloneSteps::real()).isEmpty());
    EXPECT_EQ(readFile(item(1)->path), patternBytes(3 << 20, 9));
    EXPECT_EQ(dedupeFile(item(0)->path, item(1)->path), kContentDiffers);
    const timespec recorded[2] = {{0, UTIME_OMIT}, {item(1)->modified, 0}};
    utimensat(AT_FDCWD, item(1)->path.toUtf8().constData(), recorded, 0);
    CloneSteps noDedupe = CloneSteps::real();
    noDedupe.dedupe = [](const QString &, const QString &) { return EOPNOTSUPP; };
    EXPECT_FALSE(cloneDuplicate(*item(0), *item(1), true, noDedupe).isEmpty())
        << "compared before moving aside";
    EXPECT_EQ(readFile(item(1)->path), patternBytes(3 << 20, 9));

    // Aborting before the first reference clones nothing.
    CloneWorker w = worker(group.all());
    w.progress = [](int, int) { return false; };
    EXPECT_FALSE(w.perform(true, true, true));
    EXPECT_TRUE(w.cloned().isEmpty());
    EXPECT_NE(allocDigestOf(item(4)->path), allocDigestOf(item(3)->path));
}

TEST_P(CloneWorkerOn, DedupesFilesLongerThanOneRequestToTheirLastByte)
{
    const QByteArray large = patternBytes((qsizetype(20) << 20) + 1, 4); // btrfs takes 16 MiB per request
    const QString a = volume.path(QStringLiteral("large-a")), b = volume.path(QStringLiteral("large-b"));
    writeFile(a, large);
    writeFile(b, large);
    sync();
    ASSERT_EQ(dedupeFile(a, b), 0);
    EXPECT_EQ(readFile(b), large);
    ASSERT_TRUE(allocDigestOf(b).has_value());
    EXPECT_EQ(allocDigestOf(b), allocDigestOf(a));
}

INSTANTIATE_TEST_SUITE_P(FileSystems, CloneWorkerOn, ::testing::Values("btrfs", "xfs"),
                         [](const auto &info) { return std::string(info.param); });

TEST(CloneWorker, FindsNothingToCloneWhereTheFileSystemCannot)
{
    TempTree tree;
    ItemGroup group;
    group.add(tree.file(QStringLiteral("x"), patternBytes(10000, 3)));
    group.add(tree.file(QStringLiteral("y"), patternBytes(10000, 3)));
    CloneWorker w(group.all(), group.all(), [&](const ResultItem &i) { return group.duplicatesFor(i); });
    w.planPath = tree.path(QStringLiteral("plan.log"));
    CloneCounts counts;
    ASSERT_TRUE(w.perform(false, true, true, &counts));
    EXPECT_EQ(counts.replaceDuplicates, 0);
    EXPECT_EQ(readFile(tree.path(QStringLiteral("plan.log"))), "");
    EXPECT_EQ(noClonableFileAlert().message, QStringLiteral("No file among the selection can be cloned"));
}

TEST(CloneAlerts, ConfirmationNamesSingleFilesAndCounts)
{
    EnglishPluralsInstalled plurals;
    CloneCounts c;
    c.replaceDuplicates = 1;
    c.byClones = 1;
    c.ofPhysicalSize = 2500000;
    c.singleFilenameToReplace = QStringLiteral("copy.mov");
    c.singleFilenameToClone = QStringLiteral("film.mov");
    EXPECT_EQ(cloneConfirmationAlert(c).message,
              QStringLiteral("Do you want to replace “copy.mov”, by a clone of “film.mov”? 2.5 MB on disk "
                             "will be reclaimed."));
    // One duplicate without its name is counted like many, among all found files too.
    c.singleFilenameToReplace.clear();
    c.onAllFoundFiles = true;
    EXPECT_TRUE(cloneConfirmationAlert(c).message.startsWith(
        QStringLiteral("Do you want to replace 1 duplicate among all found files, by a clone of")));
    c.onAllFoundFiles = false;
    c.replaceDuplicates = 1200;
    c.byClones = 3;
    EXPECT_TRUE(cloneConfirmationAlert(c).message.startsWith(
        QStringLiteral("Do you want to replace 1,200 duplicates among the selected files, by clones of 3 "
                       "different files?")));
    EXPECT_EQ(cloneConfirmationAlert(c).buttons,
              (QStringList{QStringLiteral("Clone"), QStringLiteral("Cancel"),
                           QStringLiteral("View Cloning Plan")}));
    EXPECT_TRUE(writeProtectedCloneAlert(2).informative.startsWith(
        QStringLiteral("2 files to be cloned are write-protected.")));
}
