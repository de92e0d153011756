#pragma once

#include <QObject>
#include <QStringList>

class QLocalServer;

namespace selfsame {

// One application per user: a later start hands its request to the running instance over a
// local socket and ends.
class SingleInstance : public QObject {
    Q_OBJECT
public:
    explicit SingleInstance(const QString &serverName = defaultServerName(), QObject *parent = nullptr);

    // Gives the message to a running instance; false when none is listening.
    bool handOver(const QStringList &message);
    // Starts listening for later starts; a socket left behind by a crashed instance is replaced.
    bool listen();

    static QString defaultServerName();

Q_SIGNALS:
    void received(const QStringList &message);

private:
    void acceptConnection();

    QString m_serverName;
    QLocalServer *m_server = nullptr;
};

} // namespace selfsame
