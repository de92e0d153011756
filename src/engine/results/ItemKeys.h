#pragma once

#include "results/ResultItem.h"

#include <QStringView>
#include <QVariant>

namespace selfsame {

// Keyed access to a ResultItem by the names that sorting, list columns and the filter use
// ("size", "modified", "tagList", …). One table serves them all.
struct ItemKey {
    const char *name;
    QVariant (*value)(const ResultItem &);            // invalid QVariant for an absent value
    int (*compare)(const ResultItem &, const ResultItem &); // -1, 0 or 1; absent values first
    // The natural order of file lists (naturalCompare) for keys of path texts; null for others.
    int (*naturalCompare)(const ResultItem &, const ResultItem &) = nullptr;
    // The text those keys compare, as a view into the item, where there is one to view.
    QStringView (*text)(const ResultItem &) = nullptr;
    // For keys of whole numbers and dates: the number `compare` orders by, so that a long list
    // can be sorted by numbers taken out of the items once.
    qint64 (*integer)(const ResultItem &) = nullptr;
};

// The key path of the folder column (the name column's is kSortByNameKeyPath).
inline constexpr QLatin1String kSortByFolderKeyPath("URL.path.stringByDeletingLastPathComponent");

const ItemKey *findItemKey(QStringView name);
QVariant itemValue(const ResultItem &item, QStringView key);
// Compares by a key; unknown keys compare equal.
int compareItems(const ResultItem &a, const ResultItem &b, QStringView key);

} // namespace selfsame
