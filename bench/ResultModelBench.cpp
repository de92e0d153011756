// The result model at scale: a synthetic content search of 1,000,000 items in 300,000
// groups. Measures building the sorted arrays, one look-up of a group, one full re-sort of
// the top list by name, and the memory the whole model takes per item.

#include "BenchSupport.h"
#include "results/ResultModel.h"
#include "search/FilenameSortKey.h"

#include <QCoreApplication>
#include <cstdio>
#include <random>

using namespace selfsame;

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
