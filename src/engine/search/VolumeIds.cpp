#include "search/VolumeIds.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <fcntl.h>
#include <linux/magic.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/statfs.h>
#include <sys/sysmacros.h>
#include <unistd.h>
#include <xxhash.h>

namespace selfsame
{

namespace
{

// The kernel's file-system UUID query (Linux 6.5 and later), spelt out for older headers.
struct FileSystemUuid {
    quint8 length;
    quint8 uuid[16];
};
constexpr unsigned long kGetFileSystemUuid = _IOR(0x15, 0, FileSystemUuid);

struct Mount {
    QByteArray point, source;
};

// mountinfo escapes blanks and backslashes in octal.
QByteArray unescaped(const QByteArray &field)
{
    QByteArray text;
    for (qsizetype i = 0; i < field.size(); ++i) {
        if (field[i] == '\\' && i + 3 < field.size()) {
            bool ok = false;
            const int code = field.mid(i + 1, 3).toInt(&ok, 8);
            if (ok) {
                text.append(char(code));
                i += 3;
                continue;
            }
        }
        text.append(field[i]);
    }
    return text;
}

// The mount of the device, as the process sees its mounts. A btrfs mount lists the device of
// the file system while its files show the one of their subvolume: those are told by the
// mount point's own device.
Mount mountOf(quint64 device)
{
    QFile info(QStringLiteral("/proc/self/mountinfo"));
    if (!info.open(QIODevice::ReadOnly)) return {};
    const QByteArray wanted = QByteArray::number(major(device)) + ':' + QByteArray::number(minor(device));
    Mount subvolume;
    for (const QByteArray &line : info.readAll().split('\n')) {
        const QList<QByteArray> fields = line.split(' ');
        const qsizetype separator = fields.indexOf("-");
        if (fields.size() < 10 || separator < 0 || separator + 2 >= fields.size()) continue;
        const Mount mount{unescaped(fields[4]), unescaped(fields[separator + 2])};
        if (fields[2] == wanted) return mount;
        struct stat st {
        };
        if (subvolume.point.isEmpty() && fields[separator + 1] == "btrfs" && stat(mount.point.constData(), &st) == 0 &&
            quint64(st.st_dev) == device)
            subvolume = mount;
    }
    return subvolume;
}

// The UUID udev names the source device by, for kernels without the query.
QByteArray uuidNamingDevice(const QByteArray &source)
{
    if (!source.startsWith('/')) return {};
    const QString device = QFileInfo(QString::fromLocal8Bit(source)).canonicalFilePath();
    const QDir byUuid(QStringLiteral("/dev/disk/by-uuid"));
    for (const QFileInfo &link : byUuid.entryInfoList(QDir::System | QDir::Files | QDir::NoDotAndDotDot))
        if (!device.isEmpty() && link.canonicalFilePath() == device) return link.fileName().toLatin1();
    return {};
}

} // namespace

quint64 volumeIdOf(quint64 device)
{
    const Mount mount = mountOf(device);
    if (mount.point.isEmpty()) return device;
    const int fd = open(mount.point.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return device;
    QByteArray identity;
    struct stat st {
    };
    struct statfs fs {
    };
    // A mount point covered by another mount shows that one: then nothing is known.
    if (fstat(fd, &st) == 0 && quint64(st.st_dev) == device && fstatfs(fd, &fs) == 0) {
        FileSystemUuid uuid{};
        uuid.length = 16;
        if (fs.f_type == BTRFS_SUPER_MAGIC) {
            // btrfs draws its fsid from its UUID and the subvolume, whose files are numbered
            // alike in each: exactly what is wanted.
            identity = QByteArray("btrfs") + QByteArray(reinterpret_cast<const char *>(&fs.f_fsid), sizeof fs.f_fsid);
        } else if (ioctl(fd, kGetFileSystemUuid, &uuid) == 0 && uuid.length > 0 && uuid.length <= 16) {
            identity = QByteArray(reinterpret_cast<const char *>(uuid.uuid), uuid.length);
        } else {
            identity = uuidNamingDevice(mount.source);
        }
    }
    close(fd);
    if (identity.isEmpty()) return device;
    return XXH3_64bits(identity.constData(), std::size_t(identity.size())) | (quint64(1) << 63);
}

} // namespace selfsame
