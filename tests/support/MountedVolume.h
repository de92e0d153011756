#pragma once

#include "support/TempTree.h"

#include <QString>
#include <QStringList>

// A file system mounted for one test inside a temporary tree, and always unmounted:
// "btrfs", "xfs" and "ext4" on a loop-mounted image, "tmpfs" directly. mount() says why it could
// not mount, for GTEST_SKIP.
class MountedVolume
{
public:
    explicit MountedVolume(QString type) : m_type(std::move(type)) {}
    ~MountedVolume();
    MountedVolume(const MountedVolume &) = delete;
    MountedVolume &operator=(const MountedVolume &) = delete;

    // Empty on success, else why not.
    QString mount();
    // Unmounts an image and mounts it again on another loop device, so that its files show
    // another device number. Empty on success, else why not.
    QString mountAgainOnAnotherDevice();
    QString path(const QString &rel = {}) const
    {
        return rel.isEmpty() ? m_mountPoint : m_mountPoint + u'/' + rel;
    }

private:
    QString m_type;
    TempTree m_tree;
    QString m_mountPoint;
    bool m_mounted = false;
};

// Runs `script` with sh -c; the arguments are $0, $1…
bool shell(const QString &script, const QStringList &arguments);
