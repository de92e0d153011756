#include "LaunchRequest.h"

#include "results/ResultsFile.h"

#include <QDir>
#include <QFileInfo>
#include <QUrl>

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
    const QFileInfo info(path);
    return info.isFile() && info.suffix().compare(ResultsFile::kSuffix, Qt::CaseInsensitive) == 0;
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
                paths.append(QDir::cleanPath(url.toLocalFile()));
            continue;
        }
        paths.append(QDir::cleanPath(QDir(workingDirectory).absoluteFilePath(argument)));
    }
    return paths;
}

} // namespace selfsame
