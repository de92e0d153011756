#include "Desktop.h"

#include "fileops/FSMetadata.h"
#include "names/FileNames.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QSet>
#include <QUrlQuery>

namespace selfsame {

QStringList fileManagerUris(const QStringList &paths)
{
    QStringList uris;
    for (const QString &path : paths)
        uris.append(QString::fromLatin1(fileUrl(path).toEncoded()));
    return uris;
}

QUrl enclosingFolderUrl(const QString &path)
{
    return fileUrl(parentFolder(path));
}

void revealInFileManager(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    const QStringList uris = fileManagerUris(paths);
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << uris << QString();
    const QDBusMessage reply = QDBusConnection::sessionBus().call(call, QDBus::Block, 2000);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return;
    QSet<QUrl> opened; // one window for each folder, however many of its items were asked for
    for (const QString &path : paths) {
        const QUrl folder = enclosingFolderUrl(path);
        if (!opened.contains(folder))
            QDesktopServices::openUrl(folder);
        opened.insert(folder);
    }
}

void openWithDefaultApplication(const QString &path)
{
    QDesktopServices::openUrl(fileUrl(path));
}

void showLauncherCount(int count)
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    QDBusMessage update = QDBusMessage::createSignal(QStringLiteral("/io/selfsame/Launcher"),
                                                     QStringLiteral("com.canonical.Unity.LauncherEntry"),
                                                     QStringLiteral("Update"));
    update << QStringLiteral("application://selfsame.desktop")
           << QVariantMap{{QStringLiteral("count"), qint64(count)},
                          {QStringLiteral("count-visible"), count > 0}};
    bus.send(update);
}

void composeFeedback()
{
    QUrl mail(QStringLiteral("mailto:"));
    QUrlQuery query;
    query.addQueryItem(QStringLiteral("subject"), QStringLiteral("Selfsame user feedback"));
    mail.setQuery(query);
    QDesktopServices::openUrl(mail);
}

} // namespace selfsame
