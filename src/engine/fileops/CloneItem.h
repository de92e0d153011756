#pragma once

#include <QString>
#include <sys/types.h>

namespace selfsame
{

// Makes `destination` (which must not exist) a copy-on-write clone of `source` with FICLONE.
// A file is cloned or nothing is made; a folder is cloned file by file, falling back to a
// copy of each file that cannot be cloned. Neither the source nor the destination is followed
// when it is a symbolic link. Only the data and the mode bits are carried: the caller
// restores the rest from a snapshot. Returns 0, or an errno value with nothing left behind.
int cloneItem(const QString &source, const QString &destination, bool isFolder);

// Copies a regular file's bytes into a new file at `destination` by reading and writing, so
// that the copy shares no storage with its source (as a clone or a kernel-side copy may), and
// syncs it to the disk. The copy gets `mode`'s permission bits. Returns 0, or an errno value
// with nothing left behind.
int copyWithoutSharing(const QString &source, const QString &destination, mode_t mode);

// rename() that never replaces an existing entry. Returns 0 or an errno value.
int renameNoReplace(const QString &from, const QString &to);

// Removes a file, a symbolic link or a whole folder tree (not following links).
// Returns 0 or the errno value of the first failure.
int removeItem(const QString &path);

} // namespace selfsame
