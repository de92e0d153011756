#include "search/ExactSizeIndex.h"

#include "format/Formatters.h"
#include "names/FileNames.h"
#include "search/Enumerator.h"
#include "search/TrackerIndex.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace selfsame {

namespace {

QString parentFolder(const QString &path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    return slash <= 0 ? QStringLiteral("/") : path.left(slash);
}

} // namespace

QString volumeRoot(const QString &path)
{
    QString root = QDir::cleanPath(path);
    struct stat st;
    if (stat(pathBytes(root).constData(), &st) != 0)
        return root;
    if (!S_ISDIR(st.st_mode))
        root = parentFolder(root);
    for (;;) {
        const QString parent = parentFolder(root);
        struct stat up;
        if (parent == root || stat(pathBytes(parent).constData(), &up) != 0 || up.st_dev != st.st_dev)
            return root;
        root = parent;
    }
}

QStringList volumeRoots(const QStringList &paths)
{
    QStringList roots;
    for (const QString &path : paths)
        roots.append(volumeRoot(path));
    roots.removeDuplicates();
    return roots;
}

std::unique_ptr<ExactSizeIndex> ExactSizeIndex::create(const QStringList &scope, const SearchRequest &request,
                                                       RunContext &context)
{
    // D-Bus connections need the application object that every program of ours has.
    if (QCoreApplication::instance())
        if (auto tracker = TrackerIndex::connect(QDBusConnection::sessionBus(),
                                                 QLatin1String(TrackerIndex::kMinerService), scope,
                                                 context.searchingState))
            return tracker;
    const QStringList folders = scope.isEmpty() ? volumeRoots(request.searchInFolderURLs) : scope;
    return std::make_unique<VolumeScanIndex>(folders, request.skipHiddenFiles, context);
}

VolumeScanIndex::VolumeScanIndex(QStringList folders, bool skipHiddenFiles, RunContext &context)
    : m_folders(std::move(folders)), m_skipHiddenFiles(skipHiddenFiles), m_context(context)
{
}

std::unordered_map<qint64, QStringList> VolumeScanIndex::findFilesWithExactSizes(const std::vector<qint64> &sizes)
{
    std::unordered_map<qint64, QStringList> found;
    if (sizes.empty() || m_folders.isEmpty())
        return found;
    // Every file is a candidate, whatever the search's own filters say: they apply later,
    // when the found files are enumerated as locations.
    SearchRequest scan;
    scan.searchInFolderURLs = m_folders;
    scan.skipHiddenFiles = m_skipHiddenFiles;
    scan.filterFileSize = false;
    scan.ignoreNonWritable = false;
    scan.ignoreOtherOwner = false;
    Enumerator enumerator(scan, m_context.searchingState, geteuid(), [this](qint64 count) {
        m_context.status(
            [count] {
                return QCoreApplication::translate("DuplicateSearch", "Looking for files of the same size… %1")
                    .arg(formatCount(count));
            },
            -1);
    });
    std::vector<qint64> sorted = sizes;
    std::sort(sorted.begin(), sorted.end());
    enumerator.keepOnlySizes(std::move(sorted));
    const EnumerationResult result = enumerator.run();
    for (std::size_t i = 0; i < result.entries.size(); ++i) {
        const FileEntry &entry = result.entries[i];
        found[entry.size].append(result.entries.qPath(entry));
    }
    for (auto &[size, paths] : found)
        paths.removeDuplicates(); // folders of the scope may overlap
    return found;
}

} // namespace selfsame
