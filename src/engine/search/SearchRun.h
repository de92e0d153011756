#pragma once

#include "results/ResultItem.h"
#include "search/RunContext.h"
#include "search/SearchRequest.h"

#include <QList>

namespace selfsame {

// One search from enumeration to the grouped items, run on the calling thread.
class SearchRun {
public:
    SearchRun(const SearchRequest &request, RunContext &context) : m_request(request), m_context(context) {}

    // The grouped items, with their displayed folders shortened by the locations' common prefix.
    QList<ResultItem> run();

private:
    const SearchRequest &m_request;
    RunContext &m_context;
};

} // namespace selfsame
