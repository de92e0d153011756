#pragma once

#include "results/ResultItem.h"
#include "search/RunContext.h"
#include "search/SearchRequest.h"

#include <QList>
#include <QObject>

#include <atomic>
#include <thread>

namespace selfsame {

struct EmptyResultMessage {
    QString message;
    QString informativeText; // may be empty
};
// What to tell the user when a search that was not aborted found nothing.
EmptyResultMessage emptyResultMessage(DetectionMode mode, const SearchStatistics &statistics);

// One search, run on a thread of its own. Status and the end of the search reach the
// thread that started it as queued signals.
class DuplicateSearch : public QObject {
    Q_OBJECT
public:
    explicit DuplicateSearch(QObject *parent = nullptr);
    ~DuplicateSearch() override; // aborts a running search and waits for it

    // Stores the request (with its storage rules applied) and starts the search.
    void searchInFolderURLs(const SearchRequest &request);

    // Where the content searches of this process keep file digests between searches
    // (see DigestCache); empty: nowhere, every search reads every file it compares.
    static void setDigestCachePath(const QString &path);
    static QString digestCachePath();

    // The folders searched for copies of single-file locations when the request asks for them;
    // empty (the default): the volumes of the locations.
    void setSingleFileScope(const QStringList &folders) { m_singleFileScope = folders; }
    // Instead, the volumes that hold these locations, found when the search runs.
    void setSingleFileScopeVolumesOf(const QStringList &locations) { m_singleFileVolumesOf = locations; }

    void abort() { abortAndWait(false); }
    // Requests an abort when the search is running or paused; with `wait`, returns once it has
    // stopped. Safe to call from a signal handler when `wait` is false. What was grouped
    // until then is kept (see SearchStatistics::stopped).
    void abortAndWait(bool wait);
    // A paused search holds its threads where they are: reading stops after the block each
    // is at. False when the search was not running.
    bool pause();
    bool resume();
    bool paused() const { return m_searchingState.load() == Paused; }

    int searchingState() const { return m_searchingState.load(); }
    bool aborted() const { return m_aborted.load(); }
    const SearchRequest &request() const { return m_request; }
    // Valid once searchDone has been emitted.
    const QList<ResultItem> &mainItems() const { return m_mainItems; }
    // Hands the items over to their results without copying a million of them.
    QList<ResultItem> takeMainItems() { return std::move(m_mainItems); }
    const SearchStatistics &statistics() const { return m_statistics; }

Q_SIGNALS:
    void progress(const QString &status, double progress); // progress < 0: indeterminate
    void searchDone();

private:
    void searchInFolderURLsInBackground();

    SearchRequest m_request;
    QStringList m_singleFileScope;
    QStringList m_singleFileVolumesOf;
    std::atomic<int> m_searchingState{Finished};
    std::atomic<bool> m_aborted{false};
    StatusThrottle m_throttle;
    QList<ResultItem> m_mainItems;
    SearchStatistics m_statistics;
    std::thread m_thread;
};

} // namespace selfsame
