#pragma once

#include "fileops/Alert.h"
#include "fileops/DeleteActions.h"
#include "results/ResultItem.h"

#include <QList>
#include <QStringList>
#include <functional>
#include <optional>

namespace selfsame
{

// The answer to a check: go on when there is no alert, or when the user pressed the button
// whose code is proceedCode (never when it is 0).
struct CheckOutcome {
    std::optional<Alert> alert;
    int proceedCode = 0;
    bool proceedsWith(int answer) const { return !alert || (proceedCode != 0 && answer == proceedCode); }
};

CheckOutcome checkReferenceItem(int mode, const ResultItem *reference,
                                const QList<ResultItem *> &duplicatesToReplace);
CheckOutcome doesItemsContainsAllDupesOfAnyItem(const QList<ResultItem *> &items, const QStringList &urls,
                                                const DuplicatesFor &duplicatesFor);
CheckOutcome checkFilesystemForDeleteAction(int mode, const QStringList &urls);

// File-system types (statfs f_type) that share extents, and those that hold POSIX links.
bool isCloneCapableFileSystem(long type);
bool isLinkCapableFileSystem(long type);

// The summary alert of failed replacements; nullopt for a count below 1.
std::optional<Alert> postDeleteActionFailedForCount(int count, int mode, const QString &lastReference,
                                                    const QString &lastDeleted);
// The alerts after a move to the trash or a deletion that failed for some items; nullopt when
// none failed. The singular form is used when exactly one row was targeted.
std::optional<Alert> trashFailureAlert(const DeleteReport &report, const QList<ResultItem *> &targets);
std::optional<Alert> deletionFailureAlert(const DeleteReport &report, const QList<ResultItem *> &targets);
// The confirmation before an immediate deletion.
Alert deleteConfirmationAlert(const QList<ResultItem *> &targets);

// The name a file manager shows for a path: its last component, or the path itself for "/".
QString displayName(const QString &path);

} // namespace selfsame
