#include "fileops/CloneAlerts.h"

#include "format/ByteSize.h"
#include "format/Formatters.h"

#include <QCoreApplication>

namespace selfsame
{

namespace
{

struct CloneAlertsText {
    Q_DECLARE_TR_FUNCTIONS(CloneAlerts)
};

} // namespace

Alert compareFoldersCloneAlert()
{
    Alert alert{CloneAlertsText::tr("Folder comparison was enabled"),
                CloneAlertsText::tr(
                    "You might clone more duplicate files if folder comparison is turned off in the initial "
                    "search.\n\n"
                    "For example, a file that exists in a duplicate folder might also exist separately."),
                {CloneAlertsText::tr("Continue"), CloneAlertsText::tr("Cancel")},
                0,
                1};
    alert.suppressible = true;
    return alert;
}

Alert noClonableFileAlert()
{
    return Alert{
        CloneAlertsText::tr("No file among the selection can be cloned"),
        CloneAlertsText::tr(
            "The selection should contain at least two duplicate files.\n\nThe files should have write "
            "permission, they should not already be clones, and they should be on the same volume, on a file "
            "system that shares storage between files (Btrfs, XFS, bcachefs)."),
        {CloneAlertsText::tr("Cancel")},
        0,
        0};
}

Alert cloneConfirmationAlert(const CloneCounts &c)
{
    QString what;
    if (c.replaceDuplicates == 1 && !c.singleFilenameToReplace.isEmpty())
        what = CloneAlertsText::tr("“%1”").arg(c.singleFilenameToReplace);
    else
        what = (c.onAllFoundFiles ? CloneAlertsText::tr("%1 duplicate(s) among all found files", nullptr,
                                                        c.replaceDuplicates)
                                  : CloneAlertsText::tr("%1 duplicate(s) among the selected files", nullptr,
                                                        c.replaceDuplicates))
                   .arg(formatCount(c.replaceDuplicates));
    const QString clones =
        c.replaceDuplicates == 1 ? CloneAlertsText::tr("a clone") : CloneAlertsText::tr("clones");
    QString of;
    if (c.byClones == 1)
        of = c.singleFilenameToClone.isEmpty() ? CloneAlertsText::tr("1 file")
                                               : CloneAlertsText::tr("“%1”").arg(c.singleFilenameToClone);
    else
        of = CloneAlertsText::tr("%1 different files").arg(formatCount(c.byClones));
    return Alert{
        CloneAlertsText::tr("Do you want to replace %1, by %2 of %3? %4 on disk will be reclaimed.")
            .arg(what, clones, of, formatByteCount(c.ofPhysicalSize)),
        CloneAlertsText::tr("Creation and modification dates, tags, extended attributes, permissions and "
                            "other metadata will be "
                            "kept. Clones take no disk space of their own until their contents change."),
        {CloneAlertsText::tr("Clone"), CloneAlertsText::tr("Cancel"),
         CloneAlertsText::tr("View Cloning Plan")},
        0,
        1};
}

Alert writeProtectedCloneAlert(int n)
{
    Alert alert{
        CloneAlertsText::tr("Warning: write-protected files"),
        CloneAlertsText::tr(
            "%1 files to be cloned are write-protected. As you own these files, you may bypass "
            "write-protection.\n\nDo you want to clone them anyway?")
            .arg(formatCount(n)),
        {CloneAlertsText::tr("Skip Them"), CloneAlertsText::tr("Clone Them"), CloneAlertsText::tr("Cancel")},
        0,
        2};
    alert.suppressible = true;
    return alert;
}

Alert otherOwnerCloneAlert(int n)
{
    return Alert{
        CloneAlertsText::tr("Warning: other file owner"),
        CloneAlertsText::tr(
            "%1 files are owned by another user account. File permissions allow you to modify them, but "
            "replacing them by clones will set you as the file owner.\n\nDo you want to clone them anyway?")
            .arg(formatCount(n)),
        {CloneAlertsText::tr("Skip Them"), CloneAlertsText::tr("Clone and Change Owner"),
         CloneAlertsText::tr("Cancel")},
        0,
        2};
}

QString cloneProgressText(bool perform)
{
    return perform ? CloneAlertsText::tr("Cloning files…") : CloneAlertsText::tr("Planning cloning…");
}

QString cloneProgressButtonTitle(bool perform)
{
    return perform ? CloneAlertsText::tr("Abort") : CloneAlertsText::tr("Cancel");
}

} // namespace selfsame
