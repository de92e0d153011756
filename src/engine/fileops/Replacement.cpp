#include "fileops/Replacement.h"

#include "fileops/CloneItem.h"
#include "fileops/FSMetadata.h"
#include "names/FileNames.h"

#include <QCoreApplication>
#include <QStringList>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace selfsame
{

void ReplaceWithModes::choose(int mode, bool forAlternate)
{
    int &slot = forAlternate ? alternate : replaceWith;
    int &other = forAlternate ? replaceWith : alternate;
    if (other == mode) other = slot;
    slot = mode;
}

QString statusImageName(bool trashed, int mode)
{
    switch (mode) {
    case ReplaceWithAlias:
    case ReplaceWithSymbolicLink:
    case ReplaceWithRelativeSymbolicLink:
        return QStringLiteral("aliased");
    case ReplaceWithHardLink:
        return QStringLiteral("hard linked");
    case ReplaceWithClone:
        return QStringLiteral("cloned");
    default:
        return trashed ? QStringLiteral("trashed") : QStringLiteral("deleted");
    }
}

bool replaceWithMenuSuffix(int mode, bool alternate, QString *suffix)
{
    switch (mode) {
    case ReplaceWithNone:
        *suffix = alternate ? QCoreApplication::translate("Replacement", " and Do Not Replace") : QString();
        return true;
    case ReplaceWithAlias:
        *suffix = QCoreApplication::translate("Replacement", " and Replace with Alias");
        return true;
    case ReplaceWithSymbolicLink:
        *suffix = QCoreApplication::translate("Replacement", " and Replace with Symbolic Link");
        return true;
    case ReplaceWithRelativeSymbolicLink:
        *suffix = QCoreApplication::translate("Replacement", " and Replace with Relative Symbolic Link");
        return true;
    case ReplaceWithHardLink:
        *suffix = QCoreApplication::translate("Replacement", " and Replace with Hard Link");
        return true;
    case ReplaceWithClone:
        *suffix = QCoreApplication::translate("Replacement", " and Replace with Clone");
        return true;
    default:
        return false; // the title stays as it is
    }
}

QString relativePathFromFolder(const QString &targetPath, const QString &folderPath)
{
    const QString folder = folderPath.endsWith(u'/') ? folderPath : folderPath + u'/';
    // Components as a path splits: a leading "/" and, for the folder, a trailing "/".
    auto components = [](const QString &path) {
        QStringList parts;
        if (path.startsWith(u'/')) parts << QStringLiteral("/");
        for (const QString &part : path.split(u'/', Qt::SkipEmptyParts))
            parts << part;
        return parts;
    };
    QStringList target = components(targetPath);
    QStringList base = components(folder);
    base << QStringLiteral("/");
    while (!target.isEmpty() && !base.isEmpty() && target.first() == base.first()) {
        target.removeFirst();
        base.removeFirst();
    }
    const QString prefix =
        base.size() == 1 ? QString() : QStringLiteral("../").repeated(qMax(1, int(base.size()) - 1));
    return prefix + target.join(u'/');
}

int writeDesktopLink(const QString &target, const QString &path)
{
    const int fd =
        open(pathBytes(path).constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0644);
    if (fd < 0) return errno;
    const QString name = target.mid(target.lastIndexOf(u'/') + 1);
    // The URL carries the exact bytes of the target's path; the name is only shown.
    const QByteArray entry = "[Desktop Entry]\nType=Link\nName=" + displayPath(name).toUtf8() +
                             "\nURL=" + fileUrl(target).toEncoded() + '\n';
    int error =
        write(fd, entry.constData(), std::size_t(entry.size())) == entry.size() ? 0 : (errno ? errno : EIO);
    if (close(fd) != 0 && !error) error = errno;
    if (error) unlink(pathBytes(path).constData());
    return error;
}

int makeReplacement(int mode, const QString &reference, const QString &path, bool referenceIsFolder)
{
    const QByteArray ref = pathBytes(reference);
    const QByteArray at = pathBytes(path);
    switch (mode) {
    case ReplaceWithAlias:
        return writeDesktopLink(reference, path);
    case ReplaceWithSymbolicLink:
        return symlink(ref.constData(), at.constData()) == 0 ? 0 : errno;
    case ReplaceWithRelativeSymbolicLink:
        return symlink(pathBytes(relativePathFromFolder(reference, parentFolder(path))).constData(),
                       at.constData()) == 0
                   ? 0
                   : errno;
    case ReplaceWithHardLink:
        return link(ref.constData(), at.constData()) == 0 ? 0 : errno;
    case ReplaceWithClone:
        return cloneItem(reference, path, referenceIsFolder);
    default:
        return 0;
    }
}

} // namespace selfsame
