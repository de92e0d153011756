#pragma once

#include "results/ResultItem.h"

#include <QString>

namespace selfsame {

// Why an item may no longer be acted on: it is gone, or its size or modification time is not
// what the search recorded (someone changed it since). Empty when it is as recorded.
// Compared folders are checked for being folders still, since their size is a sum.
QString changedSinceSearch(const ResultItem &item);

} // namespace selfsame
