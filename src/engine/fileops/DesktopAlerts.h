#pragma once

#include "fileops/Alert.h"
#include "fileops/DeleteActions.h"
#include "fileops/PutBack.h"
#include "fileops/Replacement.h"

#include <optional>

namespace selfsame {

// Alerts of the file commands as a Linux desktop names things: the Trash, the file manager,
// its file systems, and the commands of this application's own menus.

// The one-time note before the first move to the trash: how files come back.
Alert putBackNote();

// Why a file could not be moved to the trash, as far as it can be told afterwards.
enum class TrashFailureCause {
    NoTrashFolder, // its drive has no trash folder that may be used
    Permission,    // its folder may not be changed by this user
    Other,
};
TrashFailureCause trashFailureCause(const QString &path);

// The answers that the failure alert may offer, besides OK.
enum class TrashFailureOffer { DeleteImmediately, ShowInFileManager };

struct TrashFailureQuestion {
    Alert alert;
    QList<TrashFailureOffer> offers; // the buttons after OK, in order
};
// After a move to the trash that failed for some targets; nullopt when none failed. It says why
// and offers what can still be done: deleting for good where only the trash is missing, the
// folder in the file manager where permission is lacking.
std::optional<TrashFailureQuestion> trashFailureQuestion(const DeleteReport &report, const QList<ResultItem *> &targets,
                                                          TrashFailureCause cause);

// After putting items back from the trash failed for some of them; nullopt when none failed.
std::optional<Alert> putBackFromTrashFailure(const PutBackSummary &summary, const QList<ResultItem *> &targets);


} // namespace selfsame
