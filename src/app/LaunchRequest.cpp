#include "LaunchRequest.h"

#include "LocalFiles.h"
#include "names/FileNames.h"
#include "results/ResultsFile.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>
#include <cstdlib>
#include <unistd.h>

namespace selfsame {

namespace {
const QString kSearch = QStringLiteral("search");
const QString kOpen = QStringLiteral("open");
} // namespace

QStringList LaunchRequest::toMessage() const
{
    return QStringList{search ? kSearch : kOpen} + paths;
}

LaunchRequest LaunchRequest::fromMessage(const QStringList &message)
{
    if (message.isEmpty())
        return {};
    return {message.first() == kSearch, message.mid(1)};
}

bool isResultsFile(const QString &path)
{
    return QFileInfo(path).suffix().compare(ResultsFile::kSuffix, Qt::CaseInsensitive) == 0 &&
           isRegularFile(path);
}

QStringList absoluteLocalPaths(const QStringList &arguments, const QString &workingDirectory)
{
    QStringList paths;
    for (const QString &argument : arguments) {
        if (argument.isEmpty())
            continue;
        const QUrl url(argument);
        if (url.scheme().size() > 1) { // a single letter would be a drive, not a scheme
            if (url.isLocalFile())
                paths.append(QDir::cleanPath(pathFromUrl(url)));
            continue;
        }
        paths.append(QDir::cleanPath(QDir(workingDirectory).absoluteFilePath(argument)));
    }
    return paths;
}

QStringList commandLineArguments(int argc, const char *const *argv)
{
    QStringList arguments;
    for (int i = 0; i < argc && argv[i]; ++i)
        arguments.append(pathFromBytes(QByteArray(argv[i])));
    return arguments;
}

QString currentFolder()
{
    char *bytes = getcwd(nullptr, 0);
    if (!bytes)
        return QDir::currentPath();
    const QString folder = pathFromBytes(QByteArray(bytes));
    std::free(bytes);
    return folder;
}

} // namespace selfsame
