#pragma once

#include "results/ResultItem.h"

#include <QList>
#include <QString>

namespace selfsame
{

enum class DeleteKind { Trash, Delete };

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
};

// Moves `targets` to the trash (kind Trash) or deletes them (kind Delete) and, with a
// reference and a mode other than 0, puts the mode's replacement at each path. Every item is
// first checked against what the search recorded, and the reference too when replacing; a
// changed file is left alone and counts as a failure. A replacement is made beside the file
// first, then swapped in: when any step fails the file stays where it was, unchanged.
// Marks the items: trashedURL for a plain move to the trash, the Deleted flag after deletion,
// and the status image of what was done.
// Without a reference the items are removed and given the mode's status, as asked.
DeleteReport performDeleteAction(DeleteKind kind, int mode, ResultItem *reference,
                                 const QList<ResultItem *> &targets);

// A path beside `path` that nothing uses: "path_UNIQUE".
QString besidePath(const QString &path);

} // namespace selfsame
