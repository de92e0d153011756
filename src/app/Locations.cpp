#include "Locations.h"

#include "LocalFiles.h"
#include "SearchDefaults.h"
#include "Settings.h"
#include "names/FileNames.h"

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <sys/stat.h>

namespace selfsame {

namespace {

bool isHiddenName(const QString &path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1).startsWith(QLatin1Char('.'));
}

// A hidden step between outer and inner means a search of outer that skips hidden items
// never reaches inner.
bool hasHiddenStep(const QString &inner, const QString &outer)
{
    for (QString step = inner; step.size() > outer.size(); step = QFileInfo(step).path()) {
        if (isHiddenName(step))
            return true;
    }
    return false;
}

bool covers(const Location &outer, const Location &inner, const NestingRule &rule)
{
    if (!isInside(inner.path, outer.path))
        return false;
    const auto outerVolume = rule.volumeOf(outer.path);
    const auto innerVolume = rule.volumeOf(inner.path);
    if (!outerVolume || !innerVolume || *outerVolume != *innerVolume)
        return false;
    if (rule.skipHiddenFiles && hasHiddenStep(inner.path, outer.path))
        return false;
    const auto depth = inner.path.count(QLatin1Char('/')) - outer.path.count(QLatin1Char('/'));
    return !rule.depthLimit || depth < *rule.depthLimit;
}

} // namespace

bool isRegularLocation(const QString &path)
{
    struct stat status;
    if (lstat(pathBytes(path).constData(), &status) != 0)
        return true;
    return S_ISREG(status.st_mode);
}

std::optional<quint64> deviceOf(const QString &path)
{
    struct stat status;
    if (stat(pathBytes(path).constData(), &status) != 0)
        return std::nullopt;
    return quint64(status.st_dev);
}

bool isInside(const QString &inner, const QString &outer)
{
    return inner.size() > outer.size() && inner.startsWith(outer) &&
           (outer == QLatin1String("/") || inner.at(outer.size()) == QLatin1Char('/'));
}

bool applyNestingRule(QList<Location> &locations, const NestingRule &rule)
{
    // The live rows are checked, so a row switched off here no longer covers later ones.
    for (qsizetype a = 0; a < locations.size(); ++a) {
        if (!locations[a].enabled)
            continue;
        for (qsizetype b = 0; b < locations.size(); ++b) {
            if (b != a && locations[b].enabled && covers(locations[a], locations[b], rule))
                locations[b].enabled = false;
        }
    }
    return std::any_of(locations.begin(), locations.end(),
                       [](const Location &l) { return l.enabled && l.regular; });
}

bool toggleTogether(QList<Location> &locations, QList<int> rows)
{
    std::sort(rows.begin(), rows.end(), std::greater<>());
    std::optional<bool> newState;
    for (int row : rows) {
        if (row < 0 || row >= locations.size())
            continue;
        if (!newState)
            newState = !locations[row].enabled;
        locations[row].enabled = *newState;
    }
    return newState.has_value();
}

QList<int> mergeLocations(QList<Location> &locations, const QStringList &paths, bool enabled)
{
    QList<int> touched;
    for (const QString &path : paths) {
        if (path.isEmpty() || !QDir::isAbsolutePath(path))
            continue;
        const QString clean = QDir::cleanPath(path);
        auto it = std::find_if(locations.begin(), locations.end(),
                               [&](const Location &l) { return l.path == clean; });
        if (it != locations.end()) {
            it->enabled = enabled;
            touched.append(int(it - locations.begin()));
        } else {
            locations.append({clean, enabled, isRegularLocation(clean)});
            touched.append(int(locations.size() - 1));
        }
    }
    return touched;
}

void saveLocations(const QList<Location> &locations, Settings &settings)
{
    QList<QVariantMap> records;
    for (const Location &l : locations)
        records.append(
            {{QStringLiteral("path"), Settings::pathValue(l.path)}, {QStringLiteral("enabled"), l.enabled}});
    settings.setRecordList(key::searchLocations, records);
}

QList<Location> loadLocations(const Settings &settings)
{
    QList<Location> locations;
    for (const QVariantMap &record : settings.recordList(key::searchLocations)) {
        const QString path = Settings::pathFrom(record.value(QStringLiteral("path")));
        if (!pathExists(path))
            continue;
        mergeLocations(locations, {path}, record.value(QStringLiteral("enabled")).toBool());
    }
    return locations;
}

} // namespace selfsame
