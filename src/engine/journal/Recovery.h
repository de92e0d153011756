#pragma once

#include "journal/Journal.h"

#include <QStringList>

namespace selfsame
{

struct RecoveryReport {
    QStringList rolledBack; // paths given back their original
    QStringList finished;   // paths whose step was past its point of no return, now completed
    QStringList failed;     // "path: why"
    int planFoldersRemoved = 0; // cloning plans' folders left by processes that were killed
    bool isEmpty() const { return rolledBack.isEmpty() && finished.isEmpty() && failed.isEmpty(); }
};

// Finishes or rolls back every step the journal holds as unfinished, oldest first. Before its
// point of no return a step is rolled back: the original comes back to its path (from beside
// it or from the trash, never over another file), and whatever the step had made beside it,
// or recorded in the trash without its file, is removed. After it, the step is finished: the
// original set aside for deletion is removed. Afterwards no file is missing from its path and
// nothing of ours is left beside it. The temporary folders of cloning plans whose process is
// gone are removed too.
// Finished batches are forgotten after this many days; until then they can be undone.
inline constexpr int kJournalDays = 90;
RecoveryReport recoverInterrupted(Journal &journal);

} // namespace selfsame
