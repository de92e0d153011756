#pragma once

#include "search/ReadProgress.h"
#include "search/SearchState.h"
#include "search/StatusThrottle.h"

#include <QString>
#include <QStringList>

#include <algorithm>
#include <atomic>
#include <functional>
#include <mutex>

namespace selfsame {

class DigestCache;

// Counts that tell what a search did, for summaries and benchmarks.
struct SearchStatistics {
    qint64 enumerated = 0;        // items seen, before filters
    qint64 kept = 0;              // items that passed the filters
    qint64 unreadableFolders = 0; // folders that could not be listed
    QStringList unreadableFolderPaths; // their paths
    qint64 unreadableFiles = 0;   // files that could not be read for their digest or print
    QStringList unreadableFilePaths; // the similar modes': files that could not be decoded
    qint64 filesHashed = 0;       // files read whole for a content digest
    qint64 filesSampled = 0;      // files told apart by their first and last bytes alone
    qint64 bytesRead = 0;
    qint64 filesFromCache = 0;    // files the digest cache gave a digest or proved unique
    bool stopped = false;         // stopped before its end: groups may be missing, none is false
    bool someDurationFound = false;       // duration mode: some item had a duration
    bool someSpotlightValueFound = false; // attribute mode: some item had the attribute
};

// What every step of a run shares: the abort flag, the status channel and the counts.
// Progress values of 0 to 1 never go back within a step nor reach 1 before the search's end;
// below 0 they are indeterminate.
struct RunContext {
    const std::atomic<int> &searchingState;
    StatusThrottle &throttle;
    std::function<void(const QString &status, double progress)> post; // called from any thread
    QString stepPrefix;                                                   // "Step %1 of %2: " or empty
    SearchStatistics statistics;
    DigestCache *digestCache = nullptr; // none: every file is read
    QStringList singleFileScope = {};   // where copies of single files are looked for; empty: their volumes
    ReadProgress reading = {};          // the content search's reading of files, counted as it happens

    // Waits while the search is paused.
    bool aborted() const { return stopRequested(searchingState); }

    // `keepProgress`: the step goes on from the progress shown so far rather than from 0.
    void beginStep(int step, int stepCount, bool numbered, bool keepProgress = false)
    {
        throttle.reset();
        stepPrefix = numbered ? stepText(step, stepCount) : QString();
        if (!keepProgress)
            progressShown = 0;
    }

    // The text is built only for messages that get through the throttle.
    template <typename MakeText> void status(MakeText &&makeText, double progress)
    {
        if (!throttle.admit())
            return;
        // One message at a time: each is posted with a value no lower than the one before.
        std::lock_guard lock(postMutex);
        if (progress >= 0) {
            progress = std::max(std::min(progress, kBeforeEnd), progressShown);
            progressShown = progress;
        }
        lastStatus = stepPrefix + makeText();
        post(lastStatus, progress);
    }

    // The last message again at 1: the search is over and nothing of it remains.
    void finished()
    {
        std::lock_guard lock(postMutex);
        progressShown = 1;
        post(lastStatus, 1);
    }

    static QString stepText(int step, int stepCount);

    static constexpr double kBeforeEnd = 0.999;
    std::mutex postMutex{};
    double progressShown = 0;
    QString lastStatus{};
};

} // namespace selfsame
