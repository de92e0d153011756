#include "search/SearchRun.h"

#include "attributes/SpotlightAttributesManager.h"
#include "format/Formatters.h"
#include "names/FileNames.h"
#include "results/PathPrefix.h"
#include "search/ContentSearch.h"
#include "search/Enumerator.h"
#include "search/ExactSizeIndex.h"
#include "search/SingleFileDuplicates.h"
#include "search/SweepSearch.h"
#include "similar/SimilarSearch.h"

#include <QCoreApplication>
#include <QDir>

#include <climits>
#include <cstdlib>
#include <unistd.h>

namespace selfsame {

namespace {

// The locations as the file system knows them: a folder reached through a symbolic link is
// searched under its real path, so that no file is found twice under two names. Locations
// that resolve to the same place are searched once; one that does not exist stays as given.
QStringList realLocations(const QStringList &locations)
{
    QStringList real;
    for (const QString &location : locations) {
        char resolved[PATH_MAX];
        const std::string path = pathStdBytes(QDir::cleanPath(location));
        const QString found = realpath(path.c_str(), resolved) ? pathFromBytes(std::string_view(resolved)) : location;
        if (!real.contains(found))
            real.append(found);
    }
    return real;
}

} // namespace

QList<ResultItem> SearchRun::run()
{
    const bool content = m_request.detectionMode == DetectionMode::Content;
    const int steps = ContentSearch::stepCount(m_request);

    m_context.beginStep(1, steps, content);
    SearchRequest request = m_request;
    request.searchInFolderURLs = realLocations(m_request.searchInFolderURLs);
    if (m_request.findAllDupesForSingleFiles) {
        const auto index = ExactSizeIndex::create(m_context.singleFileScope, request, m_context);
        request.searchInFolderURLs = realLocations(SingleFileDuplicates(request, m_context, *index).extendedLocations());
    }
    const bool readsMetadata = request.detectionMode == DetectionMode::Duration ||
                               request.detectionMode == DetectionMode::Attribute;
    const int expectedType = request.detectionMode == DetectionMode::Attribute
                                 ? SpotlightAttributesManager::GetTypeIDForSpotlightAttribute(request.spotlightAttribute)
                                 : AnyType;
    MetadataFilter metadataFilter(request, expectedType);
    Enumerator enumerator(request, m_context.searchingState, geteuid(), [this](qint64 count) {
        m_context.status(
            [count] {
                return QCoreApplication::translate("DuplicateSearch", "Enumerating files… %1")
                    .arg(formatCount(count));
            },
            -1);
    });
    if (readsMetadata)
        enumerator.setMetadataFilter(&metadataFilter);
    EnumerationResult enumeration = enumerator.run();
    m_context.statistics.someDurationFound = metadataFilter.someDurationFound();
    m_context.statistics.someSpotlightValueFound = metadataFilter.someSpotlightValueFound();
    m_context.statistics.enumerated = enumeration.enumerated;
    m_context.statistics.kept = qint64(enumeration.entries.size());
    m_context.statistics.unreadableFolders = enumeration.unreadableFolders;
    for (const std::string &path : enumeration.unreadableFolderPaths)
        m_context.statistics.unreadableFolderPaths.append(pathFromBytes(path));

    QList<ResultItem> items;
    if (content) {
        items = ContentSearch(request, enumeration, m_context).run();
    } else {
        // What the other modes find in part of the files is true of those files.
        items = isSimilarityMode(request.detectionMode) ? SimilarSearch(request, enumeration, m_context).run()
                                                        : SweepSearch(request, enumeration).run();
        m_context.statistics.stopped = m_context.aborted();
    }
    removeCommonPathPrefix(request.searchInFolderURLs, items);
    if (!m_context.statistics.stopped)
        m_context.finished();
    return items;
}

} // namespace selfsame
