#include "fileops/DeleteChecks.h"

#include "fileops/FSMetadata.h"
#include "fileops/Replacement.h"
#include "format/Formatters.h"
#include "names/FileNames.h"

#include <QCoreApplication>
#include <QSet>
#include <linux/magic.h>
#include <sys/vfs.h>

namespace selfsame
{

namespace
{

struct DeleteChecksText {
    Q_DECLARE_TR_FUNCTIONS(DeleteChecks)
};

constexpr long kXfsMagic = 0x58465342;
constexpr long kBcachefsMagic = 0xca451a4e;
constexpr long kZfsMagic = 0x2fc12fc1;
constexpr long kF2fsMagic = 0xf2f52010;
constexpr long kOcfs2Magic = 0x7461636f;
constexpr long kJfsMagic = 0x3153464a;

// Names the files left alone because acting on them could have lost a copy.
QString withRefused(const QString &text, const DeleteReport &report)
{
    if (report.refused.isEmpty()) return text;
    constexpr qsizetype kNamed = 10;
    QStringList names;
    for (qsizetype i = 0; i < std::min(kNamed, report.refused.size()); ++i)
        names.append(displayPath(report.refused[i]));
    if (report.refused.size() > kNamed)
        names.append(DeleteChecksText::tr("and %1 more").arg(formatCount(report.refused.size() - kNamed)));
    const QString refused =
        DeleteChecksText::tr(
            "Left alone because they changed since the search, or no unchanged copy of them remains:\n%1")
            .arg(names.join(u'\n'));
    if (report.refused.size() == 1 && report.removalFailures == 1)
        return report.lastErrorText; // names the file and what changed
    return text.isEmpty() ? refused : text + QStringLiteral("\n\n") + refused;
}

} // namespace

QString displayName(const QString &path)
{
    const QString name = path.mid(path.lastIndexOf(u'/') + 1);
    return displayPath(name.isEmpty() ? path : name);
}

bool isCloneCapableFileSystem(long type)
{
    return type == long(BTRFS_SUPER_MAGIC) || type == kXfsMagic || type == kBcachefsMagic ||
           type == kZfsMagic || type == kOcfs2Magic;
}

bool isLinkCapableFileSystem(long type)
{
    return isCloneCapableFileSystem(type) || type == long(EXT4_SUPER_MAGIC) || type == long(TMPFS_MAGIC) ||
           type == kF2fsMagic || type == long(REISERFS_SUPER_MAGIC) || type == kJfsMagic ||
           type == long(NILFS_SUPER_MAGIC) || type == long(OVERLAYFS_SUPER_MAGIC) ||
           type == long(RAMFS_MAGIC);
}

CheckOutcome checkReferenceItem(int mode, const ResultItem *reference,
                                const QList<ResultItem *> &duplicatesToReplace)
{
    CheckOutcome outcome;
    if (mode == ReplaceWithNone) return outcome;
    const QString informative = DeleteChecksText::tr(
        "To replace deleted duplicates, select the reference file to preserve in the top "
        "list, and the duplicates to replace in the bottom list.");
    if (!reference) {
        outcome.alert =
            Alert{DeleteChecksText::tr("No item is selected in the bottom list"),
                  informative,
                  {DeleteChecksText::tr("Delete Without Replacing"), DeleteChecksText::tr("Cancel")},
                  1,
                  1};
        outcome.proceedCode = kFirstButton;
    } else if (duplicatesToReplace.contains(reference)) {
        outcome.alert =
            Alert{DeleteChecksText::tr(
                      "Please make sure that the same item is not selected both in the top and bottom lists"),
                  informative,
                  {DeleteChecksText::tr("Cancel")},
                  0,
                  0};
    }
    return outcome;
}

CheckOutcome doesItemsContainsAllDupesOfAnyItem(const QList<ResultItem *> &items, const QStringList &urls,
                                                const DuplicatesFor &duplicatesFor)
{
    CheckOutcome outcome;
    const QSet<QString> chosen(urls.begin(), urls.end());
    for (const ResultItem *item : items) {
        const QList<ResultItem *> dupes = duplicatesFor(*item);
        const bool all = std::all_of(dupes.begin(), dupes.end(),
                                     [&](const ResultItem *d) { return chosen.contains(d->path); });
        if (all) {
            outcome.alert =
                Alert{DeleteChecksText::tr("Warning: you have selected ALL the dupes of at least one file"),
                      DeleteChecksText::tr("You should probably keep one version of this file."),
                      {DeleteChecksText::tr("Cancel"), DeleteChecksText::tr("Continue Anyway")},
                      0,
                      0,
                      1};
            outcome.proceedCode = kFirstButton + 1;
            break;
        }
    }
    return outcome;
}

CheckOutcome checkFilesystemForDeleteAction(int mode, const QStringList &urls)
{
    CheckOutcome outcome;
    if (mode == ReplaceWithNone) return outcome;
    for (const QString &url : urls) {
        struct statfs fs {
        };
        if (statfs(pathBytes(url).constData(), &fs) != 0) continue;
        QString message, informative;
        if (mode == ReplaceWithClone && !isCloneCapableFileSystem(long(fs.f_type))) {
            message = DeleteChecksText::tr("Clones may be unsupported on this volume");
            informative = DeleteChecksText::tr(
                "Only file systems that share storage between files, such as Btrfs, XFS or bcachefs, "
                "can make clones.");
        } else if (mode != ReplaceWithClone && !isLinkCapableFileSystem(long(fs.f_type))) {
            message = DeleteChecksText::tr(
                "Hard links, desktop links or symbolic links may be unsupported on this volume");
            informative = DeleteChecksText::tr(
                "Drives formatted as FAT, exFAT or NTFS, and network shares, may refuse links.");
        }
        if (!message.isEmpty()) {
            outcome.alert = Alert{message,
                                  informative,
                                  {DeleteChecksText::tr("Cancel"), DeleteChecksText::tr("Continue Anyway")},
                                  0,
                                  0};
            outcome.proceedCode = kFirstButton + 1;
            break;
        }
    }
    return outcome;
}

std::optional<Alert> postDeleteActionFailedForCount(int failures, int mode, const QString &lastReference,
                                                    const QString &lastDeleted)
{
    if (failures < 1) return std::nullopt;
    const QString object = failures == 1
                               ? DeleteChecksText::tr("“%1” in “%2”")
                                     .arg(displayName(lastReference), displayName(parentFolder(lastDeleted)))
                               : DeleteChecksText::tr("%1 files").arg(formatCount(failures));
    QString action;
    QString note;
    switch (mode) {
    case ReplaceWithAlias:
        action = DeleteChecksText::tr("Creating a desktop link");
        break;
    case ReplaceWithSymbolicLink:
    case ReplaceWithRelativeSymbolicLink:
        action = DeleteChecksText::tr("Creating a symbolic link");
        break;
    case ReplaceWithHardLink:
        action = DeleteChecksText::tr("Creating a hard link");
        note = DeleteChecksText::tr("Note: hard links are only supported on the same volume.");
        break;
    case ReplaceWithClone:
        action = DeleteChecksText::tr("Creating a clone");
        note = DeleteChecksText::tr("Note: clones can only be made on the same volume, on a file system that "
                                    "shares storage between files (Btrfs, XFS, bcachefs).");
        break;
    default:
        break;
    }
    return Alert{
        DeleteChecksText::tr("%1 of %2 failed").arg(action, object), note, {DeleteChecksText::tr("OK")}};
}

std::optional<Alert> trashFailureAlert(const DeleteReport &report, const QList<ResultItem *> &targets)
{
    if (report.removalFailures == 0 || targets.isEmpty()) return std::nullopt;
    const QString message = targets.size() == 1
                                ? DeleteChecksText::tr("“%1” could not be moved to the Trash.")
                                      .arg(displayName(targets.first()->path))
                                : DeleteChecksText::tr("%Ln file(s) could not be moved to the Trash.",
                                                       nullptr, report.removalFailures);
    return Alert{message,
                 withRefused(report.lastErrorText, report),
                 {DeleteChecksText::tr("OK"), DeleteChecksText::tr("Delete Immediately…")},
                 0,
                 0,
                 1};
}

std::optional<Alert> deletionFailureAlert(const DeleteReport &report, const QList<ResultItem *> &targets)
{
    if (report.removalFailures == 0 || targets.isEmpty()) return std::nullopt;
    const QString message = targets.size() == 1
                                ? DeleteChecksText::tr("“%1” could not be deleted immediately.")
                                      .arg(displayName(targets.first()->path))
                                : DeleteChecksText::tr("%Ln file(s) could not be deleted immediately.",
                                                       nullptr, report.removalFailures);
    return Alert{message, withRefused({}, report), {DeleteChecksText::tr("OK")}};
}

Alert deleteConfirmationAlert(const QList<ResultItem *> &targets)
{
    const QStringList buttons{DeleteChecksText::tr("Delete Immediately"), DeleteChecksText::tr("Cancel")};
    if (targets.size() == 1)
        return Alert{
            DeleteChecksText::tr("Are you sure you want to delete “%1” immediately?")
                .arg(displayName(targets.first()->path)),
            DeleteChecksText::tr("This item will be deleted immediately. You can’t undo this action."),
            buttons,
            1,
            1,
            0};
    return Alert{DeleteChecksText::tr("Are you sure you want to delete the %1 selected items immediately?")
                     .arg(formatCount(targets.size())),
                 DeleteChecksText::tr("%1 items will be deleted immediately. You can’t undo this action.")
                     .arg(formatCount(targets.size())),
                 buttons,
                 1,
                 1,
                 0};
}

} // namespace selfsame
