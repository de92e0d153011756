#pragma once

#include "results/ResultItem.h"
#include "search/Enumerator.h"
#include "search/SearchRequest.h"

#include <QList>
#include <QVariant>
#include <functional>
#include <vector>

namespace selfsame
{

// Runs of two or more items, [begin, end) positions in sorted order, that match their first
// item (the anchor). An anchor that is not usable is skipped; every match is against the
// anchor, so a run never spreads wider than the tolerance.
struct SweepRun {
    std::size_t begin;
    std::size_t end;
};
std::vector<SweepRun> sweep(std::size_t count, const std::function<bool(std::size_t anchor)> &usable,
                            const std::function<bool(std::size_t anchor, std::size_t item)> &matches);

// Ordering and matching of compared attribute values: numbers (booleans among them), dates
// and strings, each kind apart. Sorted descending, a run holds the values from the anchor's
// down to the anchor's minus the tolerance (seconds for dates); strings match exactly.
int compareAttributeValues(const QVariant &a, const QVariant &b);
bool attributeValueMatches(const QVariant &anchor, const QVariant &value, double tolerance);

// The duration, file-name and attribute modes: the enumerated items sorted by the compared
// value, and grouped by one sweep. Reads no file contents.
class SweepSearch
{
public:
    SweepSearch(const SearchRequest &request, const EnumerationResult &enumeration)
        : m_request(request), m_entries(enumeration.entries)
    {
    }

    // The members of every group, in sweep order.
    QList<ResultItem> run();

private:
    std::vector<std::size_t> sortedByDuration(std::vector<SweepRun> &runs);
    std::vector<std::size_t> sortedByName(std::vector<SweepRun> &runs);
    std::vector<std::size_t> sortedByAttribute(std::vector<SweepRun> &runs);
    ResultItem makeItem(std::size_t entry) const;

    const SearchRequest &m_request;
    const EntryTable &m_entries;
};

} // namespace selfsame
