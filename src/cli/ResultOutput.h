#pragma once

#include "CliOptions.h"
#include "results/ResultItem.h"
#include "search/RunContext.h"

#include <QByteArray>
#include <QList>

#include <functional>

namespace selfsame::cli {

// What a search found, in numbers a script can check.
struct ResultSummary {
    qint64 groups = 0;
    qint64 duplicates = 0;      // members beyond the first of every group
    qint64 reclaimableBytes = 0; // bytes freed by keeping one copy of each group's storage
};

ResultSummary summarize(const QList<ResultItem> &items);

// The items grouped by group number, in group order, each group sorted by path.
QList<QList<const ResultItem *>> groupsOf(const QList<ResultItem> &items);

// Writes the results to `sink` a piece at a time.
void writeResults(const QList<ResultItem> &items, OutputFormat format, const SearchStatistics &statistics,
                  const std::function<void(const QByteArray &)> &sink);
QByteArray formatResults(const QList<ResultItem> &items, OutputFormat format, const SearchStatistics &statistics);
QByteArray summaryText(const QList<ResultItem> &items, const SearchStatistics &statistics);

} // namespace selfsame::cli
