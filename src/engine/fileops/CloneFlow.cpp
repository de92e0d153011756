#include "fileops/CloneFlow.h"

#include "fileops/CloneAlerts.h"

namespace selfsame
{

namespace
{

QString entry(const char *name)
{
    return QString::fromLatin1(name);
}

// Runs one pass of the worker between the window's begin and end of a pass.
bool runPass(CloneWorker &worker, const CloneActionUi &ui, bool perform, bool overide, bool changeOwner,
             CloneCounts *counts)
{
    if (ui.beginPass) ui.beginPass(perform);
    const bool finished = worker.perform(perform, overide, changeOwner, counts);
    if (ui.endPass) ui.endPass();
    return finished;
}

} // namespace

CloneActionResult runCloneAction(const CloneActionRequest &request, const CloneActionUi &ui)
{
    CloneActionResult result;
    if (request.compareFolders && !request.doNotShowAgain.value(entry(kReplaceClonesCompareFolders)).toBool()) {
        const AlertAnswer answer = ui.ask(compareFoldersCloneAlert());
        if (answer.code != kFirstButton) return result;
        if (answer.suppress) result.doNotShowAgain.insert(entry(kReplaceClonesCompareFolders), true);
    }

    CloneWorker worker(request.targets, request.mainItems, request.duplicatesFor);
    worker.planPath = request.planPath;
    worker.journal = request.journal;
    worker.progress = ui.progress;
    CloneCounts counts;
    if (!runPass(worker, ui, false, true, true, &counts)) return result;
    result.planPath = worker.logFilePath();
    if (counts.replaceDuplicates == 0 || counts.byClones == 0) {
        ui.ask(noClonableFileAlert());
        return result;
    }

    const Alert confirmation = cloneConfirmationAlert(counts);
    int answer = ui.ask(confirmation).code;
    while (answer == kFirstButton + 2) {
        if (ui.viewPlan && !result.planPath.isEmpty()) ui.viewPlan(result.planPath);
        answer = ui.ask(confirmation).code;
    }
    if (answer != kFirstButton) return result;

    bool overide = true;
    if (counts.writeProtected > 0) {
        const QVariant remembered = request.doNotShowAgain.value(entry(kBypassWriteProtection));
        int code = remembered.isValid() ? remembered.toInt() : 0;
        if (code != kFirstButton && code != kFirstButton + 1) {
            const AlertAnswer asked = ui.ask(writeProtectedCloneAlert(counts.writeProtected));
            code = asked.code;
            if (asked.suppress && code != kFirstButton + 2)
                result.doNotShowAgain.insert(entry(kBypassWriteProtection), code);
        }
        if (code == kFirstButton + 2) return result;
        overide = code == kFirstButton + 1;
    }
    bool changeOwner = true;
    if (counts.otherOwner > 0) {
        const int code = ui.ask(otherOwnerCloneAlert(counts.otherOwner)).code;
        if (code == kFirstButton + 2) return result;
        changeOwner = code == kFirstButton + 1;
    }

    runPass(worker, ui, true, overide, changeOwner, nullptr);
    result.performed = true;
    result.cloned = worker.cloned();
    result.failures = worker.failures();
    return result;
}

} // namespace selfsame
