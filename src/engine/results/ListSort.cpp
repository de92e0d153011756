#include "results/ListSort.h"

#include "results/ItemKeys.h"
#include "results/NameCompare.h"
#include "results/ParallelSort.h"
#include "search/FilenameSortKey.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

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

std::optional<qint64> pixelCount(const QString &pixelSize)
{
    const QStringList sides = pixelSize.split(QStringLiteral(" \u00d7 "));
    if (sides.size() != 2) return std::nullopt;
    bool wide = false, high = false;
    const qint64 width = sides[0].toLongLong(&wide), height = sides[1].toLongLong(&high);
    if (!wide || !high) return std::nullopt;
    return width * height;
}

int comparePixelSizes(const QString &a, const QString &b)
{
    const std::optional<qint64> pixelsA = pixelCount(a), pixelsB = pixelCount(b);
    if (!pixelsA || !pixelsB) return 0;
    return *pixelsA < *pixelsB ? -1 : (*pixelsA > *pixelsB ? 1 : 0);
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
    case DetectionMode::SimilarImages:
    case DetectionMode::SimilarAudio:
        return QStringLiteral("dupes");
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
    // Each group together, its first item (the one the others are measured against) on top.
    if (isSimilarityMode(mode) && dupes)
        return {clicked, {QStringLiteral("group"), true}, {QStringLiteral("similarity"), false}};
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
    const ItemKey *integerKey = nullptr; // the first key, when it orders by whole numbers
    for (const SortDescriptor &d : sortDescriptorsFor(clicked, mode)) {
        const ItemKey *key = findItemKey(d.key);
        if (!key) continue; // an unknown key orders nothing
        const bool natural = d.key.startsWith(QLatin1String("URL.path")) && key->naturalCompare;
        if (natural && comparisons.isEmpty()) naturalKey = key;
        if (!natural && key->integer && comparisons.isEmpty()) integerKey = key;
        comparisons.append({natural ? key->naturalCompare : key->compare, d.ascending});
    }
    if (comparisons.isEmpty()) return;
    auto inOrder = [&](const ResultItem *a, const ResultItem *b) {
        for (const Comparison &c : comparisons)
            if (const int result = c.compare(*a, *b)) return c.ascending ? result < 0 : result > 0;
        return false;
    };
    const bool ascending = comparisons.first().ascending;
    if (integerKey) {
        // The numbers side by side: the sort reads the items themselves only where they tie.
        struct Numbered {
            qint64 number;
            ResultItem *item;
        };
        std::vector<Numbered> numbered;
        numbered.reserve(std::size_t(items.size()));
        for (ResultItem *item : items)
            numbered.push_back({integerKey->integer(*item), item});
        parallelStableSort(numbered.begin(), numbered.end(), [&](const Numbered &a, const Numbered &b) {
            if (a.number != b.number) return ascending ? a.number < b.number : a.number > b.number;
            return inOrder(a.item, b.item);
        });
        for (std::size_t i = 0; i < numbered.size(); ++i)
            items[qsizetype(i)] = numbered[i].item;
        return;
    }
    if (!naturalKey) {
        parallelStableSort(items.begin(), items.end(), inOrder);
        return;
    }
    // Natural comparison of texts is slow to repeat: compute each item's key once, into one
    // buffer per share of the items (the shares on all cores), and compare the items themselves
    // only where the keys tie.
    struct Keyed {
        std::u16string_view key;
        ResultItem *item;
    };
    const auto keyOf = [naturalKey](const ResultItem &item, std::u16string &keys) {
        if (naturalKey->text)
            appendNaturalSortKey(naturalKey->text(item), keys);
        else
            appendNaturalSortKey(naturalKey->value(item).toString(), keys);
    };
    const std::size_t count = std::size_t(items.size());
    const std::size_t shares = count < 65'536 ? 1 : std::clamp(std::thread::hardware_concurrency(), 1u, 8u);
    std::vector<std::u16string> buffers(shares);
    std::vector<Keyed> keyed(count);
    const auto makeKeys = [&](std::size_t share) {
        const std::size_t first = count * share / shares, last = count * (share + 1) / shares;
        std::u16string &keys = buffers[share];
        keys.reserve((last - first) * 32); // names are mostly shorter: one allocation
        std::vector<std::size_t> ends;
        ends.reserve(last - first);
        for (std::size_t i = first; i < last; ++i) {
            keyOf(*items[qsizetype(i)], keys);
            ends.push_back(keys.size());
        }
        // Views only once the buffer has stopped growing.
        for (std::size_t i = first, begin = 0; i < last; begin = ends[i - first], ++i)
            keyed[i] = {std::u16string_view(keys).substr(begin, ends[i - first] - begin), items[qsizetype(i)]};
    };
    std::vector<std::thread> helpers;
    for (std::size_t share = 1; share < shares; ++share)
        helpers.emplace_back(makeKeys, share);
    makeKeys(0);
    for (std::thread &helper : helpers)
        helper.join();
    parallelStableSort(keyed.begin(), keyed.end(), [&](const Keyed &a, const Keyed &b) {
        if (const int c = a.key.compare(b.key)) return ascending ? c < 0 : c > 0;
        return inOrder(a.item, b.item);
    });
    for (std::size_t i = 0; i < keyed.size(); ++i)
        items[qsizetype(i)] = keyed[i].item;
}

} // namespace selfsame
