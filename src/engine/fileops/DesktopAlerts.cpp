#include "fileops/DesktopAlerts.h"

#include "fileops/CloneAlerts.h"
#include "fileops/DeleteChecks.h"
#include "fileops/FSMetadata.h"
#include "fileops/Trash.h"
#include "format/Formatters.h"
#include "names/FileNames.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <unistd.h>

namespace selfsame {

namespace {

struct TrashAlertsText {
    Q_DECLARE_TR_FUNCTIONS(TrashAlerts)
};

} // namespace

Alert putBackNote()
{
    return Alert{
        TrashAlertsText::tr("Items moved to the Trash by Selfsame can be put back where they were."),
        TrashAlertsText::tr(
            "Use Actions › Put Back from Trash while these results are open, or restore them from the "
            "Trash in the file manager. A file from the Trash opened with Selfsame (even after a "
            "restart) is offered to be put back too."),
        {TrashAlertsText::tr("Good to Know!")}};
}

TrashFailureCause trashFailureCause(const QString &path)
{
    if (trashFolderFor(path).isEmpty()) return TrashFailureCause::NoTrashFolder;
    const QByteArray folder = pathBytes(parentFolder(path));
    if (::access(folder.constData(), W_OK | X_OK) != 0) return TrashFailureCause::Permission;
    return TrashFailureCause::Other;
}

std::optional<TrashFailureQuestion> trashFailureQuestion(const DeleteReport &report, const QList<ResultItem *> &targets,
                                                          TrashFailureCause cause)
{
    // The engine's own alert knows which items were left alone and why; only its words about
    // the trash and its offers are this desktop's.
    const std::optional<Alert> engine = trashFailureAlert(report, targets);
    if (!engine) return std::nullopt;
    TrashFailureQuestion question;
    Alert &alert = question.alert;
    alert.message = targets.size() == 1 ? TrashAlertsText::tr("“%1” could not be moved to the Trash.")
                                              .arg(displayName(targets.first()->path))
                                        : TrashAlertsText::tr("%Ln file(s) could not be moved to the Trash.",
                                                              nullptr, report.removalFailures);
    QString why;
    switch (cause) {
    case TrashFailureCause::NoTrashFolder:
        why = TrashAlertsText::tr(
                  "The drive “%1” has no trash folder that you may use. You can delete the files immediately "
                  "instead, which cannot be undone.")
                  .arg(displayPath(topDirectory(report.firstFailedPath)));
        question.offers = {TrashFailureOffer::DeleteImmediately};
        break;
    case TrashFailureCause::Permission:
        why = TrashAlertsText::tr("You do not have permission to change the folder “%1”, so nothing can be "
                                  "moved out of it. Its "
                                  "owner or an administrator can give you that permission.")
                  .arg(displayPath(parentFolder(report.firstFailedPath)));
        question.offers = {TrashFailureOffer::ShowInFileManager};
        break;
    case TrashFailureCause::Other:
        question.offers = {TrashFailureOffer::DeleteImmediately};
        break;
    }
    // Files left alone because they changed since the search would be left alone by a deletion
    // too: only OK is left to offer.
    if (report.refused.size() >= report.removalFailures) question.offers.clear();
    alert.informative = why.isEmpty() ? engine->informative
                        : engine->informative.isEmpty() ? why
                                                        : why + QStringLiteral("\n\n") + engine->informative;
    alert.buttons = {TrashAlertsText::tr("OK")};
    for (TrashFailureOffer offer : std::as_const(question.offers)) {
        if (offer == TrashFailureOffer::DeleteImmediately) {
            alert.destructiveButton = int(alert.buttons.size());
            alert.buttons.append(TrashAlertsText::tr("Delete Immediately…"));
        } else {
            alert.buttons.append(TrashAlertsText::tr("Show in File Manager"));
        }
    }
    alert.defaultButton = 0;
    alert.cancelButton = 0;
    return question;
}

std::optional<Alert> putBackFromTrashFailure(const PutBackSummary &summary, const QList<ResultItem *> &targets)
{
    if (summary.failures == 0 || targets.isEmpty()) return std::nullopt;
    const QString message = targets.size() == 1
                                ? TrashAlertsText::tr("“%1” could not be put back from the Trash.")
                                      .arg(displayName(targets.first()->path))
                                : TrashAlertsText::tr("%1 could not be put back from the Trash.")
                                      .arg(formatCount(summary.failures));
    return Alert{message, summary.lastErrorText, {TrashAlertsText::tr("Cancel")}, 0, 0};
}

} // namespace selfsame
