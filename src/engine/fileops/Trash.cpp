#include "fileops/Trash.h"

#include "fileops/CloneItem.h"
#include "fileops/ErrorText.h"
#include "journal/Journal.h"
#include "names/FileNames.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QUrl>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace selfsame
{

namespace
{

QString homeTrashFolder()
{
    QString data = qEnvironmentVariable("XDG_DATA_HOME");
    if (data.isEmpty() || !data.startsWith(u'/')) data = QDir::homePath() + QStringLiteral("/.local/share");
    return data + QStringLiteral("/Trash");
}

dev_t deviceOf(const QString &path)
{
    struct stat st {
    };
    return lstat(pathBytes(path).constData(), &st) == 0 ? st.st_dev : dev_t(-1);
}

// The nearest existing folder at or above `path`, for the home trash's device before it exists.
QString existingAncestor(QString path)
{
    while (deviceOf(path) == dev_t(-1) && path != u'/')
        path = QFileInfo(path).path();
    return path;
}

bool isOwnFolder(const QString &path)
{
    struct stat st {
    };
    return lstat(pathBytes(path).constData(), &st) == 0 && S_ISDIR(st.st_mode) && st.st_uid == geteuid();
}

bool makePrivateFolder(const QString &path)
{
    return mkdir(pathBytes(path).constData(), 0700) == 0 || (errno == EEXIST && isOwnFolder(path));
}

bool prepareTrash(const QString &trash, bool makeParents)
{
    if (makeParents && !QDir().mkpath(QFileInfo(trash).path())) return false;
    return makePrivateFolder(trash) && makePrivateFolder(trash + QStringLiteral("/files")) &&
           makePrivateFolder(trash + QStringLiteral("/info"));
}

QString volumeTrashFolder(const QString &top, bool create)
{
    const QString uid = QString::number(geteuid());
    const QString shared = (top == u'/' ? QString() : top) + QStringLiteral("/.Trash");
    struct stat st {
    };
    // An administrator's .Trash counts only as a real sticky folder, never through a link.
    if (lstat(pathBytes(shared).constData(), &st) == 0 && S_ISDIR(st.st_mode) && (st.st_mode & S_ISVTX)) {
        const QString mine = shared + u'/' + uid;
        if (!create || prepareTrash(mine, false)) return mine;
    }
    const QString own = (top == u'/' ? QString() : top) + QStringLiteral("/.Trash-") + uid;
    if (!create || prepareTrash(own, false)) return own;
    return {};
}

QString chooseTrash(const QString &path, bool create, QString *topForRelative)
{
    const QString home = homeTrashFolder();
    if (deviceOf(path) == deviceOf(existingAncestor(home))) {
        if (!create || prepareTrash(home, true)) return home;
        return {};
    }
    const QString top = topDirectory(path);
    if (topForRelative) *topForRelative = top;
    return volumeTrashFolder(top, create);
}

QString splitName(const QString &name, QString *extension)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    if (dot <= 0) {
        extension->clear();
        return name;
    }
    *extension = name.mid(dot);
    return name.left(dot);
}

// Claims a free NAME.trashinfo by creating it exclusively; "NAME 2.ext", "NAME 3.ext"… on collision.
int claimInfoFile(const QString &trash, const QString &name, QString *chosen)
{
    QString extension;
    const QString stem = splitName(name, &extension);
    for (int n = 1; n < 100000; ++n) {
        const QString candidate = n == 1 ? name : QStringLiteral("%1 %2%3").arg(stem).arg(n).arg(extension);
        struct stat st {
        };
        if (lstat(pathBytes(trash + QStringLiteral("/files/") + candidate).constData(), &st) == 0) continue;
        const QByteArray info =
            pathBytes(trash + QStringLiteral("/info/") + candidate + QStringLiteral(".trashinfo"));
        const int fd = open(info.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
        if (fd >= 0) {
            close(fd);
            *chosen = candidate;
            return 0;
        }
        if (errno != EEXIST) return errno;
    }
    return EEXIST;
}

// The content of a small file (a trash record), empty when it cannot be read.
QByteArray readSmallFile(const QString &path)
{
    QByteArray content;
    const int fd = open(pathBytes(path).constData(), O_RDONLY | O_CLOEXEC | O_NOFOLLOW);
    char buffer[4096];
    for (ssize_t n; fd >= 0 && content.size() < (1 << 20) && (n = read(fd, buffer, sizeof buffer)) != 0;) {
        if (n < 0 && errno == EINTR) continue;
        if (n < 0) break;
        content.append(buffer, n);
    }
    if (fd >= 0) close(fd);
    return content;
}

// Writes `data` as the whole content of an existing file; returns the errno of the step that
// failed (a full disk says ENOSPC, not a vague I/O error), 0 on success.
int writeWhole(const QString &path, const QByteArray &data)
{
    const int fd = open(pathBytes(path).constData(), O_WRONLY | O_TRUNC | O_CLOEXEC | O_NOFOLLOW);
    if (fd < 0) return errno;
    int error = 0;
    for (qsizetype done = 0; done < data.size() && !error;) {
        const ssize_t n = write(fd, data.constData() + done, std::size_t(data.size() - done));
        if (n > 0) done += n;
        else if (n < 0 && errno != EINTR) error = errno;
        else if (n == 0) error = EIO;
    }
    if (close(fd) != 0 && !error) error = errno;
    return error;
}

} // namespace

QString topDirectory(const QString &path)
{
    const dev_t device = deviceOf(path);
    QString top = path;
    while (top != u'/') {
        const QString up = QFileInfo(top).path();
        if (deviceOf(up) != device) break;
        top = up;
    }
    return top;
}

QByteArray encodeTrashInfoPath(const QString &path)
{
    return percentEncodedPath(path); // the exact bytes: a name that is not UTF-8 comes back whole
}

QString trashFolderFor(const QString &path)
{
    return chooseTrash(QFileInfo(path).absoluteFilePath(), false, nullptr);
}

TrashResult trashItem(const QString &path)
{
    TrashResult result;
    struct stat st {
    };
    if (lstat(pathBytes(path).constData(), &st) != 0) {
        result.error = errno;
        result.errorText = errorText(errno);
        return result;
    }
    QString top;
    const QString trash = chooseTrash(path, true, &top);
    if (trash.isEmpty()) {
        result.error = EACCES;
        result.errorText =
            QCoreApplication::translate("Trash", "No trash folder could be made on the volume of “%1”.")
                .arg(displayPath(path));
        return result;
    }
    const QString name = path.mid(path.lastIndexOf(u'/') + 1);
    QString chosen;
    if (const int error = claimInfoFile(trash, name, &chosen)) {
        result.error = error;
        result.errorText = errorText(error);
        return result;
    }
    const QString infoPath = trash + QStringLiteral("/info/") + chosen + QStringLiteral(".trashinfo");
    const QString target = trash + QStringLiteral("/files/") + chosen;
    // Paths in a volume's trash are relative to its top folder, so that the volume may move.
    const QString recorded = top.isEmpty() || top == u'/' ? path : path.mid(top.size() + 1);
    const QByteArray info = "[Trash Info]\nPath=" + encodeTrashInfoPath(recorded) + "\nDeletionDate=" +
                            QDateTime::currentDateTime().toString(Qt::ISODate).left(19).toUtf8() + '\n';
    if (const int error = writeWhole(infoPath, info)) {
        unlink(pathBytes(infoPath).constData());
        result.error = error;
        result.errorText = QCoreApplication::translate("Trash", "The trash information of “%1” could not be written: %2")
                               .arg(displayPath(path), errorText(error));
        return result;
    }
    faultPoint("trash.recorded");
    if (const int error = renameNoReplace(path, target)) {
        unlink(pathBytes(infoPath).constData());
        result.error = error;
        result.errorText = errorText(error);
        return result;
    }
    faultPoint("trash.moved");
    const QByteArray former = pathBytes(path);
    // Where user attributes are refused, the Path= line stays the record.
    lsetxattr(pathBytes(target).constData(), kPutBackAttribute, former.constData(), std::size_t(former.size()),
              0);
    result.trashedPath = target;
    return result;
}

bool hasPutBackAttribute(const QString &trashedPath)
{
    return lgetxattr(pathBytes(trashedPath).constData(), kPutBackAttribute, nullptr, 0) > 0;
}

bool removePutBackAttribute(const QString &path)
{
    return lremovexattr(pathBytes(path).constData(), kPutBackAttribute) == 0;
}

QString trashInfoPathFor(const QString &trashedPath)
{
    const QFileInfo file(trashedPath);
    const QString files = file.path();
    if (!files.endsWith(QStringLiteral("/files"))) return {};
    return files.chopped(5) + QStringLiteral("info/") + file.fileName() + QStringLiteral(".trashinfo");
}

QString putBackPath(const QString &trashedPath)
{
    const QByteArray p = pathBytes(trashedPath);
    const ssize_t size = lgetxattr(p.constData(), kPutBackAttribute, nullptr, 0);
    if (size > 0) {
        QByteArray value(size, Qt::Uninitialized);
        const ssize_t read = lgetxattr(p.constData(), kPutBackAttribute, value.data(), std::size_t(size));
        if (read > 0) return pathFromBytes(value.left(read));
    }
    const QList<QByteArray> lines = readSmallFile(trashInfoPathFor(trashedPath)).split('\n');
    for (const QByteArray &line : lines) {
        if (!line.startsWith("Path=")) continue;
        const QString recorded = pathFromBytes(QByteArray::fromPercentEncoding(line.mid(5).trimmed()));
        if (recorded.startsWith(u'/')) return recorded;
        // Relative to the volume's top folder, which holds the trash folder.
        QString trash = QFileInfo(QFileInfo(trashedPath).path()).path();
        if (QFileInfo(trash).fileName() != QStringLiteral(".Trash-") + QString::number(geteuid()))
            trash = QFileInfo(trash).path(); // .Trash/$uid
        const QString top = QFileInfo(trash).path();
        return top == u'/' ? u'/' + recorded : top + u'/' + recorded;
    }
    return {};
}

} // namespace selfsame
