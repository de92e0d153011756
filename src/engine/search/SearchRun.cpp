#include "search/SearchRun.h"

#include "format/Formatters.h"
#include "results/PathPrefix.h"
#include "search/ContentSearch.h"
#include "search/Enumerator.h"

#include <QCoreApplication>

#include <unistd.h>

namespace selfsame {

QList<ResultItem> SearchRun::run()
{
    const bool content = m_request.detectionMode == DetectionMode::Content;
    const int steps = m_request.compareFolders ? 6 : 4;

    m_context.beginStep(1, steps, content);
    Enumerator enumerator(m_request, m_context.searchingState, geteuid(), [this](qint64 count) {
        m_context.status(
            [count] {
                return QCoreApplication::translate("DuplicateSearch", "Enumerating files… %1")
                    .arg(IntegerFormatter::shared().stringForIntegerValue(count));
            },
            -1);
    });
    const EnumerationResult enumeration = enumerator.run();
    m_context.statistics.enumerated = enumeration.enumerated;
    m_context.statistics.kept = qint64(enumeration.entries.size());
    m_context.statistics.unreadableFolders = enumeration.unreadableFolders;

    QList<ResultItem> items;
    if (content)
        items = ContentSearch(m_request, enumeration, m_context).run();
    removeCommonPathPrefix(m_request.searchInFolderURLs, items);
    return items;
}

} // namespace selfsame
