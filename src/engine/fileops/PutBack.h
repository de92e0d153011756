#pragma once

#include "fileops/Alert.h"
#include "results/ResultItem.h"

#include <QList>
#include <QString>
#include <optional>

namespace selfsame
{

class Journal; // with one, each move back is recorded first (journal/Journal.h)

struct PutBackResult {
    int error = 0; // errno value; 0 on success
    QString errorText;
    bool ok() const { return error == 0; }
};

// Moves a trashed item back from its trashedURL to its path, never over an existing file;
// on success removes the put-back attribute from the restored file and the .trashinfo
// record, and clears trashedURL and the status image. Items without trashedURL or already
// deleted are refused.
PutBackResult putBackItem(ResultItem &item, Journal *journal = nullptr);

// Moves a file handed over from the trash to `destination`, never over an existing file.
// On success the .trashinfo record is removed; the put-back attribute is removed at the
// file's former place in the trash, so the restored file keeps it, as intended.
// `undoes` names the journal step that moved the file to the trash, when an undo puts it back.
PutBackResult putBackFile(const QString &trashedPath, const QString &destination, Journal *journal = nullptr,
                          qint64 undoes = 0);

struct PutBackSummary {
    QList<ResultItem *> putBack; // their icon goes back to the file's own
    int failures = 0;
    QString lastErrorText;
};
// Puts back, in order, the targets that are in the trash and not deleted; passes over the rest.
PutBackSummary putBackItems(const QList<ResultItem *> &targets, Journal *journal = nullptr);
// The alert after putting back items from a window; nullopt when nothing failed.
std::optional<Alert> putBackFailureAlert(const PutBackSummary &summary, const QList<ResultItem *> &targets);
// The question before putting back a file handed over, and the error after it failed.
Alert putBackQuestion(const QString &trashedPath, const QString &destination, int fileCount);
Alert putBackErrorAlert(const QString &trashedPath, const QString &destination, const QString &errorText,
                        bool firstAttempt);

} // namespace selfsame
