#include "BenchSupport.h"

#include <cstring>
#include <malloc.h>

namespace selfsame
{

QByteArray Timer::stop(int repeats) const
{
    const double wall = wallMs();
    const double cpuMs = 1000.0 * double(std::clock() - cpu) / CLOCKS_PER_SEC;
    const int precision = repeats > 1 ? 4 : (wall < 10 ? 3 : 0);
    return QByteArray::number(wall / repeats, 'f', precision) + " ms (processor " +
           QByteArray::number(cpuMs / repeats, 'f', precision) + " ms)";
}

std::size_t heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

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

} // namespace selfsame
