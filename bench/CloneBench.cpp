// Replaces duplicates by clones on a volume that shares extents, and reports the rate.
//   selfsame-clone-bench make DIR GROUPS COPIES BYTES   writes GROUPS × COPIES equal files
//   selfsame-clone-bench clone DIR                      searches DIR, plans, clones

#include "fileops/CloneWorker.h"
#include "search/DuplicateSearch.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QHash>
#include <cstdio>
#include <random>

using namespace selfsame;

namespace
{

int make(const QString &root, int groups, int copies, qint64 bytes)
{
    std::mt19937_64 random(42);
    QByteArray content(bytes, Qt::Uninitialized);
    for (int g = 0; g < groups; ++g) {
        for (qsizetype i = 0; i + 8 <= content.size(); i += 8) {
            const quint64 value = random();
            std::memcpy(content.data() + i, &value, 8);
        }
        const QString folder = root + QStringLiteral("/g%1").arg(g, 5, 10, QLatin1Char('0'));
        QDir().mkpath(folder);
        for (int c = 0; c < copies; ++c) {
            QFile file(folder + QStringLiteral("/copy%1.bin").arg(c));
            if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
                std::fprintf(stderr, "cannot write %s\n", qPrintable(file.fileName()));
                return 1;
            }
        }
    }
    return 0;
}

int clone(const QString &root)
{
    DuplicateSearch search;
    SearchRequest request;
    request.searchInFolderURLs = {root};
    QElapsedTimer timer;
    timer.start();
    QObject::connect(&search, &DuplicateSearch::searchDone, qApp, [] { QCoreApplication::exit(0); });
    search.searchInFolderURLs(request);
    QCoreApplication::exec();
    const double searchSeconds = timer.nsecsElapsed() / 1e9;

    QList<ResultItem> items = search.mainItems();
    QList<ResultItem *> pointers;
    QHash<int, QList<ResultItem *>> groups;
    for (ResultItem &item : items) {
        pointers.append(&item);
        groups[item.group].append(&item);
    }
    CloneWorker worker(pointers, pointers, [&](const ResultItem &item) { return groups.value(item.group); });
    CloneCounts counts;
    timer.restart();
    worker.perform(false, true, true, &counts);
    const double planSeconds = timer.nsecsElapsed() / 1e9;
    timer.restart();
    worker.perform(true, true, true);
    const double cloneSeconds = timer.nsecsElapsed() / 1e9;
    const qsizetype cloned = worker.cloned().size();
    std::printf("found %lld items in %d groups in %.2f s\n", qlonglong(items.size()), int(groups.size()),
                searchSeconds);
    std::printf("planned %d duplicates from %d references, %lld bytes on disk, in %.3f s\n",
                counts.replaceDuplicates, counts.byClones, qlonglong(counts.ofPhysicalSize), planSeconds);
    std::printf("cloned %lld duplicates (%lld failed) in %.2f s: %.0f files/s, %.1f MB/s\n",
                qlonglong(cloned), qlonglong(worker.failures().size()), cloneSeconds, cloned / cloneSeconds,
                counts.ofPhysicalSize / cloneSeconds / 1e6);
    for (const CloneFailure &failure : worker.failures().mid(0, 5))
        std::fprintf(stderr, "failed: %s\n", qPrintable(failure.reason));
    return worker.failures().isEmpty() && cloned == counts.replaceDuplicates ? 0 : 1;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    if (args.size() == 6 && args[1] == u"make")
        return make(args[2], args[3].toInt(), args[4].toInt(), args[5].toLongLong());
    if (args.size() == 3 && args[1] == u"clone") return clone(args[2]);
    std::fprintf(stderr, "usage: selfsame-clone-bench make DIR GROUPS COPIES BYTES | clone DIR\n");
    return 2;
}
