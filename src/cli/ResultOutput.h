#pragma once

#include "CliOptions.h"
#include "autoselect/AutoSelectRules.h"
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

// Writes the results to `sink` a piece at a time. With a selection (of these very items),
// every item also says whether the rule selected it, kept it, or left it alone.
// JSON is the results file format of saved results windows (docs/results-format.md).
void writeResults(const QList<ResultItem> &items, const SearchRequest &request, OutputFormat format,
                  const SearchStatistics &statistics, const std::function<void(const QByteArray &)> &sink,
                  const AutoSelection *selection = nullptr);
QByteArray formatResults(const QList<ResultItem> &items, const SearchRequest &request, OutputFormat format,
                         const SearchStatistics &statistics, const AutoSelection *selection = nullptr);
QByteArray summaryText(const QList<ResultItem> &items, const SearchStatistics &statistics);

} // namespace selfsame::cli
