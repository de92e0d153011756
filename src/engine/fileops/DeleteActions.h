#pragma once

#include "results/ResultItem.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>

namespace selfsame
{

class Journal;

enum class DeleteKind { Trash, Delete };

// The items of an item's duplicate group, the item itself included.
using DuplicatesFor = std::function<QList<ResultItem *>(const ResultItem &)>;

struct DeleteOutcome {
    ResultItem *item = nullptr;
    QString status;       // status image name to show; empty when the item was not touched
    QString error;        // why it failed, when it did
    bool skipped = false; // already in the trash or deleted
};

struct DeleteReport {
    QList<DeleteOutcome> outcomes;
    int removalFailures = 0;            // not moved to the trash, or not deleted
    int replacementFailures = 0;        // replacement not made; the file was left where it was
    QString lastReference, lastDeleted; // paths of the last replacement failure
    QString lastErrorText;              // of the last removal failure
    QString firstFailedPath;
    QStringList refused;                // left alone: changed, or no safe kept copy
};

// Moves `targets` to the trash (kind Trash) or deletes them (kind Delete) and, with a
// reference and a mode other than 0, puts the mode's replacement at each path. A replacement
// is made beside the file first, then swapped in: when any step fails the file stays where it
// was, unchanged. Marks the items: trashedURL for a plain move to the trash, the Deleted flag
// after deletion, and the status image of what was done.
// Right before each step, the item and its kept copy (the reference, else the first other
// copy of its group that is not acted on and passes) are checked: neither changed since the
// search, not one file reached twice, and, for a deletion and for a trash onto another device,
// the same bytes. An item that fails is left alone and counts as refused. Without any other
// copy left (the user chose to remove them all) only the item itself is checked.
// Without a reference the items are removed and given the mode's status, as asked.
// With a journal, every step is recorded before it begins (journal/Journal.h), so that an
// action killed at any point is finished or rolled back by recovery.
DeleteReport performDeleteAction(DeleteKind kind, int mode, ResultItem *reference,
                                 const QList<ResultItem *> &targets, const DuplicatesFor &duplicatesFor = {},
                                 Journal *journal = nullptr);

// A path beside `path` that nothing uses: "path_UNIQUE".
QString besidePath(const QString &path);

} // namespace selfsame
