#include "FileActions.h"

#include "CliPaths.h"
#include "CliText.h"
#include "fileops/CloneAlerts.h"
#include "fileops/CloneWorker.h"
#include "fileops/DeleteActions.h"
#include "fileops/CachedDigestsCarrier.h"
#include "fileops/Replacement.h"
#include "format/ByteSize.h"
#include "journal/Journal.h"
#include "journal/Recovery.h"

#include <QCoreApplication>
#include <QFile>
#include <QHash>
#include <optional>

namespace selfsame::cli
{

namespace
{

QString modeName(int mode)
{
    switch (mode) {
    case ReplaceWithAlias:
        return CliText::tr("an alias");
    case ReplaceWithSymbolicLink:
        return CliText::tr("a symbolic link");
    case ReplaceWithRelativeSymbolicLink:
        return CliText::tr("a relative symbolic link");
    case ReplaceWithHardLink:
        return CliText::tr("a hard link");
    default:
        return CliText::tr("a clone");
    }
}

// Groups whose every copy is selected are left alone: one copy always stays.
QList<ActionGroup> safeGroups(const QList<ActionGroup> &groups, const Writer &err, int *refused)
{
    QList<ActionGroup> kept;
    for (const ActionGroup &g : groups) {
        if (g.selected.isEmpty()) continue;
        if (!g.reference || g.selected.size() >= g.members.size() || g.selected.contains(g.reference)) {
            ++*refused;
            err(CliText::tr("refused: %1: every copy of its group is selected\n")
                    .arg(escapedText(g.selected.first()->path))
                    .toUtf8());
            continue;
        }
        kept.append(g);
    }
    return kept;
}

// Says what recovery did, a line a file; returns how many steps it could not recover.
int reportRecovery(const RecoveryReport &report, const Writer &err)
{
    for (const QString &path : report.rolledBack)
        err(CliText::tr("recovered: %1: an interrupted action was rolled back, the file is as it was\n")
                .arg(escapedText(path))
                .toUtf8());
    for (const QString &path : report.finished)
        err(CliText::tr("recovered: %1: an interrupted action was finished\n")
                .arg(escapedText(path))
                .toUtf8());
    for (const QString &failure : report.failed)
        err(CliText::tr("recovery failed: %1\n").arg(escapedText(failure)).toUtf8());
    if (report.planFoldersRemoved > 0)
        err(CliText::tr("recovered: removed %Ln temporary folder(s) of interrupted cloning plans\n", nullptr,
                        int(report.planFoldersRemoved))
                .toUtf8());
    return int(report.failed.size());
}

int runDeletes(const FileActionOptions &options, const QList<ActionGroup> &groups, const Writer &out,
               const Writer &err, int failures)
{
    std::optional<Journal> journal;
    if (options.perform && !openJournal(journal, err)) return 1;
    const bool trash = options.action == FileAction::Trash;
    // One run is one action in the journal, undone as a whole.
    const BatchScope batch(journal ? &*journal : nullptr, trash ? QStringLiteral("trash") : QStringLiteral("delete"));
    const int mode = options.replaceWith;
    int done = 0;
    int changed = 0;
    for (const ActionGroup &g : groups) {
        const QString replacement =
            mode ? CliText::tr(", replaced by %1 to %2").arg(modeName(mode), escapedText(g.reference->path))
                 : QString();
        if (!options.perform) {
            for (const ResultItem *item : g.selected) {
                out(options.print0 ? nulTerminatedPath(item->path)
                                   : (trash ? CliText::tr("would move to the trash: %1%2\n")
                                            : CliText::tr("would delete: %1%2\n"))
                                         .arg(escapedText(item->path), replacement)
                                         .toUtf8());
                ++done;
            }
            continue;
        }
        const DeleteReport report = performDeleteAction(trash ? DeleteKind::Trash : DeleteKind::Delete, mode,
                                                        g.reference, g.selected, {}, journal ? &*journal : nullptr);
        changed += int(report.refused.size());
        for (const DeleteOutcome &o : report.outcomes) {
            if (o.status.isEmpty()) {
                ++failures;
                err(CliText::tr("failed: %1: %2\n")
                        .arg(escapedText(o.item->path), escapedText(o.error))
                        .toUtf8());
                continue;
            }
            ++done;
            const QString where = o.item->trashedURL().isEmpty()
                                      ? QString()
                                      : CliText::tr(" (now %1)").arg(escapedText(o.item->trashedURL()));
            out(options.print0
                    ? nulTerminatedPath(o.item->path)
                    : (trash ? CliText::tr("moved to the trash: %1%2%3\n") : CliText::tr("deleted: %1%2%3\n"))
                          .arg(escapedText(o.item->path), replacement, where)
                          .toUtf8());
            if (!o.error.isEmpty()) err(CliText::tr("warning: %1\n").arg(escapedText(o.error)).toUtf8());
        }
    }
    const QString summary = options.perform
                                ? CliText::tr("%1 done, %2 failed\n")
                                : CliText::tr("%1 would be done, %2 refused (dry run: add --yes to act)\n");
    err(summary.arg(done).arg(failures).toUtf8());
    const bool forGood = !trash && mode == ReplaceWithNone;
    if (!options.perform && forGood && done > 0)
        err(CliText::tr(
                "deleting cannot be undone: files deleted with nothing in their place are gone for good\n")
                .toUtf8());
    else if (options.perform && !forGood && done > 0)
        err(CliText::tr("`selfsame-cli undo` undoes this action\n").toUtf8());
    if (changed > 0)
        err(CliText::tr(
                "left alone because they or their kept copy changed since the search, or because they were "
                "one file reached through two paths: %1\n")
                .arg(changed)
                .toUtf8());
    return failures == 0 ? 0 : 1;
}

int runClones(const FileActionOptions &options, const QList<ActionGroup> &groups, const Writer &out,
              const Writer &err, int failures)
{
    // Each group's kept copy first: among equal sizes the worker takes the first as reference.
    QList<ResultItem *> targets;
    QHash<const ResultItem *, const ActionGroup *> groupOf;
    for (const ActionGroup &g : groups) {
        targets << g.reference << g.selected;
        for (ResultItem *member : g.members)
            groupOf.insert(member, &g);
    }
    CloneWorker worker(targets, targets, [&](const ResultItem &item) {
        const ActionGroup *g = groupOf.value(&item);
        return g ? g->members : QList<ResultItem *>{};
    });
    worker.planPath = options.planPath;
    CloneCounts counts;
    worker.perform(false, true, true, &counts);
    if (!options.planPath.isEmpty())
        err(CliText::tr("plan written to %1\n").arg(escapedText(options.planPath)).toUtf8());
    else if (QFile plan(worker.logFilePath());
             !options.perform && !options.print0 && plan.open(QIODevice::ReadOnly))
        out(plan.readAll()); // free text, not NUL-ended paths: left out with --print0
    if (counts.replaceDuplicates == 0 || counts.byClones == 0) {
        err(CliText::tr("%1\n").arg(noClonableFileAlert().message).toUtf8());
        return 1;
    }
    err(CliText::tr("%1\n").arg(cloneConfirmationAlert(counts).message).toUtf8());
    if (!options.perform) {
        err(CliText::tr("dry run: add --yes to clone\n").toUtf8());
        return failures == 0 ? 0 : 1;
    }
    std::optional<Journal> journal;
    if (!openJournal(journal, err)) return 1;
    worker.journal = &*journal;
    worker.perform(true, true, true);
    for (const ResultItem *item : worker.cloned())
        out(options.print0 ? nulTerminatedPath(item->path)
                           : CliText::tr("cloned: %1\n").arg(escapedText(item->path)).toUtf8());
    for (const CloneFailure &f : worker.failures())
        err(CliText::tr("failed: %1: %2\n").arg(escapedText(f.item->path), escapedText(f.reason)).toUtf8());
    failures += int(worker.failures().size());
    err(CliText::tr("%1 cloned, %2 failed\n").arg(worker.cloned().size()).arg(failures).toUtf8());
    return failures == 0 ? 0 : 1;
}

} // namespace

QList<ActionGroup> actionGroupsFor(const ResultModel &model, const AutoSelection &selection)
{
    QList<ActionGroup> groups;
    QHash<int, qsizetype> indexOfGroup;
    for (ResultItem *item : selection.selected()) {
        auto found = indexOfGroup.constFind(item->group);
        if (found == indexOfGroup.constEnd()) {
            ActionGroup group;
            group.members = model.duplicatesFor(*item);
            for (ResultItem *member : group.members)
                if (!group.reference && selection.isSkipped(member)) group.reference = member;
            for (ResultItem *member : group.members)
                if (!group.reference && !selection.isSelected(member) && !isGone(*member))
                    group.reference = member;
            found = indexOfGroup.insert(item->group, groups.size());
            groups.append(group);
        }
        groups[*found].selected.append(item);
    }
    return groups;
}

bool openJournal(std::optional<Journal> &journal, const Writer &err)
{
    journal.emplace(Journal::defaultPath());
    if (!journal->isOpen()) {
        err(CliText::tr("selfsame-cli: the operations journal %1 cannot be opened: %2\n")
                .arg(escapedText(Journal::defaultPath()), journal->error())
                .toUtf8());
        return false;
    }
    return reportRecovery(recoverInterrupted(*journal), err) == 0;
}

int runRecover(const Writer &out, const Writer &err)
{
    Journal journal(Journal::defaultPath());
    if (!journal.isOpen()) {
        err(CliText::tr("selfsame-cli: the operations journal %1 cannot be opened: %2\n")
                .arg(escapedText(Journal::defaultPath()), journal.error())
                .toUtf8());
        return 1;
    }
    const RecoveryReport report = recoverInterrupted(journal);
    const int failures = reportRecovery(report, err);
    out(CliText::tr("%1 rolled back, %2 finished, %3 failed\n")
            .arg(report.rolledBack.size())
            .arg(report.finished.size())
            .arg(failures)
            .toUtf8());
    return failures == 0 ? 0 : 1;
}

int runFileActions(const FileActionOptions &options, const QList<ActionGroup> &groups, const Writer &out,
                   const Writer &err)
{
    int refused = 0;
    const QList<ActionGroup> safe = safeGroups(groups, err, &refused);
    QList<ResultItem *> members;
    for (const ActionGroup &group : groups)
        members += group.members;
    const CachedDigestsCarrier carrier(members);
    int exitCode = 0;
    if (options.action == FileAction::None && options.replaceWith == ReplaceWithClone) {
        exitCode = runClones(options, safe, out, err, refused);
    } else {
        FileActionOptions deleting = options;
        if (deleting.action == FileAction::None)
            deleting.action = FileAction::Delete; // a link replacement alone deletes the file it replaces
        exitCode = runDeletes(deleting, safe, out, err, refused);
    }
    if (options.perform && !options.digestCachePath.isEmpty()) {
        DigestCache cache(options.digestCachePath);
        if (cache.isOpen()) carrier.carryOver(cache);
    }
    return exitCode;
}

} // namespace selfsame::cli
