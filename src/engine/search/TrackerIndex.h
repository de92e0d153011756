#pragma once

#include "search/ExactSizeIndex.h"

#include <QDBusConnection>

#include <atomic>
#include <memory>

namespace selfsame {

// The desktop's file index (Tracker 3) over D-Bus: one SPARQL query on nfo:fileSize answers
// for every size at once. Results arrive through a pipe that is read in steps of 0.1 s, so
// that an abort ends the wait.
class TrackerIndex : public ExactSizeIndex {
public:
    static constexpr const char *kMinerService = "org.freedesktop.Tracker3.Miner.Files";

    // The index when `service` answers on `bus`, else null. Files outside `scope` (folders;
    // empty: anywhere) are left out.
    static std::unique_ptr<TrackerIndex> connect(const QDBusConnection &bus, const QString &service,
                                                 const QStringList &scope, const std::atomic<int> &searchingState);

    std::unordered_map<qint64, QStringList> findFilesWithExactSizes(const std::vector<qint64> &sizes) override;

private:
    TrackerIndex(const QDBusConnection &bus, const QString &service, const QStringList &scope,
                 const std::atomic<int> &searchingState);
    bool inScope(const QString &path) const;

    QDBusConnection m_bus;
    QString m_service;
    QStringList m_scope;
    const std::atomic<int> &m_searchingState;
};

} // namespace selfsame
