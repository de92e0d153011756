// The same operations for real on the root file system, tmpfs, and loop-mounted btrfs and XFS.

#include "fileops/DeleteActions.h"
#include "fileops/PutBack.h"
#include "fileops/ItemSafety.h"
#include "fileops/Replacement.h"
#include "search/Digest.h"
#include "support/FileItems.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace selfsame;

namespace
{

class OnEveryFileSystem : public ::testing::TestWithParam<const char *>
{
protected:
    void SetUp() override
    {
        if (QString::fromUtf8(GetParam()) == u"root") {
            root = tree.path();
            return;
        }
        if (const QString why = volume.mount(); !why.isEmpty()) GTEST_SKIP() << why.toStdString();
        root = volume.path();
    }
    // A reference and one duplicate of it in two folders of a fresh folder under the root.
    void makePair(const QString &name)
    {
        const QString base = root + u'/' + name;
        QDir().mkpath(base + QStringLiteral("/keep"));
        QDir().mkpath(base + QStringLiteral("/old/sub"));
        writeFile(base + QStringLiteral("/keep/ref.bin"), content);
        writeFile(base + QStringLiteral("/old/sub/dup.bin"), content);
        reference = group.add(base + QStringLiteral("/keep/ref.bin"));
        duplicate = group.add(base + QStringLiteral("/old/sub/dup.bin"));
    }
    bool clones() const
    {
        return QString::fromUtf8(GetParam()) == u"btrfs" || QString::fromUtf8(GetParam()) == u"xfs";
    }

    TrashHome home;
    TempTree tree;
    MountedVolume volume{QString::fromUtf8(GetParam())};
    QString root;
    ItemGroup group;
    ResultItem *reference = nullptr;
    ResultItem *duplicate = nullptr;
    const QByteArray content = patternBytes(300000, 5);
};

} // namespace

TEST_P(OnEveryFileSystem, LinkReplacementsPointAtTheReferenceFromTheDeletedPath)
{
    const struct {
        int mode;
        const char *status;
    } cases[] = {{ReplaceWithAlias, "aliased"},
                 {ReplaceWithSymbolicLink, "aliased"},
                 {ReplaceWithRelativeSymbolicLink, "aliased"},
                 {ReplaceWithHardLink, "hard linked"}};
    for (const auto &c : cases) {
        SCOPED_TRACE(c.mode);
        makePair(QStringLiteral("mode%1").arg(c.mode));
        const DeleteReport report = performDeleteAction(DeleteKind::Delete, c.mode, reference, {duplicate});
        ASSERT_EQ(report.outcomes.size(), 1);
        EXPECT_EQ(report.outcomes[0].status, QString::fromUtf8(c.status));
        EXPECT_EQ(report.removalFailures + report.replacementFailures, 0)
            << report.outcomes[0].error.toStdString();
        EXPECT_TRUE(duplicate->has(Deleted));
        const QDir folder(QFileInfo(duplicate->path).path());
        EXPECT_EQ(folder.entryList(QDir::AllEntries | QDir::NoDotAndDotDot | QDir::System).size(), 1)
            << "nothing is left beside the replacement";
        if (c.mode == ReplaceWithAlias) {
            EXPECT_EQ(readFile(duplicate->path), "[Desktop Entry]\nType=Link\nName=ref.bin\nURL=file://" +
                                                     reference->path.toUtf8() + "\n");
        } else {
            EXPECT_EQ(readFile(duplicate->path), content);
        }
        if (c.mode == ReplaceWithSymbolicLink) {
            EXPECT_EQ(readLinkText(duplicate->path), reference->path);
        }
        if (c.mode == ReplaceWithRelativeSymbolicLink) {
            EXPECT_EQ(readLinkText(duplicate->path), QStringLiteral("../../keep/ref.bin"));
        }
        if (c.mode == ReplaceWithHardLink) {
            EXPECT_EQ(statOf(duplicate->path).st_ino, statOf(reference->path).st_ino);
        }
        EXPECT_EQ(readFile(reference->path), content);
    }
}

TEST_P(OnEveryFileSystem, TrashAndPutBackRestoreExactPathContentAndTimes)
{
    makePair(QStringLiteral("pair"));
    const timespec times[2] = {{1234567890, 111}, {1234567891, 222222}};
    utimensat(AT_FDCWD, duplicate->path.toUtf8().constData(), times, 0);
    const struct stat before = statOf(duplicate->path);
    recordCurrentState(*duplicate);

    const DeleteReport report = performDeleteAction(DeleteKind::Trash, ReplaceWithNone, nullptr, {duplicate});
    ASSERT_EQ(report.removalFailures, 0) << report.outcomes[0].error.toStdString();
    ASSERT_FALSE(duplicate->trashedURL().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(duplicate->path));
    ASSERT_TRUE(putBackItem(*duplicate).ok());
    const struct stat after = statOf(duplicate->path);
    EXPECT_EQ(readFile(duplicate->path), content);
    EXPECT_EQ(after.st_ino, before.st_ino) << "moved, never copied";
    EXPECT_EQ(after.st_mtim.tv_sec, 1234567891);
    EXPECT_EQ(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
    EXPECT_EQ(after.st_mode, before.st_mode);
}

TEST_P(OnEveryFileSystem, CloneReplacementWorksWhereTheFileSystemClonesAndLosesNothingElsewhere)
{
    makePair(QStringLiteral("pair"));
    const ino_t before = statOf(duplicate->path).st_ino;
    const DeleteReport report =
        performDeleteAction(DeleteKind::Delete, ReplaceWithClone, reference, {duplicate});
    EXPECT_EQ(readFile(duplicate->path), content);
    if (clones()) {
        EXPECT_EQ(report.replacementFailures, 0) << report.outcomes[0].error.toStdString();
        EXPECT_TRUE(duplicate->has(Deleted));
        EXPECT_EQ(allocDigestOf(duplicate->path), allocDigestOf(reference->path));
    } else {
        EXPECT_EQ(report.replacementFailures, 1);
        EXPECT_FALSE(duplicate->has(Deleted));
        EXPECT_EQ(statOf(duplicate->path).st_ino, before) << "the original stays";
    }
}

INSTANTIATE_TEST_SUITE_P(FileSystems, OnEveryFileSystem, ::testing::Values("root", "tmpfs", "btrfs", "xfs"),
                         [](const auto &info) { return std::string(info.param); });
