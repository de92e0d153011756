#include "support/MountedVolume.h"

#include <QFile>
#include <QProcess>
#include <unistd.h>

bool shell(const QString &script, const QStringList &arguments)
{
    const QStringList command{QStringLiteral("-c"), QStringLiteral("PATH=$PATH:/usr/sbin:/sbin; ") + script};
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.setStandardOutputFile(QProcess::nullDevice());
    process.start(QStringLiteral("sh"), command + arguments);
    return process.waitForFinished(120000) && process.exitStatus() == QProcess::NormalExit &&
           process.exitCode() == 0;
}

QString MountedVolume::mount()
{
    if (geteuid() != 0) return QStringLiteral("not running as root: cannot mount a %1 volume").arg(m_type);
    m_mountPoint = m_tree.folder(QStringLiteral("mnt"));
    if (m_type == u"tmpfs") {
        m_mounted = shell(QStringLiteral("mount -t tmpfs -o size=64m tmpfs \"$0\""), {m_mountPoint});
    } else {
        const QString image = m_tree.file(QStringLiteral("volume.img"), {});
        const QString format = m_type == u"xfs"    ? QStringLiteral("mkfs.xfs -q -m reflink=1 \"$0\"")
                               : m_type == u"ext4" ? QStringLiteral("mkfs.ext4 -q -F \"$0\"")
                                                   : QStringLiteral("mkfs.btrfs -q \"$0\"");
        m_mounted = QFile::resize(image, qint64(320) << 20) &&
                    shell(format + QStringLiteral(" && mount -o loop \"$0\" \"$1\""), {image, m_mountPoint});
    }
    return m_mounted
               ? QString()
               : QStringLiteral("could not make and mount a %1 volume (no mkfs or loop device?)").arg(m_type);
}

QString MountedVolume::mountAgainOnAnotherDevice()
{
    if (!m_mounted || m_type == u"tmpfs") return QStringLiteral("no image to mount again");
    // The loop device and the anonymous device number just freed would be taken again: another
    // image and a tmpfs hold them meanwhile.
    m_mounted = shell(QStringLiteral("umount \"$1\" && truncate -s 1M \"$2\" && held=$(losetup -f --show \"$2\") &&"
                                     " mkdir -p \"$3\" && mount -t tmpfs tmpfs \"$3\" && mount -o loop \"$0\" \"$1\";"
                                     " status=$?; umount \"$3\"; [ -n \"$held\" ] && losetup -d \"$held\"; exit $status"),
                      {m_tree.path(QStringLiteral("volume.img")), m_mountPoint, m_tree.path(QStringLiteral("holder.img")),
                       m_tree.path(QStringLiteral("holder"))});
    return m_mounted ? QString() : QStringLiteral("could not mount the %1 image again").arg(m_type);
}

MountedVolume::~MountedVolume()
{
    if (m_mounted) shell(QStringLiteral("umount \"$0\" || umount -l \"$0\""), {m_mountPoint});
}
