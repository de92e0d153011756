#pragma once

#include "fileops/Alert.h"
#include "fileops/DeleteActions.h"
#include "fileops/DeleteChecks.h"

#include <functional>

namespace selfsame
{

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

// How a window presents the questions of an action.
struct DeleteActionUi {
    std::function<int(const Alert &)> ask; // the answer code of the pressed button
    // Lets the user choose the volume whose trash could not be used; true when chosen.
    std::function<bool(const QString &volumePath)> grantAccessTo;
};

struct DeleteActionResult {
    bool putBackTipShown = false;
    bool performed = false; // files were acted on; the lists need refreshing
};

// Asks what must be asked, in this order: the put-back note (first move to the trash only),
// the reference check, the warning about selecting every copy of a file, the file-system
// warning when replacing, the confirmation of an immediate deletion; then acts and reports
// the failures. After a failed move to the trash the user may delete immediately instead
// (the whole deletion runs, its confirmation included) or choose the volume.
DeleteActionResult runDeleteAction(const DeleteActionRequest &request, const DeleteActionUi &ui);

} // namespace selfsame
