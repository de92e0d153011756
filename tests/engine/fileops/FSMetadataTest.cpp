#include "fileops/FSMetadata.h"

#include "fileops/CloneItem.h"
#include "support/FileItems.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

using namespace selfsame;

namespace
{

QByteArray xattr(const QString &path, const char *name)
{
    char value[256];
    const ssize_t n = lgetxattr(path.toUtf8().constData(), name, value, sizeof value);
    return n < 0 ? QByteArray("<none>") : QByteArray(value, n);
}

} // namespace

// Everything captured from one file comes back on another made in its place, the way a
// clone replaces a deleted duplicate.
TEST(FSMetadata, ComesBackOnAFileMadeAtTheSamePath)
{
    TempTree tree;
    const QString path = tree.file(QStringLiteral("dir/photo.jpg"), "original");
    const QByteArray p = path.toUtf8();
    ASSERT_EQ(lsetxattr(p.constData(), "user.xdg.tags", "Red,Work", 8, 0), 0) << "no user xattrs here";
    lsetxattr(p.constData(), "user.empty", "", 0, 0);
    const timespec times[2] = {{1600000000, 123456789}, {1500000000, 987654321}};
    ASSERT_EQ(utimensat(AT_FDCWD, p.constData(), times, 0), 0);
    ASSERT_EQ(chmod(p.constData(), 0640), 0);
    const bool aclSet = shell(QStringLiteral("setfacl -m u:4321:r \"$0\""), {path});
    const bool root = geteuid() == 0;
    if (root) {
        ASSERT_EQ(chown(p.constData(), 1234, 5678), 0);
    }
    int flags = inodeFlagsOf(path) | FS_NODUMP_FL;
    const int fd = open(p.constData(), O_RDONLY);
    const bool flagsSet = ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
    close(fd);
    const QString folder = tree.path(QStringLiteral("dir"));
    const timespec folderTimes[2] = {{1400000000, 0}, {1400000000, 555000000}};
    utimensat(AT_FDCWD, folder.toUtf8().constData(), folderTimes, 0);
    chmod(folder.toUtf8().constData(), 0751);

    const FSMetadata m = captureFSMetadata(path);
    ASSERT_TRUE(m.xattr.has_value());
    EXPECT_EQ(m.xattr->size(), 1) << "empty values are not recorded";
    ASSERT_EQ(removeItem(path), 0);
    writeFile(path, "original");
    const unsigned failed = restoreFSMetadata(path, m);

    EXPECT_EQ(failed, 0u);
    EXPECT_EQ(xattr(path, "user.xdg.tags"), "Red,Work");
    const struct stat st = statOf(path);
    EXPECT_EQ(st.st_mode & 07777, 0640u);
    EXPECT_EQ(st.st_mtim.tv_sec, 1500000000);
    EXPECT_EQ(st.st_mtim.tv_nsec, 987654321);
    EXPECT_EQ(st.st_atim.tv_nsec, 123456789);
    if (root) {
        EXPECT_EQ(st.st_uid, 1234u);
        EXPECT_EQ(st.st_gid, 5678u);
    }
    if (aclSet) {
        EXPECT_TRUE(xattr(path, "system.posix_acl_access") != "<none>") << "the extended ACL came back";
    }
    if (flagsSet) {
        EXPECT_TRUE(inodeFlagsOf(path) & FS_NODUMP_FL);
    }
    const struct stat parent = statOf(folder);
    EXPECT_EQ(parent.st_mtim.tv_sec, 1400000000);
    EXPECT_EQ(parent.st_mtim.tv_nsec, 555000000);
    EXPECT_EQ(parent.st_mode & 07777, 0751u);
}

TEST(FSMetadata, MissingPartsAreSkippedWithoutFailing)
{
    TempTree tree;
    const QString path = tree.file(QStringLiteral("plain"), "x");
    const FSMetadata m = captureFSMetadata(path);
    EXPECT_FALSE(m.xattr.has_value());
    EXPECT_FALSE(m.acl.has_value()) << "mode bits alone are no extended ACL";
    EXPECT_EQ(restoreFSMetadata(path, m), 0u);
    EXPECT_EQ(restoreFSMetadata(path, FSMetadata{}), 0u);
    const FSMetadata gone = captureFSMetadata(tree.path(QStringLiteral("missing")));
    EXPECT_FALSE(gone.permissions.has_value());
}
