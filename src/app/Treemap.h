#pragma once

#include "results/ResultItem.h"

#include <QList>
#include <QRectF>
#include <QString>

namespace selfsame {

// What keeping one copy of each group would free in one folder: the copies it holds that are
// not the kept one (the largest of its group).
struct FolderShare {
    QString folder;
    qint64 reclaimable = 0;
    qsizetype copies = 0;
};

// The folders of the items' groups by what they would free, largest first; folders that would
// free nothing are left out. Items a command acted on count for nothing.
QList<FolderShare> reclaimableByFolder(const QList<ResultItem *> &items);

// A squarified treemap: one rectangle per weight, in the order given (largest first gives the
// squarest tiles), filling `bounds` with areas in proportion to the weights. Weights of 0 or
// less get an empty rectangle.
QList<QRectF> squarify(const QList<qint64> &weights, const QRectF &bounds);

} // namespace selfsame
