#pragma once

#include "fileops/DeleteActions.h"

#include <QString>

namespace selfsame {

// The one line that tells what a file command did and what it freed, shown under the lists
// once the command is over. Empty when nothing was done.
QString deleteSummary(const QList<DeleteOutcome> &outcomes);
QString putBackSummary(const QList<ResultItem *> &putBack);
QString cloneSummary(const QList<ResultItem *> &cloned);

// What the Status column of the bottom list says of an item that a command acted on, from the
// state badge the command gave it; empty for an item as the search found it.
QString actedOnStatus(const QString &statusImage);

} // namespace selfsame
