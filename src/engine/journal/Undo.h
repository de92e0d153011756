#pragma once

#include "journal/Journal.h"

#include <QStringList>
#include <functional>
#include <optional>

namespace selfsame
{

// What the user reads of a batch: "Moved to the trash and replaced with hard links".
QString describeBatch(const JournalBatch &batch);
// Its state: "can be undone", "undone", "partly undone" or "cannot be undone".
QString batchState(const JournalBatch &batch);
// Whether an undo has something to give back: a batch of files moved to the trash, replaced
// or cloned, not undone yet. Deletions with nothing in their place cannot be undone.
bool isUndoable(const JournalBatch &batch);
// The newest batch that can be undone.
std::optional<JournalBatch> lastUndoableBatch(Journal &journal);

struct UndoReport {
    QStringList undone;          // the paths given back what they held before the batch
    QStringList refused;         // "path: why", left as they are
    QStringList deletedForGood;  // paths whose file is gone: a deletion cannot be undone
    QString error;               // why nothing was tried, when nothing was
    bool succeeded() const { return error.isEmpty() && refused.isEmpty(); }
};

// One line of the undo history: "Moved to the trash · 3 files · 24 Nov 2026 22:01".
QString historyEntry(const JournalBatch &batch);
// What an undo did, as a title and a message: "“Moved to the trash” was undone" and the
// files given back, refused (with why) and gone for good.
struct UndoSummary {
    QString title, message, details;
    bool complete = false; // every file that could be given back was
};
UndoSummary summarizeUndo(const JournalBatch &batch, const UndoReport &report);

// The free bytes of the file system holding `path`, for the space check before copies.
using FreeSpace = std::function<qint64(const QString &path)>;
qint64 freeSpaceOf(const QString &path);

// Undoes the batch, newest step first, each step journaled as a batch of its own:
// - a file moved to the trash is put back;
// - a file replaced by a link or a clone while its original went to the trash gets its
//   original back from the trash;
// - a link that replaced a file deleted for good becomes an independent copy of the kept file
//   again, with the deleted file's dates, extended attributes, permissions, owner and ACL;
// - a clone becomes an independent copy that shares no storage, with the same metadata, once
//   the drives are known to hold the copies.
// A file that changed since the batch (or whose kept copy did, or whose original left the
// trash) is refused with the reason. Steps undone before are passed over, so an undo that was
// refused in part may be run again.
UndoReport undoBatch(Journal &journal, qint64 batch, const FreeSpace &freeSpace = freeSpaceOf);

} // namespace selfsame
