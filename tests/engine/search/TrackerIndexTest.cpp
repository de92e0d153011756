// The desktop index back end against a private Tracker endpoint on a private D-Bus session.

#include "search/TrackerIndex.h"
#include "support/TempTree.h"

#include <QCoreApplication>
#include <QDBusConnectionInterface>
#include <QDeadlineTimer>
#include <QProcess>
#include <QStandardPaths>
#include <QThread>
#include <QUrl>

#include <gtest/gtest.h>

using namespace selfsame;

namespace {

constexpr const char *kService = "org.selfsame.TrackerIndexTest";

struct PrivateTracker {
    QProcess bus, endpoint;
    QString address, skipReason;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();

    explicit PrivateTracker(const QString &database)
    {
        static int argc = 1;
        static char name[] = "engine-tests", *argv[] = {name, nullptr};
        if (!QCoreApplication::instance())
            new QCoreApplication(argc, argv); // D-Bus connections want one
        const QString daemon = QStandardPaths::findExecutable(QStringLiteral("dbus-daemon"));
        const QString tracker = QStandardPaths::findExecutable(QStringLiteral("tracker3"));
        if (daemon.isEmpty() || tracker.isEmpty()) {
            skipReason = QStringLiteral("needs dbus-daemon and tracker3 (packages dbus-daemon and tracker)");
            return;
        }
        bus.start(daemon, {QStringLiteral("--session"), QStringLiteral("--nofork"), QStringLiteral("--print-address")});
        if (!bus.waitForReadyRead(10000)) {
            skipReason = QStringLiteral("a private D-Bus session could not be started");
            return;
        }
        address = QString::fromUtf8(bus.readLine().trimmed());
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), address);
        endpoint.setProcessEnvironment(environment);
        endpoint.start(tracker, {QStringLiteral("endpoint"), QStringLiteral("--database"), database,
                                 QStringLiteral("--ontology"), QStringLiteral("nepomuk"),
                                 QStringLiteral("--dbus-service"), QLatin1String(kService)});
        QDBusConnection connection = this->connection();
        const QDeadlineTimer deadline(15000);
        while (!connection.interface()->isServiceRegistered(QLatin1String(kService)).value() && !deadline.hasExpired())
            QThread::msleep(50);
        if (!connection.interface()->isServiceRegistered(QLatin1String(kService)).value())
            skipReason = QStringLiteral("tracker3 endpoint did not come up: ") +
                         QString::fromUtf8(endpoint.readAllStandardError());
    }
    ~PrivateTracker()
    {
        QDBusConnection::disconnectFromBus(QStringLiteral("tracker-index-test"));
        for (QProcess *process : {&endpoint, &bus}) {
            process->terminate();
            if (!process->waitForFinished(5000))
                process->kill();
            process->waitForFinished(5000);
        }
    }
    QDBusConnection connection() const
    {
        return QDBusConnection::connectToBus(address, QStringLiteral("tracker-index-test"));
    }
    bool update(const QString &sparql)
    {
        QProcess client;
        client.setProcessEnvironment(environment);
        client.start(QStandardPaths::findExecutable(QStringLiteral("tracker3")),
                     {QStringLiteral("sparql"), QStringLiteral("--dbus-service"), QLatin1String(kService),
                      QStringLiteral("--update"), QStringLiteral("--query"), sparql});
        return client.waitForFinished(30000) && client.exitCode() == 0;
    }
};

QString fileResource(const QString &path, qint64 size)
{
    const QByteArray url = QUrl::fromLocalFile(path).toEncoded();
    return QStringLiteral("<%1> a nfo:FileDataObject ; nie:url \"%1\" ; nfo:fileSize %2 .")
        .arg(QString::fromLatin1(url))
        .arg(size);
}

TEST(TrackerIndex, FilesOfTheAskedSizesComeFromThePrivateIndexWithinTheScope)
{
    TempTree tree;
    PrivateTracker tracker(tree.folder(QStringLiteral("db")));
    if (!tracker.skipReason.isEmpty())
        GTEST_SKIP() << tracker.skipReason.toStdString();
    const QString in = tree.path(QStringLiteral("in")), out = tree.path(QStringLiteral("out"));
    ASSERT_TRUE(tracker.update(QStringLiteral("INSERT DATA { %1 %2 %3 %4 }")
                                   .arg(fileResource(in + QStringLiteral("/a b.jpg"), 3000),
                                        fileResource(in + QStringLiteral("/deep/ç.jpg"), 3000),
                                        fileResource(in + QStringLiteral("/c"), 4000),
                                        fileResource(out + QStringLiteral("/d"), 3000))));

    std::atomic<int> state{0};
    auto index = TrackerIndex::connect(tracker.connection(), QLatin1String(kService), {in}, state);
    ASSERT_TRUE(index);
    auto found = index->findFilesWithExactSizes({3000, 4000, 5000});
    found[3000].sort();
    EXPECT_EQ(found[3000], (QStringList{in + QStringLiteral("/a b.jpg"), in + QStringLiteral("/deep/ç.jpg")}));
    EXPECT_EQ(found[4000], QStringList{in + QStringLiteral("/c")});
    EXPECT_TRUE(found[5000].isEmpty());

    auto anywhere = TrackerIndex::connect(tracker.connection(), QLatin1String(kService), {}, state);
    EXPECT_EQ(anywhere->findFilesWithExactSize(3000).size(), 3);

    state = 1;
    EXPECT_TRUE(anywhere->findFilesWithExactSize(3000).isEmpty()) << "an abort ends the wait";
    EXPECT_FALSE(TrackerIndex::connect(tracker.connection(), QStringLiteral("org.selfsame.Nobody"), {}, state));
}

} // namespace
