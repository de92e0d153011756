#pragma once

#include "fileops/Alert.h"
#include "fileops/CloneWorker.h"

#include <QVariantMap>
#include <functional>

namespace selfsame
{

class Journal;

// Entries of the "do not show again" dictionary that replacing by clones reads and writes.
inline constexpr char kReplaceClonesCompareFolders[] = "replace clones + compare folders";
inline constexpr char kBypassWriteProtection[] = "bypass write-protection";

struct CloneActionRequest {
    QList<ResultItem *> targets;   // the rows acted on
    QList<ResultItem *> mainItems; // the top list, used when fewer than two rows are targeted
    DuplicatesFor duplicatesFor;
    bool compareFolders = false;   // the search compared whole folders
    QVariantMap doNotShowAgain;    // the remembered answers
    QString planPath;              // where to write the plan; a private temporary file when empty
    Journal *journal = nullptr;    // where the cloning pass records its steps
};

// How a window presents the action: its questions, the plan, and the progress of each pass.
struct CloneActionUi {
    std::function<AlertAnswer(const Alert &)> ask;
    std::function<void(const QString &planPath)> viewPlan;
    std::function<void(bool perform)> beginPass;
    std::function<bool(int index, int count)> progress; // false when the user stopped the pass
    std::function<void()> endPass;
};

struct CloneActionResult {
    QVariantMap doNotShowAgain;   // entries to store
    bool performed = false;       // the cloning pass ran, whole or in part
    QList<ResultItem *> cloned;
    QList<CloneFailure> failures;
    QString planPath;             // the plan of the confirmation, for "View Cloning Plan"
};

// Replaces duplicates by clones: the warning about compared folders, a planning pass, the
// confirmation built from the plan (its plan viewable without leaving the question), the
// write-protection and other-owner questions, then the cloning pass.
CloneActionResult runCloneAction(const CloneActionRequest &request, const CloneActionUi &ui);

} // namespace selfsame
