#pragma once

#include "results/ResultItem.h"

#include <QList>
#include <QStringList>

namespace selfsame {

// The columns in the order a list shows them until the user moves them: what tells duplicates
// apart and what a command did first, so that they are in view in the default window.
QStringList defaultColumnOrder();
// The width a column starts with, in pixels.
int defaultColumnWidth(const QString &column);

// The columns of dates and tags that no item has a value for: the file system keeps no such
// date (the date added never on Linux; the birth time on some file systems), or nobody tagged
// these files. They start hidden.
QStringList columnsLeftEmpty(const QList<ResultItem *> &items);

} // namespace selfsame
