#pragma once

#include "search/StatusThrottle.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <functional>

namespace selfsame {

class DigestCache;

enum SearchingState : int { Running = 0, AbortRequested = 1, Finished = 2 };

// Counts that tell what a search did, for summaries and benchmarks.
struct SearchStatistics {
    qint64 enumerated = 0;        // items seen, before filters
    qint64 kept = 0;              // items that passed the filters
    qint64 unreadableFolders = 0; // folders that could not be listed
    QStringList unreadableFolderPaths; // their paths
    qint64 unreadableFiles = 0;   // files that could not be read for their digest
    qint64 filesHashed = 0;       // files read whole for a content digest
    qint64 filesSampled = 0;      // files told apart by their first and last bytes alone
    qint64 bytesRead = 0;
    qint64 filesFromCache = 0;    // files the digest cache gave a digest or proved unique
    bool someDurationFound = false;       // duration mode: some item had a duration
    bool someSpotlightValueFound = false; // attribute mode: some item had the attribute
};

// What every step of a run shares: the abort flag, the status channel and the counts.
struct RunContext {
    const std::atomic<int> &searchingState;
    StatusThrottle &throttle;
    std::function<void(const QString &status, double progress)> post; // called from any thread
    QString stepPrefix;                                                   // "Step %1 of %2: " or empty
    SearchStatistics statistics;
    DigestCache *digestCache = nullptr; // none: every file is read
    QStringList singleFileScope = {};   // where copies of single files are looked for; empty: their volumes

    bool aborted() const { return searchingState.load(std::memory_order_relaxed) == AbortRequested; }

    void beginStep(int step, int stepCount, bool numbered)
    {
        throttle.reset();
        stepPrefix = numbered ? stepText(step, stepCount) : QString();
    }

    // The text is built only for messages that get through the throttle.
    template <typename MakeText> void status(MakeText &&makeText, double progress)
    {
        if (throttle.admit())
            post(stepPrefix + makeText(), progress);
    }

    static QString stepText(int step, int stepCount);
};

} // namespace selfsame
