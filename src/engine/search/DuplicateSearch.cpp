#include "search/DuplicateSearch.h"

#include "search/DigestCache.h"
#include "search/ExactSizeIndex.h"
#include "search/SearchRun.h"

#include <QCoreApplication>
#include <chrono>
#include <mutex>
#include <optional>

namespace selfsame {

EmptyResultMessage emptyResultMessage(DetectionMode mode, const SearchStatistics &statistics)
{
    if (mode == DetectionMode::Attribute && !statistics.someSpotlightValueFound)
        return {DuplicateSearch::tr("No file has been found with the specified spotlight attribute."),
                DuplicateSearch::tr("Make sure the folder you are searching contains some files with this "
                                    "attribute in a format whose metadata can be read.")};
    if (mode == DetectionMode::Duration && !statistics.someDurationFound)
        return {DuplicateSearch::tr("No time-based file has been found."),
                DuplicateSearch::tr("Make sure the folder you are searching contains some audio or video files.")};
    const bool undecodable = statistics.unreadableFiles > 0;
    if (mode == DetectionMode::SimilarImages)
        return {DuplicateSearch::tr("No similar pictures were found."),
                undecodable ? DuplicateSearch::tr("Some pictures could not be decoded; they are listed as unreadable.")
                            : QString()};
    if (mode == DetectionMode::SimilarAudio)
        return {DuplicateSearch::tr("No recordings were found twice."),
                undecodable
                    ? DuplicateSearch::tr("Some recordings could not be decoded; they are listed as unreadable.")
                    : QString()};
    return {DuplicateSearch::tr("No duplicate files were found."), {}};
}

namespace {

std::mutex g_cachePathMutex;
QString g_cachePath;

} // namespace

void DuplicateSearch::setDigestCachePath(const QString &path)
{
    std::lock_guard lock(g_cachePathMutex);
    g_cachePath = path;
}

QString DuplicateSearch::digestCachePath()
{
    std::lock_guard lock(g_cachePathMutex);
    return g_cachePath;
}

DuplicateSearch::DuplicateSearch(QObject *parent) : QObject(parent) {}

DuplicateSearch::~DuplicateSearch()
{
    abortAndWait(true);
    if (m_thread.joinable())
        m_thread.join();
}

void DuplicateSearch::searchInFolderURLs(const SearchRequest &request)
{
    if (m_thread.joinable()) {
        abortAndWait(true);
        m_thread.join();
    }
    m_request = storedRequest(request);
    m_mainItems.clear();
    m_statistics = {};
    m_aborted = false;
    m_searchingState = Running;
    m_thread = std::thread([this] { searchInFolderURLsInBackground(); });
}

void DuplicateSearch::abortAndWait(bool wait)
{
    int expected = Running;
    if (!m_searchingState.compare_exchange_strong(expected, AbortRequested) &&
        !(expected == Paused && m_searchingState.compare_exchange_strong(expected, AbortRequested)))
        return;
    m_aborted = true;
    // Paused threads see the abort within their wait's time; a signal handler must not wake them.
    if (wait)
        wakePausedSearches();
    while (wait && m_searchingState.load() == AbortRequested)
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
}

bool DuplicateSearch::pause()
{
    int expected = Running;
    return m_searchingState.compare_exchange_strong(expected, Paused);
}

bool DuplicateSearch::resume()
{
    int expected = Paused;
    if (!m_searchingState.compare_exchange_strong(expected, Running))
        return false;
    wakePausedSearches();
    return true;
}

void DuplicateSearch::searchInFolderURLsInBackground()
{
    RunContext context{m_searchingState, m_throttle,
                       [this](const QString &status, double value) {
                           QMetaObject::invokeMethod(
                               this, [this, status, value] { Q_EMIT progress(status, value); },
                               Qt::QueuedConnection);
                       },
                       {}, {}};
    // Finding a volume looks at every parent folder: done here, never on the caller's thread.
    context.singleFileScope =
        m_singleFileVolumesOf.isEmpty() ? m_singleFileScope : volumeRoots(m_singleFileVolumesOf);
    // Only content digests and the similar modes' prints are kept; the cache writes what it
    // still holds after searchDone.
    std::optional<DigestCache> cache;
    if (const QString path = digestCachePath(); !path.isEmpty() && (m_request.detectionMode == DetectionMode::Content ||
                                                       isSimilarityMode(m_request.detectionMode))) {
        cache.emplace(path);
        context.digestCache = &*cache;
    }
    QList<ResultItem> items = SearchRun(m_request, context).run();
    const SearchStatistics statistics = context.statistics;
    // Finished before searchDone is scheduled: its receivers must see a search that has ended.
    m_searchingState = Finished;
    QMetaObject::invokeMethod(
        this,
        [this, items = std::move(items), statistics]() mutable {
            m_mainItems = std::move(items);
            m_statistics = statistics;
            Q_EMIT searchDone();
        },
        Qt::QueuedConnection);
}

} // namespace selfsame
