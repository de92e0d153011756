#include "LocalFiles.h"

#include "fileops/FSMetadata.h"
#include "names/FileNames.h"

#include <QAbstractFileIconProvider>
#include <QDir>
#include <QFileInfo>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace selfsame {

namespace {

std::optional<struct stat> statusOf(const QString &path)
{
    struct stat status;
    if (path.isEmpty() || stat(pathBytes(path).constData(), &status) != 0) return std::nullopt;
    return status;
}

} // namespace

std::optional<qint64> modificationTime(const QString &path)
{
    const auto status = statusOf(path);
    if (!status) return std::nullopt;
    return qint64(status->st_mtim.tv_sec);
}

std::unique_ptr<QFile> openForReading(const QString &path)
{
    // Not blocking, so that opening a pipe returns at once and is refused below.
    const int fd = open(pathBytes(path).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) return nullptr;
    struct stat status;
    int error = EINVAL;
    if (fstat(fd, &status) != 0) {
        error = errno;
    } else if (S_ISDIR(status.st_mode)) {
        error = EISDIR;
    } else if (S_ISREG(status.st_mode)) {
        auto file = std::make_unique<QFile>();
        if (file->open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) return file;
    }
    close(fd);
    errno = error;
    return nullptr;
}

QStringList localPaths(const QList<QUrl> &urls)
{
    QStringList paths;
    for (const QUrl &url : urls) {
        if (url.isLocalFile()) paths.append(QDir::cleanPath(pathFromUrl(url)));
    }
    return paths;
}

QIcon pathIcon(const QAbstractFileIconProvider &provider, const QString &path)
{
    if (!hasInvalidBytes(path)) return provider.icon(QFileInfo(path));
    return provider.icon(isFolder(path) ? QAbstractFileIconProvider::Folder
                                        : QAbstractFileIconProvider::File);
}

QString folderForFileDialog(const QString &path)
{
    QString folder = path;
    while (hasInvalidBytes(folder))
        folder = parentFolder(folder);
    return folder;
}

} // namespace selfsame
