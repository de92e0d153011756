#include "search/Enumerator.h"

#include "names/FileNames.h"
#include "search/AliasFiles.h"
#include "search/ReadingThreads.h"
#include "search/SearchState.h"

#include <QDir>

#include <algorithm>
#include <array>
#include <condition_variable>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <mutex>
#include <strings.h>
#include <sys/stat.h>
#include <linux/magic.h>
#include <sys/statfs.h>
#include <sys/statvfs.h>
#include <sys/sysmacros.h>
#include <thread>
#include <unordered_map>
#include <unordered_set>
#include <time.h>
#include <unistd.h>

namespace selfsame {

namespace {

constexpr unsigned kStatMask = STATX_TYPE | STATX_MODE | STATX_UID | STATX_SIZE | STATX_BLOCKS | STATX_MTIME |
                               STATX_CTIME | STATX_ATIME | STATX_BTIME | STATX_INO;

// A folder as the file system knows it, whatever path reached it.
struct FolderId {
    dev_t device = 0;
    ino_t inode = 0;
    bool operator==(const FolderId &) const = default;
};

struct FolderIdHash {
    std::size_t operator()(const FolderId &id) const { return std::hash<ino_t>()(id.inode) ^ (id.device * 0x9e3779b97f4a7c15ULL); }
};

// What an item's folder tells about deleting items inside it.
struct FolderAccess {
    FolderId id;
    bool deletable = false; // writable and searchable
    bool sticky = false;
    bool readOnlyVolume = false;
    uid_t owner = 0;
};

FolderAccess folderAccess(int dirfd)
{
    FolderAccess access;
    struct stat st;
    if (fstat(dirfd, &st) == 0) {
        access.id = {st.st_dev, st.st_ino};
        access.sticky = (st.st_mode & S_ISVTX) != 0;
        access.owner = st.st_uid;
    }
    access.deletable = faccessat(dirfd, ".", W_OK | X_OK, 0) == 0;
    struct statvfs volume;
    access.readOnlyVolume = fstatvfs(dirfd, &volume) == 0 && (volume.f_flag & ST_RDONLY);
    return access;
}

// Whether the real user may read and write the item, as access(2) would answer, decided from
// what statx already told where that is certain: this saves a system call per file.
bool readableAndWritable(int dirfd, const char *name, const struct statx &st, const FolderAccess &folder,
                         uid_t realUser)
{
    if (folder.readOnlyVolume)
        return false;
    if (!(st.stx_attributes_mask & STATX_ATTR_IMMUTABLE))
        return faccessat(dirfd, name, R_OK | W_OK, 0) == 0;
    if (st.stx_attributes & STATX_ATTR_IMMUTABLE)
        return false;
    if (realUser == 0)
        return true;
    if (st.stx_uid == realUser)
        return (st.stx_mode & (S_IRUSR | S_IWUSR)) == (S_IRUSR | S_IWUSR);
    return faccessat(dirfd, name, R_OK | W_OK, 0) == 0;
}

// File systems that hold no user files, by their statfs magic numbers.
bool isPseudoFileSystem(int dirfd)
{
    struct statfs volume;
    if (fstatfs(dirfd, &volume) != 0)
        return false;
    switch (static_cast<unsigned long>(volume.f_type)) {
    case PROC_SUPER_MAGIC: case SYSFS_MAGIC: case DEVPTS_SUPER_MAGIC: case CGROUP_SUPER_MAGIC:
    case CGROUP2_SUPER_MAGIC: case SECURITYFS_MAGIC: case DEBUGFS_MAGIC: case TRACEFS_MAGIC:
    case PSTOREFS_MAGIC: case BPF_FS_MAGIC: case 0x62656570 /* configfs */: case 0x65735543 /* fusectl */:
    case 0x19800202 /* mqueue */: case HUGETLBFS_MAGIC: case 0x0187 /* autofs */: case BINFMTFS_MAGIC:
    case EFIVARFS_MAGIC: case SELINUX_MAGIC: case NSFS_MAGIC: case 0x67596969 /* rpc_pipefs */:
        return true;
    default:
        return false;
    }
}

// An empty file holds nothing that removing its folder could lose, filtered out or not.
bool isEmptyFile(int dirfd, const char *name)
{
    struct stat st;
    return fstatat(dirfd, name, &st, AT_SYMLINK_NOFOLLOW) == 0 && S_ISREG(st.st_mode) && st.st_size == 0;
}

std::string parentOf(const std::string &path)
{
    const auto slash = path.rfind('/');
    if (slash == std::string::npos)
        return ".";
    return slash == 0 ? std::string("/") : path.substr(0, slash);
}

} // namespace

bool Enumerator::isPackageName(std::string_view name)
{
    static constexpr std::array<std::string_view, 14> kPackageExtensions = {
        "app", "bundle", "framework", "plugin", "kext", "photoslibrary", "rtfd",
        "pages", "numbers", "key", "logicx", "band", "xcodeproj", "xcworkspace"};
    const auto dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0)
        return false;
    const std::string_view extension = name.substr(dot + 1);
    return std::any_of(kPackageExtensions.begin(), kPackageExtensions.end(), [&](std::string_view known) {
        return known.size() == extension.size() && strncasecmp(known.data(), extension.data(), known.size()) == 0;
    });
}

QString Enumerator::pathExtension(std::string_view name)
{
    const auto dot = name.rfind('.');
    if (dot == std::string_view::npos || dot == 0)
        return {};
    const std::string_view extension = name.substr(dot + 1);
    return QString::fromUtf8(extension.data(), qsizetype(extension.size())).toLower();
}

Enumerator::Enumerator(const SearchRequest &request, const std::atomic<int> &searchingState, uid_t effectiveUser,
                       std::function<void(qint64)> onItem)
    : m_request(request), m_searchingState(searchingState), m_effectiveUser(effectiveUser), m_realUser(getuid()),
      m_onItem(std::move(onItem))
{
}

// The shared state of one enumeration: a stack of folders to list, worked by several threads.
class Enumerator::Walk {
public:
    Walk(const Enumerator &owner, EnumerationResult &result) : m_owner(owner), m_request(owner.m_request), m_result(result) {}

    void location(const QString &location);
    void work();
    qint64 seen() const { return m_seen; }
    qint64 unreadable() const { return m_unreadable; }

private:
    struct Child {
        std::string name;
        int level;
    };
    // Applies the filters to one item; returns whether a folder is to be entered.
    bool visit(int dirfd, const FolderAccess &folder, quint32 folderIndex, const std::string &folderPath,
               std::string_view name, bool dirHint,
               bool unknownType, int level, bool inFolderEnumeration, EntryBatch &batch,
               std::vector<std::string> &packages);
    void list(const Job &job);
    bool aborted() const { return stopRequested(m_owner.m_searchingState); }
    void flush(quint32 folder, EntryBatch &batch, std::vector<Child> &children, std::vector<std::string> &packages);

    const Enumerator &m_owner;
    const SearchRequest &m_request;
    EnumerationResult &m_result;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    std::vector<Job> m_jobs;
    int m_busy = 0;
    std::atomic<qint64> m_seen{0};
    std::atomic<qint64> m_unreadable{0};
    // An item is one directory entry: a folder reached again through another path is not
    // listed twice, and a single-file location is left out of its folder's listing.
    std::unordered_set<FolderId, FolderIdHash> m_listed;
    std::unordered_map<FolderId, std::vector<std::string>, FolderIdHash> m_singleFiles;
};

bool Enumerator::Walk::visit(int dirfd, const FolderAccess &folder, quint32 folderIndex,
                             const std::string &folderPath, std::string_view name, bool dirHint, bool unknownType, int level, bool inFolderEnumeration,
                             EntryBatch &batch, std::vector<std::string> &packages)
{
    m_owner.m_onItem(++m_seen);

    bool extensionPasses = true;
    if (m_request.extensionsMode != ExtensionsMode::All) {
        const bool listed = m_request.extensions.contains(pathExtension(name));
        extensionPasses = (m_request.extensionsMode == ExtensionsMode::Only) == listed;
    }
    bool namePasses = true;
    if (!m_request.skipFilenameRegexes.isEmpty()) {
        const QString qName = pathFromBytes(name);
        for (const QRegularExpression &expression : m_request.skipFilenameRegexes) {
            if (expression.match(qName).hasMatch()) {
                namePasses = false;
                break;
            }
        }
    }

    const std::string nameZ(name);
    struct statx st {};
    bool statOk = false;
    bool kept = false;
    if (extensionPasses && namePasses) {
        statOk = statx(dirfd, nameZ.c_str(), AT_SYMLINK_NOFOLLOW | AT_NO_AUTOMOUNT, kStatMask, &st) == 0;
        if (statOk) {
            const bool symlink = S_ISLNK(st.stx_mode);
            bool writable = symlink;
            if (!symlink) {
                writable = readableAndWritable(dirfd, nameZ.c_str(), st, folder, m_owner.m_realUser) &&
                           folder.deletable &&
                           (!folder.sticky || m_owner.m_effectiveUser == 0 ||
                            st.stx_uid == m_owner.m_effectiveUser || folder.owner == m_owner.m_effectiveUser);
            }
            const bool otherOwner = st.stx_uid != m_owner.m_effectiveUser;
            kept = !(m_request.ignoreOtherOwner && otherOwner) && (writable || !m_request.ignoreNonWritable);
            if (kept) {
                FileEntry entry;
                entry.flags = quint16((writable ? 0 : ReadOnly) | (otherOwner ? OtherOwner : 0));
                entry.size = qint64(st.stx_size);
                entry.physicalSize = st.stx_blocks ? qint64(st.stx_blocks) * 512 : entry.size;
                entry.modifiedNs = st.stx_mtime.tv_sec * 1'000'000'000 + st.stx_mtime.tv_nsec;
                entry.changedNs = st.stx_ctime.tv_sec * 1'000'000'000 + st.stx_ctime.tv_nsec;
                entry.lastUsed = st.stx_atime.tv_sec;
                entry.created = (st.stx_mask & STATX_BTIME) ? qint64(st.stx_btime.tv_sec) : kNoDate;
                entry.device = makedev(st.stx_dev_major, st.stx_dev_minor);
                entry.inode = st.stx_ino;
                entry.folder = folderIndex;
                batch.add(entry, name); // provisional: removed again below when a later filter drops it
            }
        }
    } else if (unknownType) {
        struct stat lst;
        dirHint = fstatat(dirfd, nameZ.c_str(), &lst, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(lst.st_mode);
    }
    const bool isFolder = statOk ? S_ISDIR(st.stx_mode) : dirHint;

    bool enter = inFolderEnumeration && isFolder && namePasses && !(m_request.compareFolders && !kept);
    if (enter && m_request.skipHiddenFiles && !m_request.compareFolders && isPackageName(name))
        enter = false; // package contents count as hidden
    if (!kept || !statOk)
        return enter;

    auto drop = [&] {
        batch.entries.pop_back();
        batch.names.resize(batch.names.size() - name.size());
    };
    const bool regular = S_ISREG(st.stx_mode);
    if (!m_owner.m_onlySizes.empty()) {
        if (!regular || !std::binary_search(m_owner.m_onlySizes.begin(), m_owner.m_onlySizes.end(),
                                            qint64(st.stx_size))) {
            drop();
            return enter;
        }
    } else if (m_request.filterFileSize && regular) {
        const qint64 size = qint64(st.stx_size);
        if (size < m_request.minFileSize ||
            (m_request.maxFileSize >= m_request.minFileSize && size > m_request.maxFileSize)) {
            drop();
            return false;
        }
    } else if (isFolder && m_request.limitFolderDepth >= 0 && level > m_request.limitFolderDepth) {
        enter = false;
    }

    const bool symlink = S_ISLNK(st.stx_mode);
    if (!(regular || ((isFolder || symlink) && m_request.compareFolders)) ||
        (regular && isAliasFile(dirfd, nameZ.c_str()))) {
        drop();
        return enter;
    }
    FileEntry &entry = batch.entries.back();
    if (symlink)
        entry.flags |= IsSymlink;
    if (isFolder) {
        entry.flags |= IsFolder;
        entry.size = 0;
        entry.physicalSize = 0;
        if (isPackageName(name)) {
            entry.flags |= IsPackage;
            std::string path = folderPath;
            if (path.back() != '/')
                path.push_back('/');
            packages.push_back(path.append(name).append("/"));
        }
    }
    return enter;
}

void Enumerator::Walk::flush(quint32 folder, EntryBatch &batch, std::vector<Child> &children,
                             std::vector<std::string> &packages)
{
    std::lock_guard lock(m_mutex);
    m_result.entries.append(batch);
    for (std::string &package : packages)
        m_result.packages.push_back(std::move(package));
    std::string base = m_result.entries.folderPath(folder);
    if (base.back() != '/')
        base.push_back('/');
    for (Child &child : children)
        m_jobs.push_back({m_result.entries.addFolder(base + child.name), child.level});
    if (!children.empty())
        m_wake.notify_all();
    batch.clear();
    children.clear();
    packages.clear();
}

void Enumerator::Walk::list(const Job &job)
{
    std::string path;
    {
        std::lock_guard lock(m_mutex);
        path = m_result.entries.folderPath(job.folder);
    }
    const int dirfd = open(path.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NOCTTY);
    DIR *dir = dirfd >= 0 ? fdopendir(dirfd) : nullptr;
    if (!dir) {
        if (dirfd >= 0)
            close(dirfd);
        ++m_unreadable;
        std::lock_guard lock(m_mutex);
        m_result.unreadableFolderPaths.push_back(path);
        m_result.foldersNotListed.push_back(std::move(path));
        if (m_request.containedFolders)
            m_result.foldersNotWhole.push_back(job.folder);
        return;
    }
    if (!m_owner.m_onlySizes.empty() && isPseudoFileSystem(dirfd)) {
        closedir(dir);
        return;
    }
    const FolderAccess access = folderAccess(dirfd);
    const std::vector<std::string> *singleFiles = nullptr;
    {
        std::lock_guard lock(m_mutex);
        if (!m_listed.insert(access.id).second) {
            m_result.foldersNotListed.push_back(std::move(path));
            if (m_request.containedFolders)
                m_result.foldersNotWhole.push_back(job.folder);
            closedir(dir);
            return;
        }
        if (const auto found = m_singleFiles.find(access.id); found != m_singleFiles.end())
            singleFiles = &found->second; // complete before any folder is listed
    }
    EntryBatch batch;
    std::vector<Child> children;
    std::vector<std::string> packages;
    // Asked only until the first item left out: one is enough.
    bool whole = true;
    auto leftOut = [&](const char *name) {
        if (m_request.containedFolders && whole && !isEmptyFile(dirfd, name))
            whole = false;
    };
    while (const dirent *d = readdir(dir)) {
        const std::string_view name(d->d_name);
        if (name == "." || name == "..")
            continue;
        if (m_request.skipHiddenFiles && name.front() == '.') {
            leftOut(d->d_name);
            continue;
        }
        if (aborted())
            break;
        if (singleFiles && std::find(singleFiles->begin(), singleFiles->end(), name) != singleFiles->end())
            continue;
        const std::size_t listedBefore = batch.entries.size();
        const bool enter = visit(dirfd, access, job.folder, path, name, d->d_type == DT_DIR, d->d_type == DT_UNKNOWN,
                                 job.level + 1, true, batch, packages);
        // A folder not entered, a link, or anything the filters dropped.
        if (!enter && !(batch.entries.size() > listedBefore && batch.entries.back().isRegularFile()))
            leftOut(d->d_name);
        if (enter)
            children.push_back({std::string(name), job.level + 1});
        if (batch.entries.size() >= 4096)
            flush(job.folder, batch, children, packages);
    }
    closedir(dir);
    if (!whole) {
        std::lock_guard lock(m_mutex);
        m_result.foldersNotWhole.push_back(job.folder);
    }
    flush(job.folder, batch, children, packages);
}

void Enumerator::Walk::location(const QString &location)
{
    std::string path = pathStdBytes(QDir::cleanPath(location));
    struct stat st;
    if (path.empty() || stat(path.c_str(), &st) != 0)
        return; // a location that no longer exists is skipped
    if (S_ISDIR(st.st_mode)) {
        std::lock_guard lock(m_mutex);
        m_jobs.push_back({m_result.entries.addFolder(std::move(path)), 0});
        return;
    }
    const std::string parent = parentOf(path);
    const int dirfd = open(parent.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (dirfd < 0)
        return;
    const FolderAccess access = folderAccess(dirfd);
    std::string name = path.substr(path.rfind('/') + 1);
    std::vector<std::string> &namesInFolder = m_singleFiles[access.id];
    const bool repeated = std::find(namesInFolder.begin(), namesInFolder.end(), name) != namesInFolder.end();
    if (!repeated && !aborted()) {
        namesInFolder.push_back(name);
        quint32 folder;
        {
            std::lock_guard lock(m_mutex);
            folder = m_result.entries.addFolder(parent);
        }
        EntryBatch batch;
        std::vector<Child> none;
        std::vector<std::string> packages;
        visit(dirfd, access, folder, parent, name, false, false, 1, false, batch, packages);
        flush(folder, batch, none, packages);
    }
    close(dirfd);
}

void Enumerator::Walk::work()
{
    std::unique_lock lock(m_mutex);
    for (;;) {
        m_wake.wait(lock, [&] { return !m_jobs.empty() || m_busy == 0; });
        if (m_jobs.empty())
            return; // nothing queued and nobody listing: the walk is over
        const Job job = m_jobs.back();
        m_jobs.pop_back();
        ++m_busy;
        lock.unlock();
        if (!aborted())
            list(job);
        lock.lock();
        if (--m_busy == 0 && m_jobs.empty())
            m_wake.notify_all();
    }
}

EnumerationResult Enumerator::run()
{
    EnumerationResult result;
    timespec now{};
    clock_gettime(CLOCK_REALTIME, &now);
    result.startedNs = qint64(now.tv_sec) * 1'000'000'000 + now.tv_nsec;
    Walk walk(*this, result);
    for (const QString &location : m_request.searchInFolderURLs)
        walk.location(location);
    const unsigned threads = readingThreads();
    std::vector<std::thread> pool;
    for (unsigned i = 1; i < threads; ++i)
        pool.emplace_back([&] { walk.work(); });
    walk.work();
    for (std::thread &thread : pool)
        thread.join();
    if (m_metadataFilter)
        readMetadata(result.entries);
    result.entries.shrinkToFit(); // the table lives through the whole search: no spare room
    result.enumerated = walk.seen();
    result.unreadableFolders = walk.unreadable();
    return result;
}

// Metadata is read once the walk is over, spread over every core: a folder is listed by one
// thread, and a folder of media files would otherwise be parsed on one core. Items read
// after an abort have no value.
void Enumerator::readMetadata(EntryTable &entries)
{
    std::vector<std::optional<ItemMetadata>> metadata(entries.size());
    std::atomic<std::size_t> next{0};
    auto work = [&] {
        for (std::size_t i; (i = next++) < entries.size();) {
            if (stopRequested(m_searchingState))
                return;
            metadata[i] = m_metadataFilter->read(entries.qPath(entries[i]));
        }
    };
    const unsigned threads = std::clamp(std::thread::hardware_concurrency(), 1u, 8u);
    std::vector<std::thread> pool;
    for (unsigned i = 1; i < threads; ++i)
        pool.emplace_back(work);
    work();
    for (std::thread &thread : pool)
        thread.join();
    entries.keepWithMetadata(std::move(metadata));
}

} // namespace selfsame
