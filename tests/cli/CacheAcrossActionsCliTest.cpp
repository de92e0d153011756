// The digest cache stays current across Selfsame's own actions: files whose content an action
// kept, but whose change time or inode it moved, are not read again by the next search.

#include "cli/CliOnVolume.h"
#include "support/ByteFiles.h"

#include <QThread>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace
{

class CacheAcrossActions : public CliOnVolume
{
protected:
    // The value of one line of --summary, as "bytes read: N".
    static QByteArray summaryLine(const QByteArray &err, const QByteArray &name)
    {
        for (const QByteArray &line : err.split('\n'))
            if (line.startsWith(name + ": ")) return line.mid(name.size() + 2);
        return {};
    }

};

} // namespace

TEST_P(CacheAcrossActions, FilesKeptByAnActionAreNotReadAgain)
{
    const bool clones = type() == u"btrfs"; // one file system that clones is enough here
    std::vector<QStringList> actions{{"--delete", "--replace-with", "hardlink"}};
    if (clones) {
        actions.push_back({"--replace-with", "clone"});         // the kernel's dedupe: same inodes
        actions.push_back({"--delete", "--replace-with", "clone"}); // new inodes
    }
    int run = 0;
    for (const QStringList &action : actions) {
        SCOPED_TRACE(action.join(u' ').toStdString());
        const QString base = root + QStringLiteral("/run%1").arg(run++);
        for (int i = 0; i < 3; ++i) {
            const QByteArray content = patternBytes(60000 + i, 70 + i);
            ASSERT_TRUE(writeBytes((base + QStringLiteral("/keep/f%1").arg(i)).toUtf8(), content));
            ASSERT_TRUE(writeBytes((base + QStringLiteral("/old/f%1").arg(i)).toUtf8(), content));
        }
        // The cache takes no file changed within the last two seconds, as a second change
        // within the clock's step could go unseen.
        QThread::msleep(2100);
        const CliRun acted = runCli(QStringList{"--select", "folder", base + QStringLiteral("/old"), "--inside",
                                                "--yes", "--summary", base} + action,
                                    environment);
        ASSERT_EQ(acted.exitCode, 0) << acted.err.toStdString();
        ASSERT_NE(summaryLine(acted.err, "bytes read"), "0") << "the first search reads";
        struct stat st {
        };
        ASSERT_EQ(stat((base + QStringLiteral("/keep/f0")).toUtf8().constData(), &st), 0);
        QThread::msleep(2100);

        const CliRun again = runCli({"--summary", base}, environment);
        EXPECT_EQ(summaryLine(again.err, "bytes read"), "0") << again.err.toStdString();
        EXPECT_EQ(summaryLine(again.err, "groups"), "3");
    }
}

INSTANTIATE_TEST_SUITE_P(FileSystems, CacheAcrossActions, ::testing::Values("root", "btrfs"));

namespace
{

class CacheAcrossMounts : public CacheAcrossActions
{
};

} // namespace

TEST_P(CacheAcrossMounts, ADriveMountedAgainUnderAnotherDeviceNumberKeepsItsDigests)
{
    for (int i = 0; i < 4; ++i) {
        const QByteArray content = patternBytes(50000 + i % 2, 80 + i % 2);
        ASSERT_TRUE(writeBytes((root + QStringLiteral("/f%1").arg(i)).toUtf8(), content));
    }
    QThread::msleep(2100); // files this fresh are not cached
    const CliRun first = runCli({"--summary", root}, environment);
    ASSERT_EQ(summaryLine(first.err, "files known from the digest cache"), "0") << first.err.toStdString();
    struct stat before {
    }, after{};
    ASSERT_EQ(stat(root.toUtf8().constData(), &before), 0);
    ASSERT_EQ(volume.mountAgainOnAnotherDevice(), QString());
    ASSERT_EQ(stat(root.toUtf8().constData(), &after), 0);
    if (after.st_dev == before.st_dev) GTEST_SKIP() << "the volume came back under the same device number";

    const CliRun again = runCli({"--summary", root}, environment);
    EXPECT_EQ(summaryLine(again.err, "bytes read"), "0") << again.err.toStdString();
    EXPECT_EQ(summaryLine(again.err, "files known from the digest cache"), "4");
    EXPECT_EQ(summaryLine(again.err, "groups"), "2");
}

INSTANTIATE_TEST_SUITE_P(FileSystems, CacheAcrossMounts, ::testing::Values("ext4", "btrfs", "xfs"));
