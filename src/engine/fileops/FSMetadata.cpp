#include "fileops/FSMetadata.h"

#include "names/FileNames.h"

#include <QDataStream>
#include <QIODevice>
#include <acl/libacl.h>
#include <cstring>
#include <fcntl.h>
#include <linux/fs.h>
#include <sys/acl.h>
#include <sys/ioctl.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <vector>

namespace selfsame
{

namespace
{

QList<QPair<QByteArray, QByteArray>> readUserXattrs(const char *path, bool *listed)
{
    QList<QPair<QByteArray, QByteArray>> result;
    const ssize_t size = llistxattr(path, nullptr, 0);
    *listed = size >= 0;
    if (size <= 0) return result;
    std::vector<char> names(std::size_t(size) + 1, '\0');
    const ssize_t got = llistxattr(path, names.data(), names.size() - 1);
    for (ssize_t at = 0; got > 0 && at < got; at += ssize_t(std::strlen(names.data() + at)) + 1) {
        const char *name = names.data() + at;
        if (std::strncmp(name, "user.", 5) != 0)
            continue; // ACLs are kept apart; security and trusted names belong to the system
        const ssize_t length = lgetxattr(path, name, nullptr, 0);
        if (length <= 0) continue;
        QByteArray value(length, Qt::Uninitialized);
        const ssize_t read = lgetxattr(path, name, value.data(), std::size_t(value.size()));
        if (read > 0) result.append({QByteArray(name), value.left(read)});
    }
    return result;
}

std::optional<QByteArray> aclText(const char *path, acl_type_t type)
{
    acl_t acl = acl_get_file(path, type);
    if (!acl) return std::nullopt;
    std::optional<QByteArray> text;
    // An access ACL always exists; only one beyond the mode bits is worth keeping.
    const bool extended = type == ACL_TYPE_DEFAULT ? acl_entries(acl) > 0 : acl_equiv_mode(acl, nullptr) != 0;
    if (extended) {
        if (char *t = acl_to_text(acl, nullptr)) {
            text = QByteArray(t);
            acl_free(t);
        }
    }
    acl_free(acl);
    return text;
}

bool setAcl(const char *path, acl_type_t type, const QByteArray &text)
{
    acl_t acl = acl_from_text(text.constData());
    if (!acl) return false;
    const bool ok = acl_set_file(path, type, acl) == 0;
    acl_free(acl);
    return ok;
}

std::optional<int> readInodeFlags(const char *path)
{
    const int fd = open(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return std::nullopt;
    int flags = 0;
    const bool ok = ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
    close(fd);
    return ok ? std::optional<int>(flags) : std::nullopt;
}

bool writeInodeFlags(const char *path, int flags)
{
    const int fd = open(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
    if (fd < 0) return false;
    int current = 0;
    bool ok = ioctl(fd, FS_IOC_GETFLAGS, &current) == 0;
    if (ok && current != flags) ok = ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
    close(fd);
    return ok;
}

} // namespace

QString parentFolder(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash <= 0 ? QStringLiteral("/") : path.left(slash);
}

FSMetadata captureFSMetadata(const QString &path)
{
    FSMetadata m;
    const QByteArray p = pathBytes(path);
    bool listed = false;
    auto xattrs = readUserXattrs(p.constData(), &listed);
    if (listed && !xattrs.isEmpty()) m.xattr = std::move(xattrs);
    struct stat st {
    };
    if (lstat(p.constData(), &st) == 0) {
        m.accessTime = st.st_atim;
        m.modificationTime = st.st_mtim;
        m.permissions = st.st_mode;
        m.uid = st.st_uid;
        m.gid = st.st_gid;
        if (!S_ISLNK(st.st_mode)) {
            m.inodeFlags = readInodeFlags(p.constData());
            m.acl = aclText(p.constData(), ACL_TYPE_ACCESS);
            if (S_ISDIR(st.st_mode)) m.defaultAcl = aclText(p.constData(), ACL_TYPE_DEFAULT);
        }
    }
    struct stat parent {
    };
    if (stat(pathBytes(parentFolder(path)).constData(), &parent) == 0) {
        m.parentModificationTime = parent.st_mtim;
        m.parentPermissions = parent.st_mode;
    }
    return m;
}

unsigned restoreFSMetadata(const QString &path, const FSMetadata &m)
{
    const QByteArray p = pathBytes(path);
    const char *c = p.constData();
    unsigned failed = 0;
    if (m.xattr) {
        for (const auto &[name, value] : *m.xattr)
            if (lsetxattr(c, name.constData(), value.constData(), std::size_t(value.size()), 0) != 0)
                failed |= RestoreXattr;
    }
    struct stat st {
    };
    if (m.permissions && lstat(c, &st) == 0 && !S_ISLNK(st.st_mode)) {
        if ((st.st_mode & 07777) != ((*m.permissions | 0200) & 07777) &&
            chmod(c, (*m.permissions | 0200) & 07777) != 0)
            failed |= RestoreMode;
    }
    if (m.acl && !setAcl(c, ACL_TYPE_ACCESS, *m.acl)) failed |= RestoreAcl;
    if (m.defaultAcl && !setAcl(c, ACL_TYPE_DEFAULT, *m.defaultAcl)) failed |= RestoreAcl;
    if (m.uid && m.gid && lchown(c, *m.uid, *m.gid) != 0) failed |= RestoreOwner;
    // Exactly now: chown clears set-user-ID bits, and the owner-write bit was only lent.
    if (m.permissions && lstat(c, &st) == 0 && !S_ISLNK(st.st_mode) && st.st_mode != *m.permissions &&
        chmod(c, *m.permissions & 07777) != 0)
        failed |= RestoreMode;
    if (m.accessTime && m.modificationTime) {
        const timespec times[2] = {*m.accessTime, *m.modificationTime};
        if (utimensat(AT_FDCWD, c, times, AT_SYMLINK_NOFOLLOW) != 0) failed |= RestoreTimes;
    }
    if (m.inodeFlags && !writeInodeFlags(c, *m.inodeFlags)) failed |= RestoreFlags;
    return failed | restoreParentFolder(path, m);
}

unsigned restoreParentFolder(const QString &path, const FSMetadata &m)
{
    unsigned failed = 0;
    const QByteArray parent = pathBytes(parentFolder(path));
    if (m.parentModificationTime) {
        // Only the modification time: the folder's last-used date is not ours to set.
        const timespec times[2] = {{0, UTIME_OMIT}, *m.parentModificationTime};
        if (utimensat(AT_FDCWD, parent.constData(), times, 0) != 0) failed |= RestoreParent;
    }
    struct stat ps {
    };
    if (m.parentPermissions && stat(parent.constData(), &ps) == 0 && ps.st_mode != *m.parentPermissions &&
        chmod(parent.constData(), *m.parentPermissions & 07777) != 0)
        failed |= RestoreParent;
    return failed;
}

namespace
{

// Each part is written as a presence flag and, when present, its value.
template <typename T, typename Write>
void put(QDataStream &out, const std::optional<T> &value, Write write)
{
    out << bool(value);
    if (value) write(*value);
}

template <typename T, typename Read>
void take(QDataStream &in, std::optional<T> &value, Read read)
{
    bool present = false;
    in >> present;
    if (present) value = read();
}

constexpr quint8 kSnapshotVersion = 1;

} // namespace

QByteArray encodeFSMetadata(const FSMetadata &m)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    auto time = [&](const timespec &t) { out << qint64(t.tv_sec) << qint64(t.tv_nsec); };
    auto number = [&](auto v) { out << qint64(v); };
    out << kSnapshotVersion;
    put(out, m.xattr, [&](const auto &list) { out << list; });
    put(out, m.accessTime, time);
    put(out, m.modificationTime, time);
    put(out, m.inodeFlags, number);
    put(out, m.permissions, number);
    put(out, m.uid, number);
    put(out, m.gid, number);
    put(out, m.acl, [&](const QByteArray &text) { out << text; });
    put(out, m.defaultAcl, [&](const QByteArray &text) { out << text; });
    put(out, m.parentModificationTime, time);
    put(out, m.parentPermissions, number);
    return bytes;
}

std::optional<FSMetadata> decodeFSMetadata(const QByteArray &bytes)
{
    QDataStream in(bytes);
    quint8 version = 0;
    in >> version;
    if (version != kSnapshotVersion) return std::nullopt;
    FSMetadata m;
    auto time = [&] {
        qint64 sec = 0, nsec = 0;
        in >> sec >> nsec;
        return timespec{time_t(sec), long(nsec)};
    };
    auto number = [&] {
        qint64 v = 0;
        in >> v;
        return v;
    };
    auto text = [&] {
        QByteArray t;
        in >> t;
        return t;
    };
    take(in, m.xattr, [&] {
        QList<QPair<QByteArray, QByteArray>> list;
        in >> list;
        return list;
    });
    take(in, m.accessTime, time);
    take(in, m.modificationTime, time);
    take(in, m.inodeFlags, [&] { return int(number()); });
    take(in, m.permissions, [&] { return mode_t(number()); });
    take(in, m.uid, [&] { return uid_t(number()); });
    take(in, m.gid, [&] { return gid_t(number()); });
    take(in, m.acl, text);
    take(in, m.defaultAcl, text);
    take(in, m.parentModificationTime, time);
    take(in, m.parentPermissions, [&] { return mode_t(number()); });
    if (in.status() != QDataStream::Ok) return std::nullopt;
    return m;
}

} // namespace selfsame
