#pragma once

#include "fileops/DeleteActions.h"
#include "fileops/DeleteChecks.h"
#include "fileops/DesktopAlerts.h"

#include <functional>

namespace selfsame {

class Journal;

// A move to the trash or an immediate deletion as the user asked for it.
struct DeleteActionRequest {
    DeleteKind kind = DeleteKind::Trash;
    int mode = 0;                    // the ReplaceWithMode in force
    ResultItem *reference = nullptr; // the kept file, when acting on the bottom list
    QList<ResultItem *> targets;     // in row order
    DuplicatesFor duplicatesFor;
    Journal *journal = nullptr;  // where every step is recorded before it begins
    bool showPutBackTip = false; // the one-time note about putting back has not been shown yet
};

// How a results window presents the questions of Move to Trash and Delete Immediately.
struct DeleteCommandUi {
    std::function<int(const Alert &)> ask; // the answer code of the pressed button
    std::function<void(const QString &path)> showInFileManager;
    // Why moving this path to the trash failed; the real file system's answer by default.
    std::function<TrashFailureCause(const QString &path)> trashFailureCause = selfsame::trashFailureCause;
};

struct DeleteCommandResult {
    bool putBackNoteShown = false;
    bool performed = false;         // files were acted on; the lists need refreshing
    QList<DeleteOutcome> outcomes;  // of every pass (a deletion after a failed move comes last)
};

// Move to Trash or Delete Immediately as the user asked for it: the engine's checks, questions
// and file steps in their order, with the trash named and its failures explained as this
// desktop does. After a failed move to the trash the user may delete immediately instead (its
// confirmation included), or look at the folder that may not be changed.
DeleteCommandResult runDeleteCommand(const DeleteActionRequest &request, const DeleteCommandUi &ui);

} // namespace selfsame
