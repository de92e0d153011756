#include "Treemap.h"

#include "results/Reclaimable.h"

#include <QHash>
#include <QSet>

#include <algorithm>

namespace selfsame {

QList<FolderShare> reclaimableByFolder(const QList<ResultItem *> &items)
{
    QHash<int, QList<const ResultItem *>> groups;
    for (const ResultItem *item : items)
        if (item->group >= 0 && !isActedOn(*item) && !item->has(Missing)) groups[item->group].append(item);
    QHash<QString, FolderShare> folders;
    for (const QList<const ResultItem *> &members : std::as_const(groups)) {
        if (members.size() < 2) continue;
        const ResultItem *kept = *std::max_element(members.begin(), members.end(), [](auto *a, auto *b) {
            return a->physicalSize < b->physicalSize;
        });
        // Another name of the kept file's storage (a hard link) frees nothing either.
        QSet<QPair<quint64, quint64>> storages{{kept->device, kept->inode}};
        for (const ResultItem *copy : members) {
            if (copy == kept) continue;
            if (copy->inode != 0 && storages.contains({copy->device, copy->inode})) continue;
            storages.insert({copy->device, copy->inode});
            FolderShare &share = folders[copy->folder()];
            share.folder = copy->folder();
            share.reclaimable += copy->physicalSize;
            ++share.copies;
        }
    }
    QList<FolderShare> shares;
    for (const FolderShare &share : std::as_const(folders))
        if (share.reclaimable > 0) shares.append(share);
    std::sort(shares.begin(), shares.end(), [](const FolderShare &a, const FolderShare &b) {
        return a.reclaimable != b.reclaimable ? a.reclaimable > b.reclaimable : a.folder < b.folder;
    });
    return shares;
}

namespace {

// The worst aspect ratio of a row of areas laid along a side of length `side`.
double worstRatio(double sum, double smallest, double largest, double side)
{
    const double side2 = side * side, sum2 = sum * sum;
    return std::max(side2 * largest / sum2, sum2 / (side2 * smallest));
}

} // namespace

QList<QRectF> squarify(const QList<qint64> &weights, const QRectF &bounds)
{
    QList<QRectF> tiles(weights.size());
    double total = 0;
    for (qint64 weight : weights)
        total += double(std::max<qint64>(weight, 0));
    if (total <= 0 || bounds.isEmpty()) return tiles;
    const double scale = bounds.width() * bounds.height() / total;
    QList<qsizetype> order;
    for (qsizetype i = 0; i < weights.size(); ++i)
        if (weights[i] > 0) order.append(i);

    QRectF room = bounds;
    qsizetype next = 0;
    while (next < order.size()) {
        const double side = std::min(room.width(), room.height());
        // Grow the row while that makes its tiles squarer.
        double sum = double(weights[order[next]]) * scale;
        double smallest = sum, largest = sum;
        qsizetype end = next + 1;
        while (end < order.size()) {
            const double area = double(weights[order[end]]) * scale;
            if (worstRatio(sum + area, std::min(smallest, area), std::max(largest, area), side) >
                worstRatio(sum, smallest, largest, side))
                break;
            sum += area;
            smallest = std::min(smallest, area);
            largest = std::max(largest, area);
            ++end;
        }
        // The row is a strip along the shorter side of what is left.
        const bool column = room.width() >= room.height();
        const double thickness = end == order.size() ? (column ? room.width() : room.height()) : sum / side;
        double along = column ? room.top() : room.left();
        for (qsizetype k = next; k < end; ++k) {
            const double length = double(weights[order[k]]) * scale / sum * side;
            tiles[order[k]] = column ? QRectF(room.left(), along, thickness, length)
                                     : QRectF(along, room.top(), length, thickness);
            along += length;
        }
        if (column)
            room.setLeft(room.left() + thickness);
        else
            room.setTop(room.top() + thickness);
        next = end;
    }
    return tiles;
}

} // namespace selfsame
