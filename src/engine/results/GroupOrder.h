#pragma once

#include "results/ResultItem.h"
#include "search/FilenameSortKey.h"
#include "search/SearchRequest.h"

#include <QList>

namespace selfsame
{

// The order of a detection mode's group key, which both the sorted look-up array and the
// binary searches over it use. The similar modes order by the search's group number.
class GroupOrder
{
public:
    explicit GroupOrder(const SearchRequest &request);

    bool isOrdered() const;
    int compare(const ResultItem &a, const ResultItem &b) const;
    // Sorts ascending by the group key.
    void sort(QList<ResultItem *> &items) const;
    // The members of `item`'s group in `sorted` (ascending by the group key), the item
    // included; in the duration and attribute modes the items within ± tolerance of it; in the
    // similar modes exactly the members of its group.
    QList<ResultItem *> duplicatesFor(const QList<ResultItem *> &sorted, const ResultItem &item) const;

    // The file-name mode's comparable text of an item.
    QString nameKey(const ResultItem &item) const;

private:
    struct Range {
        qsizetype begin, end;
    };
    Range equalRange(const QList<ResultItem *> &sorted, const ResultItem &low, const ResultItem &high,
                     bool lowMustBeEqual) const;

    DetectionMode m_mode;
    double m_durationTolerance;
    double m_spotlightTolerance;
    FilenameSortKey m_nameKey; // the file-name mode's, as the search grouped by it
};

} // namespace selfsame
