#include "fileops/DeleteActions.h"

#include "autoselect/AutoSelectRules.h"
#include "fileops/CloneItem.h"
#include "fileops/ErrorText.h"
#include "fileops/FSMetadata.h"
#include "fileops/ItemSafety.h"
#include "fileops/Replacement.h"
#include "fileops/Trash.h"
#include "journal/Journal.h"
#include "names/FileNames.h"

#include <QCoreApplication>
#include <QFile>
#include <unistd.h>
#include <QSet>
#include <QUuid>

namespace selfsame
{

namespace
{

struct DeleteActionsText {
    Q_DECLARE_TR_FUNCTIONS(DeleteActions)
};

// Removes the file with no replacement. Returns the error text, empty on success. A deletion
// first moves the file aside, so that one killed halfway through a folder can be finished.
QString removeOnly(DeleteKind kind, ResultItem &item, int mode, DeleteOutcome &outcome, JournaledStep &journaled)
{
    if (kind == DeleteKind::Trash) {
        const TrashResult trashed = trashItem(item.path);
        if (trashed.trashedPath.isEmpty()) return trashed.errorText;
        journaled.step.away = trashed.trashedPath; // where an undo finds it
        journaled.finish();
        outcome.status = statusImageName(true, mode);
        if (outcome.status == QStringLiteral("trashed")) item.setTrashedURL(trashed.trashedPath);
        return {};
    }
    if (const int error = renameNoReplace(item.path, journaled.step.away)) return errorText(error);
    faultPoint("delete.moved-aside");
    journaled.reach(Replaced);
    faultPoint("delete.recorded");
    if (const int error = removeItem(journaled.step.away))
        outcome.error = QCoreApplication::translate("DeleteActions", "“%1” could not be removed: %2")
                            .arg(displayPath(journaled.step.away), errorText(error));
    journaled.finish();
    item.set(Deleted);
    outcome.status = statusImageName(false, mode);
    return {};
}

// Takes the original away from its path: into the trash, or to `aside`, to be removed once
// the replacement stands. Returns where it went (empty on failure).
QString takeAway(DeleteKind kind, const QString &path, const QString &aside, QString *error)
{
    if (kind == DeleteKind::Trash) {
        const TrashResult trashed = trashItem(path);
        *error = trashed.errorText;
        return trashed.trashedPath;
    }
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

struct Failure {
    QString why;          // empty on success
    bool removal = false; // the original could not be taken away (else the replacement failed)
};

// Puts the replacement of `mode` for `reference` at the item's path, each step journaled: made
// beside the file, the original taken away, the replacement moved in (the clone given the
// original's metadata), then the original removed for good when deleting. Any failure before
// the replacement stands brings the original back.
Failure replaceOne(DeleteKind kind, int mode, ResultItem &item, const ResultItem &reference,
                   const FSMetadata &snapshot, JournaledStep &journaled, DeleteOutcome &outcome)
{
    const QString &staged = journaled.step.staged;
    if (const int e = makeReplacement(mode, reference.path, staged, reference.has(IsFolder))) {
        journaled.reach(Done);
        return {DeleteActionsText::tr("The replacement could not be made: %1").arg(errorText(e))};
    }
    faultPoint("replace.staged");
    journaled.reach(Staged);
    QString error;
    const QString away = takeAway(kind, item.path, journaled.step.away, &error);
    if (away.isEmpty()) {
        removeItem(staged);
        journaled.reach(Done);
        return {error, true};
    }
    faultPoint("replace.taken-away");
    journaled.step.away = away;
    journaled.reach(TakenAway);
    faultPoint("replace.recorded-away");
    if (const int e = renameNoReplace(staged, item.path)) {
        bringBack(kind, away, item.path);
        recordCurrentState(item); // the same file back, its change time moved by the moves
        removeItem(staged);
        journaled.reach(Done);
        return {DeleteActionsText::tr("The replacement could not be put in place: %1").arg(errorText(e))};
    }
    faultPoint("replace.swapped");
    if (mode == ReplaceWithClone) restoreFSMetadata(item.path, snapshot);
    journaled.reach(Replaced);
    faultPoint("replace.replaced");
    if (kind == DeleteKind::Delete) {
        if (const int e = removeItem(away))
            outcome.error =
                DeleteActionsText::tr("“%1” could not be removed: %2").arg(displayPath(away), errorText(e));
        item.set(Deleted);
        // Removing the original moved its folder's times: they come back last.
        if (mode == ReplaceWithClone) restoreParentFolder(item.path, snapshot);
    }
    journaled.finish();
    outcome.status = statusImageName(kind == DeleteKind::Trash, mode);
    item.setStatusImage(outcome.status);
    recordCurrentState(item); // the replacement now stands for the item
    return {};
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
    if (replacing)
        if (QString problem = replacementProblem(item, *reference); !problem.isEmpty()) return problem;
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
                                 const QList<ResultItem *> &targets, const DuplicatesFor &duplicatesFor,
                                 Journal *journal)
{
    DeleteReport report;
    const bool replacing = reference && mode >= ReplaceWithAlias && mode <= ReplaceWithClone;
    const QSet<const ResultItem *> acting(targets.cbegin(), targets.cend());
    const BatchScope batch(journal, kind == DeleteKind::Trash ? QStringLiteral("trash") : QStringLiteral("delete"));
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
        // Every name a step may make is known, and recorded, before the step begins.
        JournaledStep journaled{journal, JournalStep{}};
        journaled.step.kind = int(kind);
        journaled.step.mode = replacing ? mode : ReplaceWithNone;
        journaled.step.path = item->path;
        if (reference) journaled.step.kept = reference->path;
        if (replacing) journaled.step.staged = besidePath(item->path);
        if (kind == DeleteKind::Delete) journaled.step.away = besidePath(item->path);
        // The metadata an undo gives back to a file deleted for good, or carries to a clone.
        const bool keepsMetadata = replacing && (kind == DeleteKind::Delete || mode == ReplaceWithClone);
        const FSMetadata snapshot = keepsMetadata ? captureFSMetadata(item->path) : FSMetadata{};
        if (keepsMetadata && kind == DeleteKind::Delete) journaled.step.metadata = encodeFSMetadata(snapshot);
        if (!journaled.begin()) {
            removalFailed(QCoreApplication::translate("DeleteActions",
                                                      "The operations journal could not record the step: %1")
                              .arg(journal->error()));
        } else if (!replacing) {
            if (const QString error = removeOnly(kind, *item, mode, outcome, journaled); !error.isEmpty()) {
                removalFailed(error);
                journaled.reach(Done); // nothing was changed
            }
        } else {
            const Failure failure = replaceOne(kind, mode, *item, *reference, snapshot, journaled, outcome);
            if (failure.removal) removalFailed(failure.why);
            else if (!failure.why.isEmpty()) replacementFailed(failure.why);
        }
        for (ResultItem *other : touched)
            if (other != item && !isGone(*other)) recordCurrentState(*other);
        if (!outcome.status.isEmpty()) item->setStatusImage(outcome.status);
        report.outcomes.append(outcome);
    }
    return report;
}

} // namespace selfsame
