// `selfsame-cli undo`: every action that leaves something to give back is undone to files as
// they were, metadata included; changed files are refused; an undo killed at any step is
// finished or rolled back by recovery. On every file system the tests may mount.

#include "cli/CliOnVolume.h"
#include "support/ByteFiles.h"

#include <QRegularExpression>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fiemap.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace
{

// Whether any extent of the file is shared with another file.
bool sharesStorage(const QString &path)
{
    const int fd = open(path.toUtf8().constData(), O_RDONLY);
    if (fd < 0) return false;
    fsync(fd);
    alignas(fiemap) char buffer[sizeof(fiemap) + 32 * sizeof(fiemap_extent)] = {};
    auto *map = reinterpret_cast<fiemap *>(buffer);
    map->fm_length = FIEMAP_MAX_OFFSET;
    map->fm_flags = FIEMAP_FLAG_SYNC;
    map->fm_extent_count = 32;
    bool shared = false;
    if (ioctl(fd, FS_IOC_FIEMAP, map) == 0)
        for (unsigned i = 0; i < map->fm_mapped_extents; ++i)
            shared = shared || (map->fm_extents[i].fe_flags & FIEMAP_EXTENT_SHARED);
    close(fd);
    return shared;
}

struct stat statOf(const QString &path)
{
    struct stat st {
    };
    lstat(path.toUtf8().constData(), &st);
    return st;
}

class Undo : public CliOnVolume
{
protected:
    // keep/a.bin and its copy old/b.bin, which has metadata of its own to give back.
    QString makeTree(const QString &name)
    {
        const QString base = root + u'/' + name;
        EXPECT_TRUE(writeBytes((base + QStringLiteral("/keep/a.bin")).toUtf8(), content));
        const QByteArray copy = (base + QStringLiteral("/old/b.bin")).toUtf8();
        EXPECT_TRUE(writeBytes(copy, content));
        chmod(copy.constData(), 0640);
        hasXattr = setxattr(copy.constData(), "user.note", "kept", 4, 0) == 0;
        const timespec times[2] = {{1577836800, 123456789}, {1577836800, 987654321}};
        utimensat(AT_FDCWD, copy.constData(), times, 0);
        return base;
    }

    CliRun act(const QString &base, const QStringList &action)
    {
        return runCli(QStringList{"--no-cache", "--select", "folder", base + QStringLiteral("/old"), "--inside",
                                  "--yes", base} +
                          action,
                      environment);
    }

    // old/b.bin holds its own bytes again, with its own metadata, and nothing else lies about.
    void expectAsBefore(const QString &base)
    {
        const QString copy = base + QStringLiteral("/old/b.bin");
        const struct stat st = statOf(copy);
        EXPECT_TRUE(S_ISREG(st.st_mode));
        EXPECT_EQ(readBytes(copy.toUtf8()), content);
        EXPECT_NE(st.st_ino, statOf(base + QStringLiteral("/keep/a.bin")).st_ino) << "still a hard link";
        EXPECT_EQ(st.st_mode & 07777, 0640u);
        EXPECT_EQ(st.st_mtim.tv_sec, 1577836800);
        EXPECT_EQ(st.st_mtim.tv_nsec, 987654321);
        if (hasXattr) {
            char value[16] = {};
            EXPECT_EQ(getxattr(copy.toUtf8().constData(), "user.note", value, sizeof value), 4);
            EXPECT_STREQ(value, "kept");
        }
        EXPECT_EQ(entriesBelow(base), QSet<QString>({"keep", "old", "keep/a.bin", "old/b.bin"}));
        EXPECT_EQ(readBytes((base + QStringLiteral("/keep/a.bin")).toUtf8()), content);
    }

    QStringList trashEntries() const
    {
        QStringList entries;
        for (const QString &trash : {tree.path(QStringLiteral("home/data/Trash")),
                                     root + QStringLiteral("/.Trash-") + QString::number(geteuid())})
            for (const QString &sub : {QStringLiteral("/files"), QStringLiteral("/info")})
                entries += QDir(trash + sub).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
        return entries;
    }

    const QByteArray content = patternBytes(70000, 61);
    bool hasXattr = false;
};

} // namespace

TEST_P(Undo, EveryActionThatLeavesSomethingIsUndoneWithItsMetadata)
{
    std::vector<QStringList> actions{{"--trash"},
                                     {"--trash", "--replace-with", "symlink"},
                                     {"--trash", "--replace-with", "hardlink"},
                                     {"--delete", "--replace-with", "symlink"},
                                     {"--delete", "--replace-with", "relative-symlink"},
                                     {"--delete", "--replace-with", "hardlink"},
                                     {"--delete", "--replace-with", "alias"}};
    if (clones()) {
        actions.push_back({"--delete", "--replace-with", "clone"});
        actions.push_back({"--replace-with", "clone"});
    }
    int run = 0;
    for (const QStringList &action : actions) {
        SCOPED_TRACE(action.join(u' ').toStdString());
        const QString base = makeTree(QStringLiteral("run%1").arg(run++));
        const CliRun acted = act(base, action);
        ASSERT_EQ(acted.exitCode, 0) << acted.err.toStdString();
        const bool clone = action.endsWith(QStringLiteral("clone"));
        if (clone) {
            EXPECT_TRUE(sharesStorage(base + QStringLiteral("/old/b.bin"))) << "cloned";
        }

        const CliRun undone = runCli({QStringLiteral("undo")}, environment);
        EXPECT_EQ(undone.exitCode, 0) << undone.err.toStdString();
        EXPECT_EQ(undone.out, "undone: " + (base + QStringLiteral("/old/b.bin")).toUtf8() + '\n');
        expectAsBefore(base);
        if (clone) {
            EXPECT_FALSE(sharesStorage(base + QStringLiteral("/old/b.bin"))) << "an independent copy";
        }
        EXPECT_TRUE(trashEntries().isEmpty()) << trashEntries().join(u' ').toStdString();
        EXPECT_TRUE(runCli({QStringLiteral("journal")}, environment).out.contains("  undone  "));
    }
    const CliRun nothing = runCli({QStringLiteral("undo")}, environment);
    EXPECT_EQ(nothing.exitCode, 1);
    EXPECT_TRUE(nothing.err.contains("there is no action to undo")) << nothing.err.toStdString();
}

TEST_P(Undo, RefusesWhatChangedAndWhatWasDeletedForGood)
{
    const QString base = makeTree(QStringLiteral("refusals"));
    ASSERT_EQ(act(base, {"--delete"}).exitCode, 0);
    const CliRun deleted = runCli({QStringLiteral("undo"), QStringLiteral("1")}, environment);
    EXPECT_EQ(deleted.exitCode, 1);
    EXPECT_TRUE(deleted.err.contains("cannot be undone")) << deleted.err.toStdString();

    // The kept copy a link leads to changed: the link stays, the kept copy is not taken.
    const QString linked = makeTree(QStringLiteral("linked"));
    ASSERT_EQ(act(linked, {"--delete", "--replace-with", "symlink"}).exitCode, 0);
    ASSERT_TRUE(writeBytes((linked + QStringLiteral("/keep/a.bin")).toUtf8(), "edited since"));
    const CliRun refused = runCli({QStringLiteral("undo")}, environment);
    EXPECT_EQ(refused.exitCode, 1);
    EXPECT_TRUE(refused.err.contains("its kept copy")) << refused.err.toStdString();
    EXPECT_TRUE(S_ISLNK(statOf(linked + QStringLiteral("/old/b.bin")).st_mode));

    // The file in the trash was emptied out: nothing is put back, and the journal says so.
    const QString trashed = makeTree(QStringLiteral("trashed"));
    ASSERT_EQ(act(trashed, {"--trash"}).exitCode, 0);
    for (const QString &trash : {tree.path(QStringLiteral("home/data/Trash")),
                                 root + QStringLiteral("/.Trash-") + QString::number(geteuid())})
        QDir(trash).removeRecursively();
    const CliRun gone = runCli({QStringLiteral("undo")}, environment);
    EXPECT_EQ(gone.exitCode, 1);
    EXPECT_TRUE(gone.err.contains("no longer in the trash")) << gone.err.toStdString();
    EXPECT_FALSE(existsBytes((trashed + QStringLiteral("/old/b.bin")).toUtf8()));
    EXPECT_TRUE(runCli({QStringLiteral("journal")}, environment).out.contains("can be undone"));

    // Dates follow the session's LC_TIME (German: 25.11.26 14:05), whatever the language of the texts.
    QProcessEnvironment germanDates = environment;
    germanDates.remove(QStringLiteral("LC_ALL"));
    germanDates.insert(QStringLiteral("LC_TIME"), QStringLiteral("de_DE.UTF-8"));
    const QString listing = QString::fromUtf8(runCli({QStringLiteral("journal")}, germanDates).out);
    EXPECT_TRUE(listing.contains(QRegularExpression(QStringLiteral(R"(  \d\d\.\d\d\.\d\d \d\d:\d\d  )"))))
        << listing.toStdString();
    EXPECT_TRUE(listing.startsWith(QStringLiteral("ACTION  WHEN "))) << listing.toStdString();
}

TEST_P(Undo, AnInterruptedUndoIsFinishedOrRolledBack)
{
    // The original back from the trash, and an independent copy in place of a hard link.
    const std::vector<QStringList> actions{{"--trash", "--replace-with", "symlink"},
                                           {"--delete", "--replace-with", "hardlink"}};
    int run = 0;
    for (const QStringList &action : actions) {
        for (const char *point : {"undo.copied", "undo.moved-aside", "undo.swapped", "undo.replaced"}) {
            if (action.first() == u"--trash" && QByteArray(point) == "undo.copied") continue; // nothing copied
            SCOPED_TRACE(action.join(u' ').toStdString() + " killed at " + point);
            const QString base = makeTree(QStringLiteral("killed%1").arg(run++));
            ASSERT_EQ(act(base, action).exitCode, 0);
            QProcessEnvironment killing = environment;
            killing.insert(QStringLiteral("SELFSAME_TEST_FAULT_POINT"), QString::fromLatin1(point));
            EXPECT_TRUE(runCli({QStringLiteral("undo")}, killing).killed);
            const CliRun recovered = runCli({QStringLiteral("recover")}, environment);
            EXPECT_EQ(recovered.exitCode, 0) << recovered.err.toStdString();
            const bool finished = recovered.out.startsWith("0 rolled back, 1 finished");
            EXPECT_TRUE(finished || recovered.out.startsWith("1 rolled back")) << recovered.out.toStdString();
            // Rolled back, the file is as the action left it, and the undo can be run again.
            if (!finished) {
                const QString copy = base + QStringLiteral("/old/b.bin");
                EXPECT_EQ(readBytes(copy.toUtf8()), content);
                EXPECT_EQ(entriesBelow(base), QSet<QString>({"keep", "old", "keep/a.bin", "old/b.bin"}));
                const CliRun again = runCli({QStringLiteral("undo")}, environment);
                EXPECT_EQ(again.exitCode, 0) << again.err.toStdString();
            }
            expectAsBefore(base);
            EXPECT_TRUE(trashEntries().isEmpty()) << trashEntries().join(u' ').toStdString();
            EXPECT_TRUE(runCli({QStringLiteral("undo")}, environment).err.contains("no action to undo"));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(FileSystems, Undo, ::testing::Values("root", "ext4", "tmpfs", "btrfs", "xfs"));
