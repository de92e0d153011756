#pragma once

#include "results/ResultItem.h"

#include <QList>
#include <QStringList>

namespace selfsame {

// The folder prefix shared by the searched locations, cut from every item's displayed
// folder ("parentPath"). Only the first and last locations in path order are compared, and
// components that agree at the same position count even after a difference.
QString commonPathPrefix(const QStringList &searchedPaths);
void removeCommonPathPrefix(const QStringList &searchedPaths, QList<ResultItem> &items);

} // namespace selfsame
