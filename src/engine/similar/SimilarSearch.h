#pragma once

#include "results/ResultItem.h"
#include "search/Enumerator.h"
#include "search/RunContext.h"
#include "search/SearchRequest.h"

#include <QList>

namespace selfsame
{

// The similar-pictures and same-recordings modes: each picture or recording among the
// enumerated files gets its print (from the digest cache when it did not change, else decoded
// on every core), and the prints are grouped around anchors. Files that cannot be decoded
// are counted and listed as unreadable.
class SimilarSearch
{
public:
    SimilarSearch(const SearchRequest &request, const EnumerationResult &enumeration, RunContext &context)
        : m_request(request), m_enumeration(enumeration), m_context(context)
    {
    }

    QList<ResultItem> run();

private:
    const SearchRequest &m_request;
    const EnumerationResult &m_enumeration;
    RunContext &m_context;
};

// Whether the similar mode looks at a file of this name at all.
bool isPictureName(QStringView name);
bool isRecordingName(QStringView name);

} // namespace selfsame
