#include "fileops/DeleteFlow.h"

#include "fileops/FSMetadata.h"
#include "fileops/Trash.h"

namespace selfsame
{

namespace
{

bool proceeds(const CheckOutcome &check, const DeleteActionUi &ui)
{
    return !check.alert || check.proceedsWith(ui.ask(*check.alert));
}

} // namespace

DeleteActionResult runDeleteAction(const DeleteActionRequest &request, const DeleteActionUi &ui)
{
    DeleteActionResult result;
    if (request.kind == DeleteKind::Trash && request.showPutBackTip) {
        ui.ask(putBackTipAlert());
        result.putBackTipShown = true;
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
    if (request.kind == DeleteKind::Trash) {
        if (const auto failed = trashFailureAlert(report, request.targets)) {
            const int answer = ui.ask(*failed);
            if (answer == kFirstButton + 1) {
                DeleteActionRequest deletion = request;
                deletion.kind = DeleteKind::Delete;
                deletion.showPutBackTip = false;
                runDeleteAction(deletion, ui);
            } else if (answer == kFirstButton + 2 && ui.ask(grantTrashAccessAlert()) == kFirstButton &&
                       ui.grantAccessTo) {
                ui.grantAccessTo(topDirectory(parentFolder(report.firstFailedPath)));
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
