#pragma once

#include "fileops/DeleteChecks.h"
#include "fileops/FSMetadata.h"
#include "results/ResultItem.h"

#include <QList>
#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <memory>

namespace selfsame
{

class Journal;

// What a pass of the worker planned or did.
struct CloneCounts {
    bool onAllFoundFiles = false;
    int replaceDuplicates = 0;
    qint64 ofPhysicalSize = 0;
    int byClones = 0;
    int writeProtected = 0;          // counted only while a plan file is written
    int otherOwner = 0;              // likewise
    QString singleFilenameToReplace; // when replaceDuplicates is 1
    QString singleFilenameToClone;   // when byClones is 1
};

// The steps of replacing one duplicate, each replaceable so that a test can make it fail.
struct CloneSteps {
    std::function<int(const QString &reference, const QString &duplicate)> dedupe;
    std::function<int(const QString &from, const QString &to)> moveAside;
    std::function<int(const QString &source, const QString &destination, bool isFolder)> clone;
    std::function<unsigned(const QString &path, const FSMetadata &metadata)> restore;
    static CloneSteps real();
};

struct CloneFailure {
    ResultItem *item = nullptr;
    QString reason;
};

// The duplicates of `reference` that may be replaced by clones of it: on a file system that
// clones, on its device, not the reference or a hard link of it, writable or allowed by
// the two permissions. Those that already share its storage are added to previousClones.
QList<ResultItem *> filterDuplicates(const QList<ResultItem *> &duplicates, const ResultItem &reference,
                                     bool overideReadOnlyIfSameOwner, bool changeOwner,
                                     QList<ResultItem *> &previousClones);

// Replaces `duplicate` by a clone of `reference`: by FIDEDUPERANGE where offered, else by
// moving it aside, cloning, restoring its metadata and removing the moved-aside file, rolling
// back on any failure. Both files must still be as the search found them, and not one file
// reached twice. After a rollback the duplicate is recorded anew: our own steps moved its
// change time. Returns an empty string on success, else why nothing was changed.
QString cloneDuplicate(const ResultItem &reference, ResultItem &duplicate, bool changeOwner,
                       const CloneSteps &steps, Journal *journal = nullptr);

// A private temporary folder for the cloning plan, under the user's runtime folder.
std::unique_ptr<QTemporaryDir> makePlanFolder();
// Removes the plan folders of processes that are gone (killed before they could); returns
// how many.
int removeStalePlanFolders();

// Replaces duplicates by clones in two passes: planning (counts and a plan file) and cloning.
class CloneWorker
{
public:
    CloneWorker(QList<ResultItem *> targets, QList<ResultItem *> mainItems, DuplicatesFor duplicatesFor);

    // Called before each reference with its index and the count; false aborts the pass.
    std::function<bool(int, int)> progress;
    CloneSteps steps = CloneSteps::real();
    // Where the steps of the move-aside way are recorded before they begin; none when null.
    Journal *journal = nullptr;
    // Where the planning pass writes the plan; "Selfsame.log" in a private temporary folder
    // when empty.
    QString planPath;

    // Returns false when aborted. The planning pass (perform false) changes no file.
    bool perform(bool perform, bool overideReadOnlyIfSameOwner, bool changeOwner,
                 CloneCounts *counts = nullptr);

    QString logFilePath() const { return m_logFilePath; }          // plan of the last planning pass
    const QList<ResultItem *> &cloned() const { return m_cloned; } // now shown as "cloned"
    const QList<CloneFailure> &failures() const { return m_failures; }

private:
    QList<ResultItem *> m_targets, m_mainItems;
    DuplicatesFor m_duplicatesFor;
    std::unique_ptr<QTemporaryDir> m_planFolder;
    QString m_logFilePath;
    QList<ResultItem *> m_cloned;
    QList<CloneFailure> m_failures;
};

} // namespace selfsame
