#pragma once

#include "results/ResultModel.h"

#include <QString>

namespace selfsame {

// The line under the result lists, for example
// "12 groups · 31 files · 48.2 MB reclaimable · 2 unreadable — 3 selected (102 kB on disk)".
struct ResultsStatus {
    QString text;
    QString unreadable; // the part of the text that counts unreadable items; a click lists them
    QString path;       // the one selected item's path, shown beside the text; empty otherwise
};

// The totals of the top list (its hidden, unreadable and missing items where there are any),
// after a note when the results are partial, then the selection of the active list; an empty bottom list counts as the top list.
ResultsStatus resultsStatus(const ResultModel &model, ResultList active, qint64 unreadable);

// The caption of the bottom list: the size of the group it shows and what keeping one copy
// would free, for example "Group of 3 files · 12.3 kB on disk · 8.2 kB reclaimable". Empty for
// no group.
QString groupCaption(const QList<ResultItem *> &members);

} // namespace selfsame
