// The result model at scale: a synthetic content search of 1,000,000 items in 300,000
// groups. Measures building the sorted arrays, one look-up of a group, one full re-sort of
// the top list by name, and the memory the whole model takes per item.

#include "results/ResultModel.h"
#include "search/FilenameSortKey.h"

#include <QCoreApplication>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <malloc.h>
#include <random>

using namespace selfsame;

namespace
{

// Wall and processor time of one step: on a shared machine the processor time is the
// steadier figure (this program runs on one thread).
struct Timer {
    std::chrono::steady_clock::time_point wall = std::chrono::steady_clock::now();
    std::clock_t cpu = std::clock();
    QByteArray stop(int repeats = 1) const
    {
        const double wallMs =
            std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - wall).count();
        const double cpuMs = 1000.0 * double(std::clock() - cpu) / CLOCKS_PER_SEC;
        const int precision = repeats > 1 ? 4 : (wallMs < 10 ? 3 : 0);
        return QByteArray::number(wallMs / repeats, 'f', precision) + " ms (processor " +
               QByteArray::number(cpuMs / repeats, 'f', precision) + " ms)";
    }
};

// Small blocks from the heap plus the large ones that malloc maps on their own.
std::size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

// Paths shaped like a photo and document collection: a few thousand folders, numbered names.
QList<ResultItem> syntheticItems(int count, int groups, std::mt19937_64 &random)
{
    static const char *kinds[] = {"Pictures/Camera", "Documents/Scans", "Music/Albums", "Downloads/Archive"};
    static const char *extensions[] = {"jpg", "pdf", "flac", "zip", "png", "mp4"};
    QList<ResultItem> items;
    items.reserve(count);
    for (int i = 0; i < count; ++i) {
        const int group = int(std::uint64_t(i) * std::uint64_t(groups) / std::uint64_t(count));
        ResultItem item;
        const std::uint64_t folder = random() % 4000;
        item.path = QStringLiteral("/home/someone/%1/%2-%3/file_%4 copy.%5")
                        .arg(QLatin1String(kinds[folder % 4]))
                        .arg(2000 + folder % 25)
                        .arg(folder)
                        .arg(random() % 1'000'000)
                        .arg(QLatin1String(extensions[group % 6]));
        item.group = group;
        item.dupes = 3;
        item.size = qint64(1000 + group * 37);
        item.physicalSize = (item.size + 4095) / 4096 * 4096;
        item.modified = 1'600'000'000 + qint64(random() % 100'000'000);
        item.lastUsed = item.modified;
        item.attributes = item.modified;
        item.device = 2049;
        item.inode = 1'000'000 + std::uint64_t(i);
        std::mt19937_64 content(std::uint64_t(group) * 2654435761u); // equal within a group
        for (std::size_t b = 0; b < item.digest.size(); b += 8) {
            const std::uint64_t word = content();
            std::memcpy(item.digest.data() + b, &word, 8);
        }
        item.set(HasDigest);
        items.append(std::move(item));
    }
    return items;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const int count = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
    const int groups = argc > 2 ? std::atoi(argv[2]) : 300'000;
    std::mt19937_64 random(42);

    const std::size_t heapBefore = heapInUse();
    QList<ResultItem> items = syntheticItems(count, groups, random);
    SearchRequest request;
    request.searchInFolderURLs = {QStringLiteral("/home/someone/Pictures"),
                                  QStringLiteral("/home/someone/Music")};

    ResultModel model;
    Timer timer;
    model.setResults(std::move(items), request);
    const QByteArray build = timer.stop();
    const std::size_t heapAfter = heapInUse();

    timer = Timer();
    model.sortMainItemsIncludingHidden();
    const QByteArray sortedArrays = timer.stop();

    const ResultItem *probe = model.mainItems()[qsizetype(random() % std::uint64_t(count))];
    timer = Timer();
    const qsizetype found = model.duplicatesFor(*probe).size();
    const QByteArray oneLookUp = timer.stop();
    const int lookUps = 100'000;
    qsizetype total = 0;
    timer = Timer();
    for (int i = 0; i < lookUps; ++i)
        total += model.duplicatesFor(*model.mainItems()[qsizetype(random() % std::uint64_t(count))]).size();
    const QByteArray averageLookUp = timer.stop(lookUps);

    timer = Timer();
    model.setSortDescriptor(ResultList::Top, SortDescriptor{kSortByNameKeyPath});
    const QByteArray resortByName = timer.stop();

    std::printf("items %d in %d groups; sizeof(ResultItem) %zu bytes\n", count, groups, sizeof(ResultItem));
    std::printf("build model (prefix, look-up arrays, default sort by size): %s\n", build.constData());
    std::printf("rebuild the two look-up arrays: %s\n", sortedArrays.constData());
    std::printf("one duplicatesFor: %s, %lld items\n", oneLookUp.constData(), qlonglong(found));
    std::printf("duplicatesFor, average of %d: %s, %.2f items\n", lookUps, averageLookUp.constData(),
                double(total) / lookUps);
    std::printf("full re-sort by name: %s\n", resortByName.constData());
    std::printf("whole model: %.0f bytes per item (heap, items with their paths and all arrays)\n",
                double(heapAfter - heapBefore) / count);
    return 0;
}
