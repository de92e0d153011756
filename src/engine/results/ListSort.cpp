#include "results/ListSort.h"

#include "results/ItemKeys.h"
#include "results/NameCompare.h"
#include "results/ParallelSort.h"
#include "search/FilenameSortKey.h"

#include <algorithm>

namespace selfsame
{

namespace
{

QString extensionText(const ResultItem &item)
{
    if (item.has(IsFolder) && !item.has(IsPackage)) return QStringLiteral("   -=folder=-");
    const QString extension = pathExtension(item.nameView()).toString().toLower();
    return extension.isEmpty() ? QStringLiteral("~~~") : extension;
}

int sign(int value)
{
    return value < 0 ? -1 : (value > 0 ? 1 : 0);
}

struct Comparison {
    int (*compare)(const ResultItem &, const ResultItem &);
    bool ascending;
};

} // namespace

int compareExtensions(const ResultItem &a, const ResultItem &b, bool ascending)
{
    int result = sign(extensionText(a).compare(extensionText(b)));
    if (result == 0) result = compareLowercase(a.nameView(), b.nameView());
    return ascending ? result : -result;
}

int comparePixelSizes(const QString &a, const QString &b)
{
    const QString separator = QStringLiteral(" \u00d7 ");
    const QStringList x = a.split(separator), y = b.split(separator);
    if (x.size() != 2 || y.size() != 2) return 0;
    const qint64 pixelsA = x[0].toLongLong() * x[1].toLongLong();
    const qint64 pixelsB = y[0].toLongLong() * y[1].toLongLong();
    return pixelsA < pixelsB ? -1 : (pixelsA > pixelsB ? 1 : 0);
}

QString groupColumnKey(DetectionMode mode)
{
    switch (mode) {
    case DetectionMode::Content:
        return QStringLiteral("size");
    case DetectionMode::Duration:
        return QStringLiteral("duration");
    case DetectionMode::FileName:
        return kSortByNameKeyPath;
    case DetectionMode::Attribute:
        return QStringLiteral("spotlight");
    }
    return {};
}

QList<SortDescriptor> sortDescriptorsFor(const SortDescriptor &clicked, DetectionMode mode)
{
    const QString &key = clicked.key;
    const bool dupes = key == QLatin1String("dupes");
    const QString name = kSortByNameKeyPath;
    const QString folder = kSortByFolderKeyPath;
    if (mode == DetectionMode::Content && (key == QLatin1String("size") || dupes))
        return {clicked, {QStringLiteral("digest"), true}};
    if (mode == DetectionMode::FileName && dupes) return {clicked, {name, true}, {folder, true}};
    if (mode == DetectionMode::Duration && dupes) return {clicked, {QStringLiteral("duration"), true}};
    if (mode == DetectionMode::Attribute && dupes) return {clicked, {QStringLiteral("spotlight"), true}};
    if (key.startsWith(QLatin1String("URL.path.lastPathComponent")))
        return {clicked, {folder, clicked.ascending}};
    if (key.startsWith(QLatin1String("URL.path.stringByDeletingLastPathComponent")))
        return {clicked, {QStringLiteral("URL.path.lastPathComponent.lowercaseString"), clicked.ascending}};
    return {clicked};
}

void sortItems(QList<ResultItem *> &items, const SortDescriptor &clicked, DetectionMode mode)
{
    if (clicked.key == QLatin1String("extension")) {
        parallelStableSort(items.begin(), items.end(), [&](const ResultItem *a, const ResultItem *b) {
            return compareExtensions(*a, *b, clicked.ascending) < 0;
        });
        return;
    }
    QList<Comparison> comparisons;
    const ItemKey *naturalKey = nullptr; // the first key, when its texts sort naturally
    for (const SortDescriptor &d : sortDescriptorsFor(clicked, mode)) {
        const ItemKey *key = findItemKey(d.key);
        if (!key) continue; // an unknown key orders nothing
        const bool natural = d.key.startsWith(QLatin1String("URL.path")) && key->naturalCompare;
        if (natural && comparisons.isEmpty()) naturalKey = key;
        comparisons.append({natural ? key->naturalCompare : key->compare, d.ascending});
    }
    if (comparisons.isEmpty()) return;
    auto inOrder = [&](const ResultItem *a, const ResultItem *b) {
        for (const Comparison &c : comparisons)
            if (const int result = c.compare(*a, *b)) return c.ascending ? result < 0 : result > 0;
        return false;
    };
    if (!naturalKey) {
        parallelStableSort(items.begin(), items.end(), inOrder);
        return;
    }
    // Natural comparison of texts is slow to repeat: compute each item's key once, all of
    // them in one buffer, and compare the items themselves only where the keys tie.
    struct Keyed {
        std::size_t offset, length;
        ResultItem *item;
    };
    std::u16string keys;
    keys.reserve(std::size_t(items.size()) * 32); // names are mostly shorter: one allocation
    std::vector<Keyed> keyed;
    keyed.reserve(std::size_t(items.size()));
    for (ResultItem *item : items) {
        const std::size_t offset = keys.size();
        if (naturalKey->text)
            appendNaturalSortKey(naturalKey->text(*item), keys);
        else
            appendNaturalSortKey(naturalKey->value(*item).toString(), keys);
        keyed.push_back({offset, keys.size() - offset, item});
    }
    const std::u16string_view all(keys);
    const bool ascending = comparisons.first().ascending;
    parallelStableSort(keyed.begin(), keyed.end(), [&](const Keyed &a, const Keyed &b) {
        if (const int c = all.substr(a.offset, a.length).compare(all.substr(b.offset, b.length)))
            return ascending ? c < 0 : c > 0;
        return inOrder(a.item, b.item);
    });
    for (std::size_t i = 0; i < keyed.size(); ++i)
        items[qsizetype(i)] = keyed[i].item;
}

} // namespace selfsame
