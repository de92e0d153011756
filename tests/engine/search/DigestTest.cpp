#include "search/Digest.h"
#include "support/SearchHarness.h"
#include "support/TempTree.h"

#include <QCryptographicHash>
#include <QFile>
#include <QProcess>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

using namespace selfsame;

namespace {

QByteArray hex(const std::optional<Digest> &d) { return d ? digestToHex(*d) : QByteArray("none"); }
QByteArray sha512Hex(const QByteArray &bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha512).toHex();
}

DigestResult digestOf(const QString &path, bool ignoreMp4Header = false)
{
    ReadBuffer buffer;
    std::vector<qint64> storage;
    return computeDigest(path.toStdString().c_str(), -1, ignoreMp4Header, buffer, storage);
}

TEST(Digest, FilesLinksAndEmptyItemsHaveTheirSha512)
{
    TempTree tree;
    EXPECT_EQ(hex(digestOf(tree.file(QStringLiteral("abc"), "abc")).digest),
              "ddaf35a193617abacc417349ae20413112e6fa4e89a97ea20a9eeee64b55d39a"
              "2192992a274fc1a836ba3c23a3feebbd454d4423643ce80e2a9ac94fa54ca49f");
    const QByteArray empty = hex(digestOf(tree.file(QStringLiteral("empty"), {})).digest);
    EXPECT_EQ(empty, sha512Hex({}));
    EXPECT_EQ(digestToHex(emptyDigest()), empty);
    EXPECT_EQ(digestToHex(emptyFolderDigest()), sha512Hex(QByteArray::fromHex(empty)));
    const QString link = tree.symlink(QStringLiteral("link"), QStringLiteral("some/target"));
    EXPECT_EQ(hex(symlinkDigest(link.toStdString().c_str())), sha512Hex("some/target-symlink"));
}

TEST(Digest, Mp4HeaderIsLeftOutOnlyForMp4FilesAboveSixteenKiB)
{
    TempTree tree;
    const struct { const char *name; qsizetype size; bool option; qsizetype skipped; } cases[] = {
        {"A.MP4", 16385, true, 16384}, {"A.MP4", 16385, false, 0}, {"B.MP4", 16384, true, 0},
        {"c.mp4.txt", 20000, true, 0}, {"d.mp4", 20000, true, 16384},
    };
    for (const auto &c : cases) {
        const QByteArray bytes = patternBytes(c.size, 7);
        const QString path = tree.file(QString::fromUtf8(c.name), bytes);
        EXPECT_EQ(hex(digestOf(path, c.option).digest), sha512Hex(bytes.mid(c.skipped))) << c.name;
    }
}

TEST(Digest, Mp4FilesDifferingOnlyInTheirHeaderAreDuplicatesWithTheOption)
{
    TempTree tree;
    const QByteArray tail = patternBytes(40000, 3);
    tree.file(QStringLiteral("x.mp4"), patternBytes(16384, 1) + tail);
    tree.file(QStringLiteral("y.MP4"), patternBytes(16384, 2) + tail);
    SearchRequest request;
    request.ignoreMp4Header = true;
    EXPECT_EQ(searchGroups(tree.path(), request), "x.mp4 y.MP4");
    request.ignoreMp4Header = false;
    EXPECT_EQ(searchGroups(tree.path(), request), "");
}

TEST(Digest, FileLargerThanTheReadingBufferIsDigestedWhole)
{
    TempTree tree;
    const QString path = tree.file(QStringLiteral("big.bin"), {});
    const qint64 chunk = qint64(128) << 20;
    const int fd = open(path.toStdString().c_str(), O_WRONLY);
    ASSERT_EQ(ftruncate(fd, chunk + 4099), 0); // sparse: only the written bytes take room
    for (qint64 at : {qint64(0), chunk - 3, chunk + 4090})
        ASSERT_EQ(pwrite(fd, "written", 7, at), 7);
    close(fd);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QCryptographicHash streamed(QCryptographicHash::Sha512);
    while (!file.atEnd())
        streamed.addData(file.read(1 << 20));
    ReadBuffer buffer{std::size_t(chunk)};
    std::vector<qint64> storage;
    const DigestResult result = computeDigest(path.toStdString().c_str(), -1, false, buffer, storage);
    EXPECT_EQ(hex(result.digest), streamed.result().toHex());
    EXPECT_EQ(result.bytesRead, chunk + 4099);
}

TEST(Digest, HardLinksShareTheirAllocationDigestAndCopiesDoNot)
{
    TempTree tree;
    tree.build({"a.bin:64", "copy.bin:64"});
    const DigestResult original = digestOf(tree.path(QStringLiteral("a.bin")));
    if (!original.allocDigest)
        GTEST_SKIP() << "the file system of " << tree.stdPath() << " reports no extent map";
    const DigestResult link = digestOf(tree.hardLink(QStringLiteral("link.bin"), QStringLiteral("a.bin")));
    const DigestResult copy = digestOf(tree.path(QStringLiteral("copy.bin")));
    EXPECT_EQ(hex(link.allocDigest), hex(original.allocDigest));
    EXPECT_NE(hex(copy.allocDigest), hex(original.allocDigest));
    EXPECT_EQ(hex(copy.digest), hex(original.digest));
}

bool shell(const QString &script, const QStringList &arguments)
{
    const QStringList command{QStringLiteral("-c"), QStringLiteral("PATH=$PATH:/usr/sbin:/sbin; ") + script};
    return QProcess::execute(QStringLiteral("sh"), command + arguments) == 0;
}

// Reflink clones need a file system that shares extents: a btrfs image on a loop device.
class BtrfsClones : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (geteuid() != 0)
            GTEST_SKIP() << "not running as root: cannot mount a btrfs image";
        const QString image = tree.file(QStringLiteral("btrfs.img"), {});
        mounted = QFile::resize(image, qint64(256) << 20) &&
                  shell(QStringLiteral("mkfs.btrfs -q \"$0\" && mount -o loop \"$0\" \"$1\""),
                        {image, tree.folder(QStringLiteral("mnt"))});
        if (!mounted)
            GTEST_SKIP() << "could not make a btrfs image and mount it with -o loop (no mkfs.btrfs or loop device?)";
    }
    void TearDown() override
    {
        if (mounted)
            shell(QStringLiteral("umount \"$0\" || umount -l \"$0\""), {tree.path(QStringLiteral("mnt"))});
    }
    QString clone(const QString &source, const QString &rel)
    {
        const QString path = tree.file(rel, {});
        const int from = open(source.toStdString().c_str(), O_RDONLY);
        const int to = open(path.toStdString().c_str(), O_WRONLY);
        EXPECT_EQ(ioctl(to, FICLONE, from), 0) << "FICLONE failed";
        close(from);
        close(to);
        return path;
    }
    TempTree tree;
    bool mounted = false;
};

TEST_F(BtrfsClones, ClonesShareTheirAllocationDigestAndIgnoredClonesFormNoGroup)
{
    tree.build({"mnt/pair/a.bin:64", "mnt/trio/c.bin:64"});
    const QString a = tree.path(QStringLiteral("mnt/pair/a.bin"));
    const QString c = tree.path(QStringLiteral("mnt/trio/c.bin"));
    const QString b = clone(a, QStringLiteral("mnt/pair/b.bin"));
    clone(a, QStringLiteral("mnt/trio/a.bin"));
    clone(a, QStringLiteral("mnt/trio/b.bin"));
    ASSERT_NE(hex(digestOf(a).allocDigest), "none");
    EXPECT_EQ(hex(digestOf(b).allocDigest), hex(digestOf(a).allocDigest));
    EXPECT_NE(hex(digestOf(c).allocDigest), hex(digestOf(a).allocDigest));

    SearchRequest request;
    EXPECT_EQ(searchGroups(tree.path(QStringLiteral("mnt/pair")), request), "a.bin b.bin");
    request.ignoreClones = true;
    EXPECT_EQ(searchGroups(tree.path(QStringLiteral("mnt/pair")), request), "");
    EXPECT_EQ(searchGroups(tree.path(QStringLiteral("mnt/trio")), request), "a.bin b.bin c.bin");
}

} // namespace
