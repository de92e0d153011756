#pragma once

#include <QString>

namespace selfsame
{

// The extended attribute that records, on a file in the trash, the path it came from.
inline constexpr char kPutBackAttribute[] = "user.trash_putback_path";

struct TrashResult {
    QString trashedPath; // where the file now lies; empty on failure
    int error = 0;       // errno value on failure
    QString errorText;
};

// Moves a file or folder to the trash of its volume as the freedesktop.org Trash
// specification says: the home trash ($XDG_DATA_HOME/Trash) for the home volume, else
// $topdir/.Trash/$uid (when the administrator made .Trash) or $topdir/.Trash-$uid. Writes the
// info/NAME.trashinfo record, picks a free name on collision, moves the file by rename
// (never by copy) and writes the put-back attribute on the moved file itself.
TrashResult trashItem(const QString &path);

// The mount point holding `path`: the highest ancestor on the same device.
QString topDirectory(const QString &path);

// The trash folder (holding files/ and info/) that trashItem would use for `path`; empty
// when there is none.
QString trashFolderFor(const QString &path);

// The former path recorded for a file in the trash: its put-back attribute, else the Path=
// of its .trashinfo. Empty when neither exists.
QString putBackPath(const QString &trashedPath);
// Whether the file carries the put-back attribute itself.
bool hasPutBackAttribute(const QString &trashedPath);
bool removePutBackAttribute(const QString &path);

// The .trashinfo file that describes a file in a trash's files/ folder (it may not exist).
QString trashInfoPathFor(const QString &trashedPath);

// Percent-encoding of a path for a Path= line: RFC 2396 escapes, '/' kept.
QByteArray encodeTrashInfoPath(const QString &path);

} // namespace selfsame
