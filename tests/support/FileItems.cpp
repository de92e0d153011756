#include "support/FileItems.h"

#include "names/FileNames.h"
#include "search/Digest.h"

#include <QFile>
#include <fcntl.h>
#include <linux/fs.h>
#include <stdexcept>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace selfsame;

ResultItem *ItemGroup::add(const QString &path, int group)
{
    auto item = std::make_unique<ResultItem>();
    struct stat st {
    };
    if (lstat(pathBytes(path).constData(), &st) != 0)
        throw std::runtime_error("no such file " + path.toStdString());
    item->path = path;
    item->size = S_ISDIR(st.st_mode) ? 0 : qint64(st.st_size);
    item->physicalSize = qint64(st.st_blocks) * 512;
    item->modified = st.st_mtim.tv_sec;
    item->modifiedNsec = qint32(st.st_mtim.tv_nsec);
    item->attributes = st.st_ctim.tv_sec;
    item->changedNsec = qint32(st.st_ctim.tv_nsec);
    item->device = st.st_dev;
    item->inode = st.st_ino;
    item->group = group;
    if (S_ISDIR(st.st_mode)) item->set(IsFolder);
    if (access(pathBytes(path).constData(), W_OK) != 0) item->set(ReadOnly);
    if (st.st_uid != geteuid()) item->set(OtherOwner);
    if (S_ISREG(st.st_mode)) {
        const int fd = open(pathBytes(path).constData(), O_RDONLY);
        std::vector<qint64> storage;
        if (const auto alloc = computeAllocDigest(fd, storage)) {
            item->allocDigest = allocationKey(*alloc);
            item->set(HasAllocDigest);
        }
        close(fd);
    }
    items.push_back(std::move(item));
    return items.back().get();
}

QList<ResultItem *> ItemGroup::all() const
{
    QList<ResultItem *> result;
    for (const auto &item : items)
        result.append(item.get());
    return result;
}

QList<ResultItem *> ItemGroup::duplicatesFor(const ResultItem &item) const
{
    QList<ResultItem *> result;
    for (const auto &other : items)
        if (other->group == item.group) result.append(other.get());
    return result;
}

void writeFile(const QString &path, const QByteArray &bytes)
{
    QFile f(path);
    if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate) || f.write(bytes) != bytes.size())
        throw std::runtime_error("cannot write " + path.toStdString());
}

QByteArray readFile(const QString &path)
{
    QFile f(path);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<unreadable>");
}

bool setImmutable(const QString &path, bool on)
{
    const int fd = open(pathBytes(path).constData(), O_RDONLY | O_NONBLOCK);
    int flags = 0;
    bool ok = fd >= 0 && ioctl(fd, FS_IOC_GETFLAGS, &flags) == 0;
    flags = on ? (flags | FS_IMMUTABLE_FL) : (flags & ~FS_IMMUTABLE_FL);
    ok = ok && ioctl(fd, FS_IOC_SETFLAGS, &flags) == 0;
    if (fd >= 0) close(fd);
    return ok;
}

struct stat statOf(const QString &path)
{
    struct stat st {
    };
    lstat(pathBytes(path).constData(), &st);
    return st;
}

QString readLinkText(const QString &path)
{
    char buffer[4096];
    const ssize_t n = readlink(pathBytes(path).constData(), buffer, sizeof buffer);
    return n < 0 ? QString() : QString::fromUtf8(buffer, n);
}

std::optional<Digest> allocDigestOf(const QString &path)
{
    const int fd = open(pathBytes(path).constData(), O_RDONLY);
    std::vector<qint64> storage;
    auto digest = fd < 0 ? std::nullopt : computeAllocDigest(fd, storage);
    if (fd >= 0) close(fd);
    return digest;
}

int inodeFlagsOf(const QString &path)
{
    const int fd = open(pathBytes(path).constData(), O_RDONLY | O_NONBLOCK);
    int flags = -1;
    if (fd >= 0 && ioctl(fd, FS_IOC_GETFLAGS, &flags) != 0) flags = -1;
    if (fd >= 0) close(fd);
    return flags;
}
