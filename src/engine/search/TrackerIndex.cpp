#include "search/TrackerIndex.h"

#include "names/FileNames.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusPendingCall>
#include <QDBusPendingReply>
#include <QDBusUnixFileDescriptor>
#include <QUrl>

#include <QtEndian>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

namespace selfsame {

namespace {

// Reads everything written to `fd` until its writer closes it; false on an abort or an error
// reply. The pending call holds a copy of the writing end until its reply has come: it is let
// go then, so that the endpoint's copy is the last one.
bool readAll(int fd, QDBusPendingCall &pending, QByteArray &bytes, const std::atomic<int> &searchingState)
{
    char chunk[65536];
    bool replied = false;
    for (;;) {
        if (searchingState.load(std::memory_order_relaxed) == 1)
            return false;
        if (!replied && pending.isFinished()) {
            if (pending.isError())
                return false;
            replied = true;
            pending = QDBusPendingCall::fromCompletedCall(QDBusMessage());
        }
        pollfd ready{fd, POLLIN, 0};
        const int polled = poll(&ready, 1, 100);
        if (polled < 0 && errno != EINTR)
            return false;
        if (polled <= 0)
            continue;
        const ssize_t n = read(fd, chunk, sizeof(chunk));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return false;
        if (n == 0)
            return replied || (pending.waitForFinished(), !pending.isError());
        bytes.append(chunk, n);
    }
}

// The endpoint writes each row as: the column count, the value type of each column, the end
// offset of each value, then the values, each ended by a zero byte. Integers are 32-bit in
// the writer's byte order, which the column count (2) tells.
std::vector<std::pair<QString, qint64>> parseRows(const QByteArray &bytes)
{
    std::vector<std::pair<QString, qint64>> rows;
    qsizetype at = 0;
    bool swap = false;
    auto int32 = [&]() -> std::optional<qint32> {
        if (at + 4 > bytes.size())
            return std::nullopt;
        qint32 value;
        std::memcpy(&value, bytes.constData() + at, 4);
        at += 4;
        return swap ? qbswap(value) : value;
    };
    while (at < bytes.size()) {
        auto columns = int32();
        if (columns && rows.empty() && *columns != 2 && qbswap(*columns) == 2) {
            swap = true;
            columns = 2;
        }
        if (!columns || *columns != 2)
            break;
        at += 2 * 4; // value types
        const auto urlEnd = int32(), sizeEnd = int32();
        if (!urlEnd || !sizeEnd || *urlEnd < 0 || *sizeEnd <= *urlEnd || at + *sizeEnd + 1 > bytes.size())
            break;
        const QByteArray url = bytes.mid(at, *urlEnd);
        const QByteArray size = bytes.mid(at + *urlEnd + 1, *sizeEnd - *urlEnd - 1);
        at += *sizeEnd + 1;
        bool ok = false;
        const qint64 value = size.toLongLong(&ok);
        const QUrl parsed = QUrl::fromEncoded(url);
        if (ok && parsed.isLocalFile())
            rows.emplace_back(pathFromUrl(parsed), value);
    }
    return rows;
}

} // namespace

std::unique_ptr<TrackerIndex> TrackerIndex::connect(const QDBusConnection &bus, const QString &service,
                                                    const QStringList &scope, const std::atomic<int> &searchingState)
{
    if (!bus.isConnected() || !bus.interface() || !bus.interface()->isServiceRegistered(service).value())
        return nullptr;
    return std::unique_ptr<TrackerIndex>(new TrackerIndex(bus, service, scope, searchingState));
}

TrackerIndex::TrackerIndex(const QDBusConnection &bus, const QString &service, const QStringList &scope,
                           const std::atomic<int> &searchingState)
    : m_bus(bus), m_service(service), m_scope(scope), m_searchingState(searchingState)
{
}

bool TrackerIndex::inScope(const QString &path) const
{
    if (m_scope.isEmpty())
        return true;
    for (const QString &folder : m_scope)
        if (path == folder || path.startsWith(folder.endsWith(u'/') ? folder : folder + u'/'))
            return true;
    return false;
}

std::unordered_map<qint64, QStringList> TrackerIndex::findFilesWithExactSizes(const std::vector<qint64> &sizes)
{
    std::unordered_map<qint64, QStringList> found;
    if (sizes.empty())
        return found;
    QStringList listed;
    for (qint64 size : sizes)
        listed.append(QString::number(size));
    const QString query = QStringLiteral("SELECT ?url ?size WHERE { ?file a nfo:FileDataObject ; nie:url ?url ; "
                                         "nfo:fileSize ?size . FILTER (?size IN (%1)) }")
                              .arg(listed.join(QStringLiteral(", ")));
    int pipeEnds[2];
    if (pipe2(pipeEnds, O_CLOEXEC) != 0)
        return found;
    QDBusMessage call = QDBusMessage::createMethodCall(m_service, QStringLiteral("/org/freedesktop/Tracker3/Endpoint"),
                                                       QStringLiteral("org.freedesktop.Tracker3.Endpoint"),
                                                       QStringLiteral("Query"));
    call << query << QVariant::fromValue(QDBusUnixFileDescriptor(pipeEnds[1])) << QVariantMap();
    QDBusPendingCall pending = m_bus.asyncCall(call);
    call = QDBusMessage();
    close(pipeEnds[1]);
    QByteArray bytes;
    const bool complete = readAll(pipeEnds[0], pending, bytes, m_searchingState);
    close(pipeEnds[0]);
    if (!complete)
        return found;
    for (const auto &[path, size] : parseRows(bytes))
        if (inScope(path))
            found[size].append(path);
    return found;
}

} // namespace selfsame
