#pragma once

#include "results/ResultItem.h"

#include <QHash>
#include <QList>
#include <QString>

namespace selfsame
{

// Why an item may no longer be acted on: it is gone, another file stands at its path (inode or
// device), or its size, modification or change time is not what the search recorded. Empty
// when it is as recorded. The change time catches a file written and given its old
// modification time back. Folders are compared by identity and times, since their size is a sum.
QString changedSinceSearch(const ResultItem &item);

// Why removing or replacing `item` in favour of `kept` could lose the last copy of its content:
// the kept copy is gone or changed; it is the same directory entry reached through another path
// (a symbolic link to a folder, a bind mount); it is the same file and not another hard link
// of it; or it leads to the item through a symbolic link. With compareBytes, their bytes must
// also be equal (for folders, their whole trees). Empty when `item` may go.
QString keptCopyProblem(const ResultItem &item, const ResultItem &kept, bool compareBytes);

// Why `item` cannot be replaced by a link or clone of `kept`: a contained folder holds the
// same files as part of its container, not the same tree. Empty when it can.
QString replacementProblem(const ResultItem &item, const ResultItem &kept);

// Whether two items were found to have the same content: equal digests, of files or folders.
bool sameFoundContent(const ResultItem &a, const ResultItem &b);

// Records what now stands at the item's path as what the search saw, after one of our own
// steps changed it (a replacement put there, a hard link added to the file).
void recordCurrentState(ResultItem &item);

// Whether two regular files hold the same bytes, read side by side.
bool sameContent(const QString &a, const QString &b);
// Whether two folders hold the same names, kinds, bytes and link targets at every depth.
bool sameTree(const QString &a, const QString &b);

// The items of one action, by the file they name. Removing or adding a link to a file moves
// its change time: the other items naming that file, unchanged before our step, are recorded
// again after it, so that our own steps never make them look changed.
class SharedFiles
{
public:
    void watch(ResultItem *item);
    // The watched items that name the same file as `item` and are as recorded, `item` included.
    QList<ResultItem *> unchangedSharing(const ResultItem &item) const;

private:
    QMultiHash<QPair<quint64, quint64>, ResultItem *> m_byFile;
};

} // namespace selfsame
