#pragma once

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>
#include <optional>
#include <sys/stat.h>
#include <sys/types.h>
#include <time.h>

namespace selfsame
{

// A snapshot of one file's metadata, taken before the file is deleted or cloned over and put
// back onto what replaces it. Every part is optional: it is absent when its read failed.
struct FSMetadata {
    // "xattr": the user.* extended attributes with a non-empty value.
    std::optional<QList<QPair<QByteArray, QByteArray>>> xattr;
    // "urlResources": access and modification times (nanoseconds) and the inode flags
    // (immutable, append-only, no-dump…).
    std::optional<timespec> accessTime, modificationTime;
    std::optional<int> inodeFlags;
    std::optional<mode_t> permissions; // "permissions": the whole st_mode
    std::optional<uid_t> uid;
    std::optional<gid_t> gid;
    std::optional<QByteArray> acl;        // "ACL": the access ACL in text form, when extended
    std::optional<QByteArray> defaultAcl; // a folder's default ACL in text form
    // "parentSec"/"parentMicroSec" kept with nanoseconds, and "parentPermissions".
    std::optional<timespec> parentModificationTime;
    std::optional<mode_t> parentPermissions;
};

FSMetadata captureFSMetadata(const QString &path);

// The steps of a restore that did not take; zero when everything came back.
enum RestoreFailure : unsigned {
    RestoreXattr = 1 << 0,
    RestoreTimes = 1 << 1,
    RestoreFlags = 1 << 2,
    RestoreMode = 1 << 3,
    RestoreAcl = 1 << 4,
    RestoreOwner = 1 << 5,
    RestoreParent = 1 << 6,
};

// Puts the snapshot back onto `path`: attributes, mode with owner-write while the ACL and
// owner are set, ACL, owner and group, exact mode, times, flags last (an immutable file takes
// nothing more), then the parent folder's modification time and mode.
unsigned restoreFSMetadata(const QString &path, const FSMetadata &metadata);

// Only the last step of a restore: the parent folder's modification time and mode, for when
// the folder changed again after the restore.
unsigned restoreParentFolder(const QString &path, const FSMetadata &metadata);

// The snapshot as bytes, to be kept while the file is gone (the operations journal), and back.
QByteArray encodeFSMetadata(const FSMetadata &metadata);
std::optional<FSMetadata> decodeFSMetadata(const QByteArray &bytes);

// The parent folder of an absolute path ("/" for a top-level entry).
QString parentFolder(const QString &path);

} // namespace selfsame
