#include "journal/Recovery.h"

#include "fileops/CloneItem.h"
#include "fileops/CloneWorker.h"
#include "fileops/DeleteActions.h"
#include "fileops/ErrorText.h"
#include "fileops/FSMetadata.h"
#include "fileops/Trash.h"
#include "names/FileNames.h"

#include <QCoreApplication>
#include <QDir>
#include <cstring>
#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

namespace selfsame
{

namespace
{

// An entry stands at the path, whatever it is.
bool exists(const QString &path)
{
    return pathExists(path, Links::AsThemselves);
}

QStringList entriesOf(const QString &folder)
{
    QStringList names;
    DIR *dir = opendir(pathBytes(folder).constData());
    for (const dirent *entry; dir && (entry = readdir(dir));)
        if (std::strcmp(entry->d_name, ".") != 0 && std::strcmp(entry->d_name, "..") != 0)
            names.append(pathFromBytes(std::string_view(entry->d_name)));
    if (dir) closedir(dir);
    return names;
}

// The trash that a file of this path went to: the one of its folder's volume.
QString trashOf(const QString &path)
{
    return trashFolderFor(parentFolder(path));
}

// The file the trash holds for `path`, the last one moved there (a move sets its change time).
QString findInTrash(const QString &path)
{
    const QString files = trashOf(path) + QStringLiteral("/files");
    QString newest;
    qint64 newestNs = -1;
    for (const QString &name : entriesOf(files)) {
        const QString trashed = files + u'/' + name;
        struct stat st {
        };
        if (putBackPath(trashed) != path || lstat(pathBytes(trashed).constData(), &st) != 0) continue;
        const qint64 changed = qint64(st.st_ctim.tv_sec) * 1'000'000'000 + st.st_ctim.tv_nsec;
        if (changed > newestNs) {
            newest = trashed;
            newestNs = changed;
        }
    }
    return newest;
}

// Removes the trash records of `path` whose file never reached the trash.
void removeOrphanRecords(const QString &path)
{
    const QString trash = trashOf(path);
    for (const QString &name : entriesOf(trash + QStringLiteral("/info"))) {
        if (!name.endsWith(QStringLiteral(".trashinfo"))) continue;
        const QString file = trash + QStringLiteral("/files/") + name.chopped(10);
        if (!exists(file) && putBackPath(file) == path)
            unlink(pathBytes(trash + QStringLiteral("/info/") + name).constData());
    }
}

// Brings the original back to its path. Returns why not, empty on success.
QString rollBack(const JournalStep &step)
{
    const bool trash = step.kind == int(DeleteKind::Trash);
    // The original is away once the step recorded where, or when its path is empty.
    const bool away = (step.stage >= TakenAway && exists(step.away)) || !exists(step.path);
    if (away) {
        const QString from = exists(step.away) ? step.away : trash ? findInTrash(step.path) : QString();
        if (from.isEmpty())
            return QCoreApplication::translate("Recovery",
                                               "its original is neither at its path nor where it went");
        if (exists(step.path) && removeItem(step.path) != 0) // our replacement, made after it left
            return QCoreApplication::translate("Recovery",
                                               "the replacement at its path could not be removed");
        if (const int error = renameNoReplace(from, step.path))
            return errorText(error);
        if (trash) {
            removePutBackAttribute(step.path);
            unlink(pathBytes(trashInfoPathFor(from)).constData());
        }
    }
    if (!step.staged.isEmpty() && step.staged != step.path && exists(step.staged)) removeItem(step.staged);
    if (trash) removeOrphanRecords(step.path);
    return {};
}

// An undo's step: before the new content took the path, the entry set aside comes back and a
// copy made for it goes; after, the entry set aside goes (and the trash's record of an
// original moved back). A path holding the new content while the staged name is gone and the
// old entry still aside was swapped just before the kill. Returns whether it was finished.
bool recoverUndoStep(const JournalStep &step)
{
    const bool fromTrash = step.kind == UndoFromTrash;
    const bool swapped = step.stage >= Replaced || (exists(step.path) && !exists(step.staged) && exists(step.away));
    if (swapped) {
        // Killed between the swap and the metadata: the copy still gets it.
        if (!fromTrash && step.stage < Replaced)
            if (const std::optional<FSMetadata> metadata = decodeFSMetadata(step.metadata))
                restoreFSMetadata(step.path, *metadata);
        if (exists(step.away)) removeItem(step.away);
        if (fromTrash) {
            removePutBackAttribute(step.path);
            unlink(pathBytes(trashInfoPathFor(step.staged)).constData());
        }
        return true;
    }
    if (!exists(step.path) && exists(step.away)) renameNoReplace(step.away, step.path);
    if (!fromTrash && exists(step.staged)) removeItem(step.staged);
    return false;
}

} // namespace

RecoveryReport recoverInterrupted(Journal &journal)
{
    RecoveryReport report;
    for (const JournalStep &unfinished : journal.unfinished()) {
        // Steps finished here count as done by their action, for an undo of it.
        JournaledStep journaled{&journal, unfinished};
        const JournalStep &step = journaled.step;
        if (step.kind == PutBackFromTrash) {
            // Moved back already, or not at all: what may be left is the trash's record.
            if (exists(step.path) && !exists(step.away)) {
                unlink(pathBytes(trashInfoPathFor(step.away)).constData());
                report.finished.append(step.path);
                journaled.finish();
            } else {
                report.rolledBack.append(step.path);
            }
        } else if (step.kind == UndoToCopy || step.kind == UndoFromTrash) {
            if (recoverUndoStep(step)) {
                report.finished.append(step.path);
                journaled.finish();
            } else {
                report.rolledBack.append(step.path);
            }
        } else if (step.stage >= Replaced) {
            // Past the point of no return: the original set aside for deletion goes.
            if (step.kind != int(DeleteKind::Trash) && exists(step.away)) removeItem(step.away);
            report.finished.append(step.path);
            journaled.finish();
        } else if (const QString why = rollBack(step); why.isEmpty()) {
            report.rolledBack.append(step.path);
        } else {
            report.failed.append(displayPath(step.path) + QStringLiteral(": ") + why);
            continue; // kept in the journal, to be tried again
        }
        journaled.reach(Done);
    }
    journal.prune(kJournalDays);
    report.planFoldersRemoved = removeStalePlanFolders();
    return report;
}

} // namespace selfsame
