#include "support/LoopBtrfs.h"

#include <QFile>
#include <QProcess>

#include <fcntl.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

bool shell(const QString &script, const QStringList &arguments)
{
    const QStringList command{QStringLiteral("-c"), QStringLiteral("PATH=$PATH:/usr/sbin:/sbin; ") + script};
    return QProcess::execute(QStringLiteral("sh"), command + arguments) == 0;
}

} // namespace

LoopBtrfs::LoopBtrfs(TempTree &tree, const QString &mountRel) : m_tree(tree)
{
    if (geteuid() != 0) {
        m_skipReason = "not running as root: cannot mount a btrfs image";
        return;
    }
    const QString image = tree.file(mountRel + QStringLiteral(".img"), {});
    m_mountPoint = tree.folder(mountRel);
    m_mounted = QFile::resize(image, qint64(256) << 20) &&
                shell(QStringLiteral("mkfs.btrfs -q \"$0\" && mount -o loop \"$0\" \"$1\""), {image, m_mountPoint});
    if (!m_mounted)
        m_skipReason = "could not make a btrfs image and mount it with -o loop (no mkfs.btrfs or loop device?)";
}

LoopBtrfs::~LoopBtrfs()
{
    if (m_mounted)
        shell(QStringLiteral("umount \"$0\" || umount -l \"$0\""), {m_mountPoint});
}

QString LoopBtrfs::clone(const QString &source, const QString &rel)
{
    const QString path = m_tree.file(rel, {});
    const int from = open(source.toStdString().c_str(), O_RDONLY);
    const int to = open(path.toStdString().c_str(), O_WRONLY);
    const bool cloned = from >= 0 && to >= 0 && ioctl(to, FICLONE, from) == 0;
    if (from >= 0)
        close(from);
    if (to >= 0)
        close(to);
    return cloned ? path : QString();
}
