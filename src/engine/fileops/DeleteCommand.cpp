#include "fileops/DeleteCommand.h"

namespace selfsame {

namespace {

bool proceeds(const CheckOutcome &check, const DeleteCommandUi &ui)
{
    return !check.alert || check.proceedsWith(ui.ask(*check.alert));
}

} // namespace

DeleteCommandResult runDeleteCommand(const DeleteActionRequest &request, const DeleteCommandUi &ui)
{
    DeleteCommandResult result;
    if (request.kind == DeleteKind::Trash && request.showPutBackTip) {
        ui.ask(putBackNote());
        result.putBackNoteShown = true;
    }
    QStringList paths;
    for (const ResultItem *item : request.targets)
        paths.append(item->path);
    if (!proceeds(checkReferenceItem(request.mode, request.reference, request.targets), ui) ||
        !proceeds(doesItemsContainsAllDupesOfAnyItem(request.targets, paths, request.duplicatesFor), ui) ||
        !proceeds(checkFilesystemForDeleteAction(request.mode, paths), ui))
        return result;
    if (request.kind == DeleteKind::Delete && ui.ask(deleteConfirmationAlert(request.targets)) != kFirstButton)
        return result;

    const DeleteReport report = performDeleteAction(request.kind, request.mode, request.reference, request.targets,
                                                    request.duplicatesFor, request.journal);
    result.performed = true;
    result.outcomes = report.outcomes;
    if (request.kind == DeleteKind::Trash) {
        const TrashFailureCause cause =
            report.firstFailedPath.isEmpty() ? TrashFailureCause::Other : ui.trashFailureCause(report.firstFailedPath);
        if (const auto failed = trashFailureQuestion(report, request.targets, cause)) {
            const int offer = ui.ask(failed->alert) - kFirstButton - 1;
            if (offer >= 0 && offer < failed->offers.size()) {
                if (failed->offers[offer] == TrashFailureOffer::DeleteImmediately) {
                    DeleteActionRequest deletion = request;
                    deletion.kind = DeleteKind::Delete;
                    deletion.showPutBackTip = false;
                    result.outcomes += runDeleteCommand(deletion, ui).outcomes;
                } else if (ui.showInFileManager) {
                    ui.showInFileManager(report.firstFailedPath);
                }
            }
        }
    } else if (const auto failed = deletionFailureAlert(report, request.targets)) {
        ui.ask(*failed);
    }
    if (const auto failed = postDeleteActionFailedForCount(report.replacementFailures, request.mode,
                                                           report.lastReference, report.lastDeleted))
        ui.ask(*failed);
    return result;
}

} // namespace selfsame
