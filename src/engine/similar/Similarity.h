#pragma once

#include "results/ResultItem.h"
#include "search/SearchRequest.h"

namespace selfsame
{

// How alike two items are, 0–100, by the prints a similar mode computed for them; NaN in the
// other modes or when either item has no print.
double similarityOf(DetectionMode mode, const ResultItem &a, const ResultItem &b);

} // namespace selfsame
