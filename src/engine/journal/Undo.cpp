#include "journal/Undo.h"

#include "fileops/CloneItem.h"
#include "fileops/DeleteActions.h"
#include "fileops/ErrorText.h"
#include "fileops/FSMetadata.h"
#include "fileops/PutBack.h"
#include "fileops/Replacement.h"
#include "fileops/Trash.h"
#include "format/ByteSize.h"
#include "names/FileNames.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>
#include <QHash>
#include <algorithm>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <unistd.h>

namespace selfsame
{

namespace
{

struct UndoText {
    Q_DECLARE_TR_FUNCTIONS(Undo)
};

bool exists(const QString &path)
{
    return pathExists(path, Links::AsThemselves);
}

// How a step is undone.
enum class Way {
    PutBack,        // moved to the trash: back from it
    OriginalBack,   // replaced, the original in the trash: the original back in its place
    CopyOfKept,     // replaced by a link, the original deleted: a copy of the kept file
    CopyOfItself,   // a clone: a copy of its own bytes that shares nothing
    DeletedForGood, // nothing is left to give back
    None,           // put backs and undos are not undone
};

Way wayOf(const JournalStep &step)
{
    if (step.kind == int(DeleteKind::Trash))
        return step.mode == ReplaceWithNone ? Way::PutBack : Way::OriginalBack;
    if (step.kind == int(DeleteKind::Delete)) {
        if (step.mode == ReplaceWithNone) return Way::DeletedForGood;
        return step.mode == ReplaceWithClone ? Way::CopyOfItself : Way::CopyOfKept;
    }
    return step.kind == CloneInPlace ? Way::CopyOfItself : Way::None;
}

bool needsCopy(Way way)
{
    return way == Way::CopyOfKept || way == Way::CopyOfItself;
}

QString journalError(const Journal &journal)
{
    return UndoText::tr("the operations journal could not record the step: %1").arg(journal.error());
}

// Why the step cannot be undone as things stand; empty when it can.
QString whyNot(const JournalStep &step, Way way)
{
    if (way == Way::PutBack) {
        if (!exists(step.away)) return UndoText::tr("it is no longer in the trash");
        if (fileStateOf(step.away, Links::AsThemselves) != step.result)
            return UndoText::tr("it changed in the trash since");
        if (exists(step.path)) return UndoText::tr("another file now stands at its path");
        return {};
    }
    if (!step.result.known() || fileStateOf(step.path, Links::AsThemselves) != step.result)
        return UndoText::tr("it changed since");
    if (way == Way::OriginalBack && !exists(step.away))
        return UndoText::tr("its original is no longer in the trash");
    if (way == Way::CopyOfKept) {
        if (!step.keptResult.known() || fileStateOf(step.kept, Links::Follow) != step.keptResult)
            return UndoText::tr("its kept copy “%1” changed since").arg(displayPath(step.kept));
        if (!decodeFSMetadata(step.metadata)) return UndoText::tr("its metadata was not recorded");
    }
    return {};
}

// Puts an independent copy of `source` at `path` in place of what stands there, each step
// journaled: the copy made beside it and synced, the present entry set aside, the copy moved
// in and given the metadata, the entry set aside removed.
QString copyBack(Journal &journal, const JournalStep &undone, const QString &source, const FSMetadata &metadata)
{
    const QString &path = undone.path;
    JournaledStep journaled{&journal, {}};
    journaled.step.undoes = undone.id;
    journaled.step.kind = UndoToCopy;
    journaled.step.path = path;
    journaled.step.kept = source;
    journaled.step.staged = besidePath(path);
    journaled.step.away = besidePath(path);
    journaled.step.metadata = encodeFSMetadata(metadata); // for recovery, should the swap be the last step taken
    if (!journaled.begin()) return journalError(journal);
    const QString &staged = journaled.step.staged;
    const QString &aside = journaled.step.away;
    struct stat st {
    };
    const mode_t mode = metadata.permissions ? *metadata.permissions
                        : stat(pathBytes(source).constData(), &st) == 0 ? st.st_mode
                                                                         : 0644;
    if (const int error = copyWithoutSharing(source, staged, mode)) {
        journaled.reach(Done);
        return UndoText::tr("an independent copy could not be made: %1").arg(errorText(error));
    }
    faultPoint("undo.copied");
    journaled.reach(Staged);
    if (const int error = renameNoReplace(path, aside)) {
        removeItem(staged);
        journaled.reach(Done);
        return UndoText::tr("it could not be moved aside: %1").arg(errorText(error));
    }
    faultPoint("undo.moved-aside");
    journaled.reach(TakenAway);
    if (const int error = renameNoReplace(staged, path)) {
        renameNoReplace(aside, path);
        removeItem(staged);
        journaled.reach(Done);
        return UndoText::tr("the copy could not be put in its place: %1").arg(errorText(error));
    }
    faultPoint("undo.swapped");
    restoreFSMetadata(path, metadata);
    journaled.reach(Replaced);
    faultPoint("undo.replaced");
    removeItem(aside);
    journaled.finish();
    restoreParentFolder(path, metadata); // removing the entry set aside moved the folder's times
    return {};
}

// Brings the original back from the trash in place of the link or clone that replaced it.
QString originalBack(Journal &journal, const JournalStep &undone)
{
    const QString &path = undone.path;
    const QString &trashed = undone.away;
    JournaledStep journaled{&journal, {}};
    journaled.step.undoes = undone.id;
    journaled.step.kind = UndoFromTrash;
    journaled.step.path = path;
    journaled.step.staged = trashed;
    journaled.step.away = besidePath(path);
    if (!journaled.begin()) return journalError(journal);
    const QString &aside = journaled.step.away;
    if (const int error = renameNoReplace(path, aside)) {
        journaled.reach(Done);
        return UndoText::tr("it could not be moved aside: %1").arg(errorText(error));
    }
    faultPoint("undo.moved-aside");
    journaled.reach(TakenAway);
    if (const int error = renameNoReplace(trashed, path)) {
        renameNoReplace(aside, path);
        journaled.reach(Done);
        return UndoText::tr("its original could not be moved back: %1").arg(errorText(error));
    }
    faultPoint("undo.swapped");
    journaled.reach(Replaced);
    faultPoint("undo.replaced");
    removePutBackAttribute(path);
    unlink(pathBytes(trashInfoPathFor(trashed)).constData());
    removeItem(aside);
    journaled.finish();
    return {};
}

QString undoStep(Journal &journal, const JournalStep &step, Way way)
{
    switch (way) {
    case Way::PutBack: {
        const PutBackResult result = putBackFile(step.away, step.path, &journal, step.id);
        return result.ok() ? QString() : result.errorText;
    }
    case Way::OriginalBack:
        return originalBack(journal, step);
    case Way::CopyOfKept:
        return copyBack(journal, step, step.kept, *decodeFSMetadata(step.metadata));
    case Way::CopyOfItself: {
        const std::optional<FSMetadata> saved = decodeFSMetadata(step.metadata);
        return copyBack(journal, step, step.path, saved ? *saved : captureFSMetadata(step.path));
    }
    default:
        return {};
    }
}

// Why the drives cannot hold the copies the undo makes; empty when they can.
QString missingSpace(const QList<JournalStep> &steps, const FreeSpace &freeSpace)
{
    struct Need {
        QString folder;
        qint64 bytes = 0;
    };
    QHash<qint64, Need> needs; // by device
    for (const JournalStep &step : steps) {
        const Way way = wayOf(step);
        if (!needsCopy(way) || !whyNot(step, way).isEmpty()) continue;
        const QString folder = parentFolder(step.path);
        Need &need = needs[fileStateOf(folder, Links::Follow).device];
        need.folder = folder;
        need.bytes += qMax<qint64>(0, fileStateOf(way == Way::CopyOfKept ? step.kept : step.path, Links::Follow).size);
    }
    for (const Need &need : std::as_const(needs)) {
        const qint64 free = freeSpace(need.folder);
        if (need.bytes > free)
            return UndoText::
                tr("Undoing needs %1 free on the drive holding “%2”, which has %3 free. Nothing was changed.")
                    .arg(formatByteCount(need.bytes), displayPath(need.folder), formatByteCount(free));
    }
    return {};
}

} // namespace

qint64 freeSpaceOf(const QString &path)
{
    struct statvfs fs {
    };
    if (statvfs(pathBytes(path).constData(), &fs) != 0) return 0;
    return qint64(fs.f_bavail) * qint64(fs.f_frsize);
}

QString describeBatch(const JournalBatch &batch)
{
    QString replacedWith;
    switch (batch.mode) {
    case ReplaceWithAlias:
        replacedWith = UndoText::tr("desktop links");
        break;
    case ReplaceWithSymbolicLink:
        replacedWith = UndoText::tr("symbolic links");
        break;
    case ReplaceWithRelativeSymbolicLink:
        replacedWith = UndoText::tr("relative symbolic links");
        break;
    case ReplaceWithHardLink:
        replacedWith = UndoText::tr("hard links");
        break;
    case ReplaceWithClone:
        replacedWith = UndoText::tr("clones");
        break;
    default:
        break;
    }
    if (batch.action == u"trash")
        return replacedWith.isEmpty()
                   ? UndoText::tr("Moved to the trash")
                   : UndoText::tr("Moved to the trash and replaced with %1").arg(replacedWith);
    if (batch.action == u"delete")
        return replacedWith.isEmpty() ? UndoText::tr("Deleted")
                                      : UndoText::tr("Deleted and replaced with %1").arg(replacedWith);
    if (batch.action == u"clone") return UndoText::tr("Replaced with clones");
    if (batch.action == u"put back") return UndoText::tr("Put back from the trash");
    if (batch.action.startsWith(u"undo ")) return UndoText::tr("Undid action %1").arg(batch.action.mid(5));
    return batch.action;
}

bool isUndoable(const JournalBatch &batch)
{
    const bool changesFiles = batch.action == u"trash" || batch.action == u"delete" || batch.action == u"clone";
    return changesFiles && batch.undone + batch.deletedForGood < batch.files;
}

QString batchState(const JournalBatch &batch)
{
    if (batch.action != u"trash" && batch.action != u"delete" && batch.action != u"clone") return {};
    if (batch.deletedForGood == batch.files) return UndoText::tr("cannot be undone");
    if (batch.undone == 0) return UndoText::tr("can be undone");
    return batch.undone + batch.deletedForGood == batch.files ? UndoText::tr("undone")
                                                              : UndoText::tr("partly undone");
}

QString historyEntry(const JournalBatch &batch)
{
    const QString when = QLocale().toString(QDateTime::fromSecsSinceEpoch(batch.started), QLocale::ShortFormat);
    return QStringLiteral("%1 · %2 · %3")
        .arg(describeBatch(batch), UndoText::tr("%Ln file(s)", nullptr, batch.files), when);
}

UndoSummary summarizeUndo(const JournalBatch &batch, const UndoReport &report)
{
    UndoSummary summary;
    const QString what = describeBatch(batch);
    if (!report.error.isEmpty()) {
        summary.title = UndoText::tr("“%1” could not be undone").arg(what);
        summary.message = report.error;
        return summary;
    }
    summary.complete = report.refused.isEmpty();
    const int given = int(report.undone.size());
    summary.title = summary.complete ? UndoText::tr("“%1” was undone").arg(what)
                                     : UndoText::tr("“%1” was undone in part").arg(what);
    QStringList parts;
    parts << UndoText::tr("%Ln file(s) (was|were) given back.", nullptr, given);
    if (!report.refused.isEmpty())
        parts << UndoText::tr(
            "%Ln file(s) (was|were) left as (it is|they are), because (it|they) changed since.", nullptr,
            int(report.refused.size()));
    if (!report.deletedForGood.isEmpty())
        parts << UndoText::tr("%Ln file(s) (was|were) deleted for good and cannot be given back.", nullptr,
                              int(report.deletedForGood.size()));
    summary.message = parts.join(u' ');
    QStringList details = report.refused;
    for (const QString &path : report.deletedForGood)
        details << UndoText::tr("%1: deleted for good").arg(displayPath(path));
    summary.details = details.join(u'\n');
    return summary;
}

std::optional<JournalBatch> lastUndoableBatch(Journal &journal)
{
    for (const JournalBatch &batch : journal.batches(1000))
        if (isUndoable(batch)) return batch;
    return std::nullopt;
}

UndoReport undoBatch(Journal &journal, qint64 batchId, const FreeSpace &freeSpace)
{
    UndoReport report;
    const std::optional<JournalBatch> batch = journal.batch(batchId);
    if (!batch) {
        report.error = UndoText::tr("There is no action %1 in the journal.").arg(batchId);
        return report;
    }
    if (!isUndoable(*batch)) {
        report.error = batch->undone > 0 ? UndoText::tr("Action %1 was undone already.").arg(batchId)
                                         : UndoText::tr("Action %1 (%2) cannot be undone.")
                                               .arg(QString::number(batchId), describeBatch(*batch));
        return report;
    }
    QList<JournalStep> steps = journal.actedSteps(batchId);
    std::reverse(steps.begin(), steps.end()); // newest first, as the batch is unwound
    if (const QString why = missingSpace(steps, freeSpace); !why.isEmpty()) {
        report.error = why;
        return report;
    }
    journal.beginBatch(QStringLiteral("undo %1").arg(batchId));
    for (const JournalStep &step : std::as_const(steps)) {
        if (step.undoneBy) continue;
        const Way way = wayOf(step);
        if (way == Way::None) continue;
        if (way == Way::DeletedForGood) {
            report.deletedForGood.append(step.path);
            continue;
        }
        QString why = whyNot(step, way);
        if (why.isEmpty()) why = undoStep(journal, step, way);
        if (!why.isEmpty()) {
            report.refused.append(displayPath(step.path) + QStringLiteral(": ") + why);
            continue;
        }
        report.undone.append(step.path); // marked undone by the step that undid it
    }
    journal.endBatch();
    return report;
}

} // namespace selfsame
