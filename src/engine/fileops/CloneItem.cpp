#include "fileops/CloneItem.h"

#include "names/FileNames.h"

#include <cerrno>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <linux/fs.h>
#include <string>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

namespace selfsame
{

namespace
{

int copyData(int from, int to, off_t size)
{
    off_t done = 0;
    while (done < size) {
        const ssize_t n = copy_file_range(from, nullptr, to, nullptr, std::size_t(size - done), 0);
        if (n < 0) return errno;
        if (n == 0) return EIO; // the source shrank under us
        done += n;
    }
    return 0;
}

// Clones (or, with allowCopy, copies) one regular file between open folders.
int cloneFileAt(int sourceDir, const char *sourceName, int destDir, const char *destName, bool allowCopy)
{
    const int from = openat(sourceDir, sourceName, O_RDONLY | O_NOFOLLOW | O_CLOEXEC);
    if (from < 0) return errno;
    struct stat st {
    };
    if (fstat(from, &st) != 0 || !S_ISREG(st.st_mode)) {
        const int error = errno ? errno : EINVAL;
        close(from);
        return error;
    }
    const int to =
        openat(destDir, destName, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, st.st_mode & 07777);
    if (to < 0) {
        const int error = errno;
        close(from);
        return error;
    }
    int error = ioctl(to, FICLONE, from) == 0 ? 0 : errno;
    if (error && allowCopy) error = copyData(from, to, st.st_size);
    if (!error && fchmod(to, st.st_mode & 07777) != 0) // the umask may have cut the bits
        error = errno;
    close(from);
    if (close(to) != 0 && !error) error = errno;
    if (error) unlinkat(destDir, destName, 0);
    return error;
}

int removeAt(int dir, const char *name)
{
    if (unlinkat(dir, name, 0) == 0) return 0;
    if (errno != EISDIR && errno != EPERM) return errno;
    const int fd = openat(dir, name, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (fd < 0) return errno;
    DIR *d = fdopendir(fd);
    if (!d) {
        const int error = errno;
        close(fd);
        return error;
    }
    int error = 0;
    std::vector<std::string> names;
    while (dirent *e = readdir(d)) {
        if (std::strcmp(e->d_name, ".") != 0 && std::strcmp(e->d_name, "..") != 0)
            names.emplace_back(e->d_name);
    }
    for (const std::string &child : names) {
        const int e = removeAt(dirfd(d), child.c_str());
        if (e && !error) error = e;
    }
    closedir(d);
    if (!error && unlinkat(dir, name, AT_REMOVEDIR) != 0) error = errno;
    return error;
}

int cloneFolderAt(int sourceDir, const char *sourceName, int destDir, const char *destName)
{
    const int from = openat(sourceDir, sourceName, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (from < 0) return errno;
    struct stat st {
    };
    fstat(from, &st);
    if (mkdirat(destDir, destName, 0700) != 0) {
        const int error = errno;
        close(from);
        return error;
    }
    const int to = openat(destDir, destName, O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    DIR *d = to < 0 ? nullptr : fdopendir(from);
    int error = to < 0 || !d ? errno : 0;
    while (!error && d) {
        errno = 0;
        const dirent *e = readdir(d);
        if (!e) {
            error = errno;
            break;
        }
        if (std::strcmp(e->d_name, ".") == 0 || std::strcmp(e->d_name, "..") == 0) continue;
        struct stat child {
        };
        if (fstatat(from, e->d_name, &child, AT_SYMLINK_NOFOLLOW) != 0) {
            error = errno;
        } else if (S_ISDIR(child.st_mode)) {
            error = cloneFolderAt(from, e->d_name, to, e->d_name);
        } else if (S_ISLNK(child.st_mode)) {
            std::vector<char> target(std::size_t(child.st_size) + 1, '\0');
            const ssize_t n = readlinkat(from, e->d_name, target.data(), target.size() - 1);
            error = n < 0 || symlinkat(target.data(), to, e->d_name) != 0 ? errno : 0;
        } else if (S_ISREG(child.st_mode)) {
            error = cloneFileAt(from, e->d_name, to, e->d_name, true);
        } else {
            error = ENOTSUP; // devices, sockets and pipes are not content
        }
    }
    if (!error && fchmod(to, st.st_mode & 07777) != 0) error = errno;
    if (d)
        closedir(d);
    else
        close(from);
    if (to >= 0) close(to);
    if (error) removeAt(destDir, destName);
    return error;
}

} // namespace

int cloneItem(const QString &source, const QString &destination, bool isFolder)
{
    const QByteArray from = pathBytes(source);
    const QByteArray to = pathBytes(destination);
    return isFolder ? cloneFolderAt(AT_FDCWD, from.constData(), AT_FDCWD, to.constData())
                    : cloneFileAt(AT_FDCWD, from.constData(), AT_FDCWD, to.constData(), false);
}

int copyWithoutSharing(const QString &source, const QString &destination, mode_t mode)
{
    const QByteArray to = pathBytes(destination);
    const int in = open(pathBytes(source).constData(), O_RDONLY | O_CLOEXEC);
    if (in < 0) return errno;
    const int out = open(to.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode & 07777);
    if (out < 0) {
        const int error = errno;
        close(in);
        return error;
    }
    posix_fadvise(in, 0, 0, POSIX_FADV_SEQUENTIAL);
    std::vector<char> buffer(std::size_t(1) << 20);
    int error = 0;
    for (;;) {
        const ssize_t n = read(in, buffer.data(), buffer.size());
        if (n < 0 && errno == EINTR) continue;
        if (n <= 0) {
            error = n < 0 ? errno : 0;
            break;
        }
        for (ssize_t written = 0; written < n && !error;) {
            const ssize_t w = write(out, buffer.data() + written, std::size_t(n - written));
            if (w < 0 && errno != EINTR) error = errno;
            written += w > 0 ? w : 0;
        }
        if (error) break;
    }
    // On the disk before anything relies on it: the copy is about to take an only copy's place.
    if (!error && fsync(out) != 0) error = errno;
    if (!error && fchmod(out, mode & 07777) != 0) error = errno; // the umask may have cut the bits
    close(in);
    if (close(out) != 0 && !error) error = errno;
    if (error) unlink(to.constData());
    return error;
}

int renameNoReplace(const QString &from, const QString &to)
{
    const QByteArray f = pathBytes(from);
    const QByteArray t = pathBytes(to);
    if (renameat2(AT_FDCWD, f.constData(), AT_FDCWD, t.constData(), RENAME_NOREPLACE) == 0) return 0;
    if (errno != EINVAL && errno != ENOSYS) return errno;
    // A file system without RENAME_NOREPLACE: check, then rename (a narrow race, never a
    // silent overwrite of something that was already there).
    struct stat st {
    };
    if (lstat(t.constData(), &st) == 0) return EEXIST;
    return rename(f.constData(), t.constData()) == 0 ? 0 : errno;
}

int removeItem(const QString &path)
{
    return removeAt(AT_FDCWD, pathBytes(path).constData());
}

} // namespace selfsame
