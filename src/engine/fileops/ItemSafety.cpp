#include "fileops/ItemSafety.h"

#include "fileops/ErrorText.h"
#include "fileops/FSMetadata.h"
#include "names/FileNames.h"
#include "search/Digest.h"

#include <QCoreApplication>
#include <algorithm>
#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace selfsame
{

namespace
{

struct ItemSafetyText {
    Q_DECLARE_TR_FUNCTIONS(ItemSafety)
};

QByteArray bytes(const QString &path)
{
    return pathBytes(path);
}

// A time as recorded: whole seconds always, nanoseconds when the record has them.
bool sameTime(const struct timespec &now, qint64 seconds, qint32 nanoseconds)
{
    return qint64(now.tv_sec) == seconds && (nanoseconds < 0 || now.tv_nsec == nanoseconds);
}

bool sameFileAs(const struct stat &a, const struct stat &b)
{
    return a.st_dev == b.st_dev && a.st_ino == b.st_ino;
}

// The folder holding a path's last component, as the file system knows it (through any link).
bool statParent(const QString &path, struct stat *st)
{
    return stat(bytes(parentFolder(path)).constData(), st) == 0;
}

QString shown(const QString &path)
{
    return displayPath(path);
}

QString nameOf(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

bool sameFileContent(int fa, int fb)
{
    constexpr std::size_t chunk = std::size_t(1) << 20;
    std::vector<char> bufferA(chunk), bufferB(chunk);
    for (off_t offset = 0;;) {
        const ssize_t na = readAt(fa, bufferA.data(), chunk, offset);
        const ssize_t nb = readAt(fb, bufferB.data(), chunk, offset);
        if (na < 0 || na != nb || std::memcmp(bufferA.data(), bufferB.data(), std::size_t(na)) != 0)
            return false;
        if (na == 0) return true;
        offset += na;
    }
}

std::vector<std::string> sortedNames(int dirfd)
{
    std::vector<std::string> names;
    const int copy = dup(dirfd);
    DIR *dir = copy >= 0 ? fdopendir(copy) : nullptr;
    if (!dir) {
        if (copy >= 0) close(copy);
        return names;
    }
    while (const dirent *d = readdir(dir))
        if (std::strcmp(d->d_name, ".") != 0 && std::strcmp(d->d_name, "..") != 0)
            names.emplace_back(d->d_name);
    closedir(dir);
    std::sort(names.begin(), names.end());
    return names;
}

// Compares two entries named `name` in two open folders, never following a link.
bool sameEntryContent(int dirA, int dirB, const char *name, int depth);

bool sameFolderContent(int dirA, int dirB, int depth)
{
    if (depth > 256) return false; // deeper than any real tree: refuse rather than recurse on
    const std::vector<std::string> a = sortedNames(dirA), b = sortedNames(dirB);
    if (a != b) return false;
    return std::all_of(a.begin(), a.end(), [&](const std::string &name) {
        return sameEntryContent(dirA, dirB, name.c_str(), depth);
    });
}

bool sameEntryContent(int dirA, int dirB, const char *name, int depth)
{
    struct stat sa {
    }, sb{};
    if (fstatat(dirA, name, &sa, AT_SYMLINK_NOFOLLOW) != 0 ||
        fstatat(dirB, name, &sb, AT_SYMLINK_NOFOLLOW) != 0 || (sa.st_mode & S_IFMT) != (sb.st_mode & S_IFMT))
        return false;
    if (S_ISLNK(sa.st_mode)) {
        char ta[4096], tb[4096];
        const ssize_t la = readlinkat(dirA, name, ta, sizeof ta);
        const ssize_t lb = readlinkat(dirB, name, tb, sizeof tb);
        return la >= 0 && la == lb && std::memcmp(ta, tb, std::size_t(la)) == 0;
    }
    if (!S_ISREG(sa.st_mode) && !S_ISDIR(sa.st_mode)) return true; // devices, pipes: names only
    if (S_ISREG(sa.st_mode) && sa.st_size != sb.st_size) return false;
    const int flags = O_RDONLY | O_CLOEXEC | O_NOFOLLOW | O_NOCTTY | (S_ISDIR(sa.st_mode) ? O_DIRECTORY : 0);
    const int fa = openat(dirA, name, flags);
    const int fb = openat(dirB, name, flags);
    const bool same = fa >= 0 && fb >= 0 &&
                      (S_ISDIR(sa.st_mode) ? sameFolderContent(fa, fb, depth + 1) : sameFileContent(fa, fb));
    if (fa >= 0) close(fa);
    if (fb >= 0) close(fb);
    return same;
}

} // namespace

QString changedSinceSearch(const ResultItem &item)
{
    struct stat st {
    };
    if (lstat(bytes(item.path).constData(), &st) != 0)
        return ItemSafetyText::tr("“%1” is gone: %2").arg(shown(item.path), errorText(errno));
    if (item.inode != 0 && (quint64(st.st_ino) != item.inode || quint64(st.st_dev) != item.device))
        return ItemSafetyText::tr(
                   "“%1” is no longer the file the search found: another file stands at its path")
            .arg(shown(item.path));
    if (item.has(IsFolder) != S_ISDIR(st.st_mode))
        return item.has(IsFolder) ? ItemSafetyText::tr("“%1” is no longer a folder").arg(shown(item.path))
                                  : ItemSafetyText::tr("“%1” is now a folder").arg(shown(item.path));
    // A link or clone of ours may stand there, of another size: its inode and times tell.
    if (!item.has(IsFolder) && item.statusImage().isEmpty() && qint64(st.st_size) != item.size)
        return ItemSafetyText::tr("“%1” changed since the search: its size is no longer %2 bytes")
            .arg(shown(item.path))
            .arg(item.size);
    if (!sameTime(st.st_mtim, item.modified, item.modifiedNsec))
        return ItemSafetyText::tr("“%1” was modified since the search").arg(shown(item.path));
    if (!sameTime(st.st_ctim, item.attributes, item.changedNsec))
        return ItemSafetyText::tr(
                   "“%1” changed since the search (its change time moved, though its content may look the "
                   "same)")
            .arg(shown(item.path));
    return {};
}

QString replacementProblem(const ResultItem &item, const ResultItem &kept)
{
    if (!item.has(ContainedFolder) && !item.has(ContainingFolder) && !kept.has(ContainedFolder) &&
        !kept.has(ContainingFolder))
        return {};
    return ItemSafetyText::tr("“%1” holds copies of files of “%2” under other names: it can be moved to "
                              "the trash or deleted, not replaced by a link or clone")
        .arg(shown(item.path), shown(kept.path));
}

bool sameFoundContent(const ResultItem &a, const ResultItem &b)
{
    return a.has(HasDigest) && b.has(HasDigest) && a.digest == b.digest;
}

QString keptCopyProblem(const ResultItem &item, const ResultItem &kept, bool compareBytes)
{
    if (kept.has(Deleted) || !kept.trashedURL().isEmpty())
        return ItemSafetyText::tr("its kept copy “%1” is no longer there").arg(shown(kept.path));
    if (const QString changed = changedSinceSearch(kept); !changed.isEmpty())
        return ItemSafetyText::tr("its kept copy is not as the search found it: %1").arg(changed);
    const QByteArray itemPath = bytes(item.path), keptPath = bytes(kept.path);
    struct stat is {
    }, ks{}, kt{};
    if (lstat(itemPath.constData(), &is) != 0 || lstat(keptPath.constData(), &ks) != 0)
        return ItemSafetyText::tr("“%1” or its kept copy “%2” could not be looked at: %3")
            .arg(shown(item.path), shown(kept.path), errorText(errno));
    struct stat ip {
    }, kp{};
    const bool sameEntry =
        item.path == kept.path || (statParent(item.path, &ip) && statParent(kept.path, &kp) &&
                                   sameFileAs(ip, kp) && nameOf(item.path) == nameOf(kept.path));
    // Two distinct entries of one file are hard links: removing one leaves the other.
    if (sameEntry || (sameFileAs(is, ks) && (is.st_nlink < 2 || S_ISDIR(is.st_mode))))
        return ItemSafetyText::tr("“%1” and its kept copy “%2” are one file reached through two paths")
            .arg(shown(item.path), shown(kept.path));
    if (S_ISLNK(ks.st_mode) && stat(keptPath.constData(), &kt) == 0 && sameFileAs(is, kt))
        return ItemSafetyText::tr("its kept copy “%1” is a link to “%2” itself")
            .arg(shown(kept.path), shown(item.path));
    if (!compareBytes) return {};
    const bool same =
        S_ISDIR(is.st_mode) ? sameTree(item.path, kept.path) : sameContent(item.path, kept.path);
    return same ? QString()
                : ItemSafetyText::tr("“%1” no longer has the content of its kept copy “%2”")
                      .arg(shown(item.path), shown(kept.path));
}

void recordCurrentState(ResultItem &item)
{
    struct stat st {
    };
    if (lstat(bytes(item.path).constData(), &st) != 0) return;
    item.device = quint64(st.st_dev);
    item.inode = quint64(st.st_ino);
    item.modified = st.st_mtim.tv_sec;
    item.modifiedNsec = qint32(st.st_mtim.tv_nsec);
    item.attributes = st.st_ctim.tv_sec;
    item.changedNsec = qint32(st.st_ctim.tv_nsec);
}

bool sameContent(const QString &a, const QString &b)
{
    const int fa = openForReading(bytes(a).constData());
    const int fb = openForReading(bytes(b).constData());
    const bool same = fa >= 0 && fb >= 0 && sameFileContent(fa, fb);
    if (fa >= 0) close(fa);
    if (fb >= 0) close(fb);
    return same;
}

bool sameTree(const QString &a, const QString &b)
{
    const int flags = O_RDONLY | O_DIRECTORY | O_CLOEXEC | O_NOFOLLOW;
    const int fa = open(bytes(a).constData(), flags);
    const int fb = open(bytes(b).constData(), flags);
    const bool same = fa >= 0 && fb >= 0 && sameFolderContent(fa, fb, 0);
    if (fa >= 0) close(fa);
    if (fb >= 0) close(fb);
    return same;
}

void SharedFiles::watch(ResultItem *item)
{
    if (item && !m_byFile.contains({item->device, item->inode}, item))
        m_byFile.insert({item->device, item->inode}, item);
}

QList<ResultItem *> SharedFiles::unchangedSharing(const ResultItem &item) const
{
    QList<ResultItem *> sharing;
    for (auto it = m_byFile.constFind({item.device, item.inode});
         it != m_byFile.cend() && it.key() == qMakePair(item.device, item.inode); ++it)
        if ((*it)->trashedURL().isEmpty() && !(*it)->has(Deleted) && changedSinceSearch(**it).isEmpty())
            sharing.append(*it);
    return sharing;
}

} // namespace selfsame
