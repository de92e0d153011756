#pragma once

#include "DesktopAlerts.h"
#include "fileops/DeleteFlow.h"

#include <functional>

namespace selfsame {

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
