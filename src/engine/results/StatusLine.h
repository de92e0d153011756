#pragma once

#include "results/ResultModel.h"

#include <QString>

namespace selfsame
{

// What the line under the result lists shows.
struct StatusLine {
    QString text;
    QString path; // the one selected item's path, shown beside the text; empty otherwise
};

// The status of the active list; an empty bottom list counts as the top list.
StatusLine statusLine(const ResultModel &model, ResultList active);

} // namespace selfsame
