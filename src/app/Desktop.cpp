#include "Desktop.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDesktopServices>
#include <QFileInfo>
#include <QUrl>
#include <QUrlQuery>

namespace selfsame {

void revealInFileManager(const QStringList &paths)
{
    if (paths.isEmpty())
        return;
    QStringList uris;
    for (const QString &path : paths)
        uris.append(QUrl::fromLocalFile(path).toString());
    QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("/org/freedesktop/FileManager1"),
        QStringLiteral("org.freedesktop.FileManager1"), QStringLiteral("ShowItems"));
    call << uris << QString();
    const QDBusMessage reply = QDBusConnection::sessionBus().call(call, QDBus::Block, 2000);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return;
    for (const QString &path : paths)
        QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).path()));
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
