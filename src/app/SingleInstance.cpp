#include "SingleInstance.h"

#include <QDataStream>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <unistd.h>

namespace selfsame {

namespace {
constexpr int kTimeoutMs = 2000;
}

SingleInstance::SingleInstance(const QString &serverName, QObject *parent)
    : QObject(parent), m_serverName(serverName)
{
}

QString SingleInstance::defaultServerName()
{
    // The user's runtime folder is private to the user and to the session.
    const QString runtime = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    if (runtime.isEmpty())
        return QStringLiteral("selfsame-%1").arg(getuid());
    return runtime + QStringLiteral("/selfsame-instance");
}

bool SingleInstance::handOver(const QStringList &message)
{
    QLocalSocket socket;
    socket.connectToServer(m_serverName);
    if (!socket.waitForConnected(kTimeoutMs))
        return false;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << message;
    socket.write(bytes);
    if (!socket.waitForBytesWritten(kTimeoutMs))
        return false;
    socket.disconnectFromServer();
    return true;
}

bool SingleInstance::listen()
{
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &SingleInstance::acceptConnection);
    if (m_server->listen(m_serverName))
        return true;
    // Nobody answered handOver, so the socket is a leftover.
    QLocalServer::removeServer(m_serverName);
    return m_server->listen(m_serverName);
}

void SingleInstance::acceptConnection()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        auto readMessage = [this, socket] {
            QDataStream stream(socket);
            stream.startTransaction();
            QStringList message;
            stream >> message;
            if (stream.commitTransaction())
                Q_EMIT received(message);
        };
        connect(socket, &QLocalSocket::readyRead, this, readMessage);
        if (socket->bytesAvailable() > 0)
            readMessage();
    }
}

} // namespace selfsame
