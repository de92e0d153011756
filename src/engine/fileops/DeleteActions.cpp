#include "fileops/DeleteActions.h"

#include "autoselect/AutoSelectRules.h"
#include "fileops/CloneItem.h"
#include "fileops/FSMetadata.h"
#include "fileops/ItemSafety.h"
#include "fileops/Replacement.h"
#include "fileops/Trash.h"
#include "names/FileNames.h"

#include <QCoreApplication>
#include <QFile>
#include <unistd.h>
#include <QSet>
#include <QUuid>
#include <cstring>

namespace selfsame
{

namespace
{

QString errorText(int error)
{
    return QString::fromLocal8Bit(std::strerror(error));
}

// Removes the file with no replacement. Returns the error text, empty on success.
QString removeOnly(DeleteKind kind, ResultItem &item, int mode, DeleteOutcome &outcome)
{
    if (kind == DeleteKind::Trash) {
        const TrashResult trashed = trashItem(item.path);
        if (trashed.trashedPath.isEmpty()) return trashed.errorText;
        outcome.status = statusImageName(true, mode);
        if (outcome.status == QStringLiteral("trashed")) item.setTrashedURL(trashed.trashedPath);
        return {};
    }
    if (const int error = removeItem(item.path)) return errorText(error);
    item.set(Deleted);
    outcome.status = statusImageName(false, mode);
    return {};
}

// Takes the original away from its path: into the trash, or aside to be removed once the
// replacement stands. Returns where it went (empty on failure).
QString takeAway(DeleteKind kind, const QString &path, QString *error)
{
    if (kind == DeleteKind::Trash) {
        const TrashResult trashed = trashItem(path);
        *error = trashed.errorText;
        return trashed.trashedPath;
    }
    const QString aside = besidePath(path);
    if (const int e = renameNoReplace(path, aside)) {
        *error = errorText(e);
        return {};
    }
    return aside;
}

void bringBack(DeleteKind kind, const QString &from, const QString &path)
{
    if (renameNoReplace(from, path) == 0 && kind == DeleteKind::Trash) {
        removePutBackAttribute(path);
        unlink(pathBytes(trashInfoPathFor(from)).constData());
    }
}

// Whether the kept copy must hold the same bytes: for a replacement deleted for good, and,
// among copies the search found equal, for a deletion or a trash onto another device.
bool comparesBytes(DeleteKind kind, bool replacing, const ResultItem &item, const ResultItem &kept)
{
    if (replacing) return kind == DeleteKind::Delete;
    return sameFoundContent(item, kept) && (kind == DeleteKind::Delete || kept.device != item.device);
}

// Why `item` must be left alone, checked right before it is acted on: it changed since the
// search, or no kept copy of it is safe to rely on. Empty when it may go.
QString whyNotSafe(DeleteKind kind, int mode, const ResultItem &item, const ResultItem *reference,
                   const QSet<const ResultItem *> &acting, const DuplicatesFor &duplicatesFor)
{
    if (QString changed = changedSinceSearch(item); !changed.isEmpty()) return changed;
    const bool replacing = reference && mode >= ReplaceWithAlias && mode <= ReplaceWithClone;
    if (reference) return keptCopyProblem(item, *reference, comparesBytes(kind, replacing, item, *reference));
    QString firstProblem;
    for (const ResultItem *other : duplicatesFor ? duplicatesFor(item) : QList<ResultItem *>{}) {
        if (other == &item || acting.contains(other) || isGone(*other)) continue;
        const QString problem = keptCopyProblem(item, *other, comparesBytes(kind, false, item, *other));
        if (problem.isEmpty()) return {};
        if (firstProblem.isEmpty()) firstProblem = problem;
    }
    return firstProblem; // empty too when every copy was chosen, the user having been warned
}

} // namespace

QString besidePath(const QString &path)
{
    return path + u'_' + QUuid::createUuid().toString(QUuid::WithoutBraces);
}

DeleteReport performDeleteAction(DeleteKind kind, int mode, ResultItem *reference,
                                 const QList<ResultItem *> &targets, const DuplicatesFor &duplicatesFor)
{
    DeleteReport report;
    const bool replacing = reference && mode >= ReplaceWithAlias && mode <= ReplaceWithClone;
    const QSet<const ResultItem *> acting(targets.cbegin(), targets.cend());
    SharedFiles shared;
    shared.watch(reference);
    for (ResultItem *item : targets)
        shared.watch(item);
    for (ResultItem *item : targets) {
        DeleteOutcome outcome;
        outcome.item = item;
        if (kind == DeleteKind::Trash && (!item->trashedURL().isEmpty() || item->has(Deleted))) {
            outcome.skipped = true;
            report.outcomes.append(outcome);
            continue;
        }
        auto removalFailed = [&](const QString &why) {
            outcome.error = why;
            ++report.removalFailures;
            report.lastErrorText = why;
            if (report.firstFailedPath.isEmpty()) report.firstFailedPath = item->path;
        };
        auto replacementFailed = [&](const QString &why) {
            outcome.error = why;
            ++report.replacementFailures;
            report.lastReference = reference->path;
            report.lastDeleted = item->path;
        };
        if (const QString refused = whyNotSafe(kind, mode, *item, reference, acting, duplicatesFor);
            !refused.isEmpty()) {
            removalFailed(refused);
            report.refused.append(item->path);
            report.outcomes.append(outcome);
            continue;
        }
        // Our own steps move the change time of every link of the files they touch.
        QList<ResultItem *> touched = shared.unchangedSharing(*item);
        if (replacing && mode == ReplaceWithHardLink) touched += shared.unchangedSharing(*reference);
        if (!replacing) {
            if (const QString error = removeOnly(kind, *item, mode, outcome); !error.isEmpty())
                removalFailed(error);
        } else {
            const FSMetadata snapshot =
                mode == ReplaceWithClone ? captureFSMetadata(item->path) : FSMetadata{};
            const QString staged = besidePath(item->path);
            QString error;
            QString away;
            if (const int e = makeReplacement(mode, reference->path, staged, reference->has(IsFolder))) {
                replacementFailed(
                    QCoreApplication::translate("DeleteActions", "The replacement could not be made: %1")
                        .arg(errorText(e)));
            } else if (away = takeAway(kind, item->path, &error); away.isEmpty()) {
                removeItem(staged);
                removalFailed(error);
            } else if (const int e = renameNoReplace(staged, item->path)) {
                bringBack(kind, away, item->path);
                recordCurrentState(*item); // the same file back, its change time moved by the moves
                removeItem(staged);
                replacementFailed(QCoreApplication::translate("DeleteActions",
                                                              "The replacement could not be put in place: %1")
                                      .arg(errorText(e)));
            } else {
                if (kind == DeleteKind::Delete) {
                    if (const int e = removeItem(away))
                        outcome.error =
                            QCoreApplication::translate("DeleteActions", "“%1” could not be removed: %2")
                                .arg(displayPath(away), errorText(e));
                    item->set(Deleted);
                }
                // Last, so that the folder's modification time is the one from before.
                if (mode == ReplaceWithClone) restoreFSMetadata(item->path, snapshot);
                outcome.status = statusImageName(kind == DeleteKind::Trash, mode);
                item->setStatusImage(outcome.status);
                recordCurrentState(*item); // the replacement now stands for the item
            }
        }
        for (ResultItem *other : touched)
            if (other != item && !isGone(*other)) recordCurrentState(*other);
        if (!outcome.status.isEmpty()) item->setStatusImage(outcome.status);
        report.outcomes.append(outcome);
    }
    return report;
}

} // namespace selfsame
