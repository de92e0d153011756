#include "fileops/PutBack.h"

#include "fileops/CloneItem.h"
#include "fileops/DeleteChecks.h"
#include "fileops/ErrorText.h"
#include "fileops/FSMetadata.h"
#include "fileops/ItemSafety.h"
#include "fileops/Trash.h"
#include "format/Formatters.h"
#include "journal/Journal.h"
#include "names/FileNames.h"

#include <QCoreApplication>
#include <QFile>
#include <unistd.h>
#include <cerrno>

namespace selfsame
{

namespace
{

struct PutBackText {
    Q_DECLARE_TR_FUNCTIONS(PutBack)
};

PutBackResult moveBack(const QString &from, const QString &to)
{
    PutBackResult result;
    result.error = renameNoReplace(from, to);
    if (result.error) result.errorText = errorText(result.error);
    return result;
}

} // namespace

PutBackResult putBackItem(ResultItem &item, Journal *journal)
{
    if (item.trashedURL().isEmpty() || item.has(Deleted))
        return {ENOENT, PutBackText::tr("“%1” is not in the Trash.").arg(displayName(item.path))};
    PutBackResult result = putBackFile(item.trashedURL(), item.path, journal);
    if (result.ok()) {
        removePutBackAttribute(item.path);
        item.setTrashedURL({});
        item.setStatusImage({});
        recordCurrentState(item); // the same file, its change time moved by the moves

    }
    return result;
}

PutBackResult putBackFile(const QString &trashedPath, const QString &destination, Journal *journal, qint64 undoes)
{
    // Recorded first: one interrupted after the move leaves a trash record to remove.
    JournaledStep journaled{journal, {}};
    journaled.step.kind = PutBackFromTrash;
    journaled.step.path = destination;
    journaled.step.away = trashedPath;
    journaled.step.undoes = undoes;
    if (!journaled.begin())
        return {
            EIO,
            PutBackText::tr("The operations journal could not record the step: %1").arg(journal->error())};
    PutBackResult result = moveBack(trashedPath, destination);
    if (result.ok()) {
        faultPoint("putback.moved");
        journaled.reach(Replaced);
        removePutBackAttribute(trashedPath); // fails unnoticed: the file is no longer there
        unlink(pathBytes(trashInfoPathFor(trashedPath)).constData());
        journaled.finish();
    } else {
        journaled.reach(Done);
    }
    return result;
}

PutBackSummary putBackItems(const QList<ResultItem *> &targets, Journal *journal)
{
    const BatchScope batch(journal, QStringLiteral("put back"));
    PutBackSummary summary;
    for (ResultItem *item : targets) {
        if (item->trashedURL().isEmpty() || item->has(Deleted)) continue;
        if (const PutBackResult result = putBackItem(*item, journal); result.ok()) {
            summary.putBack.append(item);
        } else {
            ++summary.failures;
            summary.lastErrorText = result.errorText;
        }
    }
    return summary;
}

std::optional<Alert> putBackFailureAlert(const PutBackSummary &summary, const QList<ResultItem *> &targets)
{
    if (summary.failures == 0 || targets.isEmpty()) return std::nullopt;
    const QString message =
        targets.size() == 1
            ? PutBackText::tr("“%1” could not be put back from the Trash.")
                  .arg(displayName(targets.first()->path))
            : PutBackText::tr("%1 could not be put back from the Trash.").arg(formatCount(summary.failures));
    return Alert{message, summary.lastErrorText, {PutBackText::tr("Cancel")}, 0, 0};
}

Alert putBackQuestion(const QString &trashedPath, const QString &destination, int fileCount)
{
    QStringList buttons{PutBackText::tr("Put Back"), PutBackText::tr("Cancel")};
    if (fileCount >= 2) buttons << PutBackText::tr("Put Back All");
    return Alert{PutBackText::tr("Do you want to put back “%1” to its original location “%2”?")
                     .arg(displayName(trashedPath), displayPath(destination)),
                 {},
                 buttons,
                 0,
                 1};
}

Alert putBackErrorAlert(const QString &trashedPath, const QString &destination, const QString &errorText,
                        bool firstAttempt)
{
    QStringList buttons{PutBackText::tr("Cancel")};
    if (firstAttempt)
        buttons << PutBackText::tr("Grant Access to “%1”…").arg(displayName(parentFolder(destination)));
    return Alert{PutBackText::tr("Error: “%1” could not be put back to “%2”")
                     .arg(displayName(trashedPath), displayPath(destination)),
                 errorText, buttons, 0, 0};
}

} // namespace selfsame
