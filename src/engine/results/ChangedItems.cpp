#include "results/ChangedItems.h"

#include "names/FileNames.h"

#include <algorithm>
#include <numeric>
#include <sys/stat.h>
#include <thread>
#include <vector>

namespace selfsame {

namespace {

bool changed(const ResultItem &item)
{
    struct stat st;
    if (::lstat(pathBytes(item.path).constData(), &st) != 0) return true;
    if (!item.statusImage().isEmpty()) return false; // a link or clone stands there now
    if (quint64(st.st_ino) != item.inode) return true;
    if (item.has(IsFolder)) return !S_ISDIR(st.st_mode);
    return qint64(st.st_size) != item.size || qint64(st.st_mtim.tv_sec) != item.modified ||
           (item.modifiedNsec >= 0 && st.st_mtim.tv_nsec != item.modifiedNsec);
}

} // namespace

qsizetype markChangedItems(QList<ResultItem> &items)
{
    // Looking up deep paths is most of the time: one share of the items per core.
    const qsizetype threads = std::clamp<qsizetype>(std::thread::hardware_concurrency(), 1, 8);
    const qsizetype share = (items.size() + threads - 1) / threads;
    std::vector<qsizetype> counts(std::size_t(threads), 0);
    std::vector<std::thread> workers;
    ResultItem *all = items.data(); // detached once here, not by each thread
    for (qsizetype t = 0; t < threads; ++t)
        workers.emplace_back([&, t] {
            for (qsizetype i = t * share; i < std::min(items.size(), (t + 1) * share); ++i) {
                ResultItem &item = all[i];
                const bool gone = item.trashedURL().isEmpty() && !item.has(Deleted) && changed(item);
                item.set(Missing, gone);
                counts[std::size_t(t)] += gone ? 1 : 0;
            }
        });
    for (std::thread &worker : workers)
        worker.join();
    return std::accumulate(counts.begin(), counts.end(), qsizetype(0));
}

} // namespace selfsame
