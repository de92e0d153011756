#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>

namespace selfsame {

class Settings;

// One row of the search locations.
struct Location {
    QString path;         // absolute
    bool enabled = true;  // takes part in the next search
    bool regular = false; // a single file rather than a folder (or its status could not be read)
};

// Whether a path is a single file: not a folder, without following a symbolic link; true when
// the status cannot be read.
bool isRegularLocation(const QString &path);

struct NestingRule {
    bool skipHiddenFiles = true;
    std::optional<int> depthLimit; // the folder-depth field, when the limit is on
    // The volume that holds a path; none when it cannot be read.
    std::function<std::optional<quint64>(const QString &)> volumeOf;
};

// The volume of a path as its device number.
std::optional<quint64> deviceOf(const QString &path);

// Whether `inner` lies below `outer`.
bool isInside(const QString &inner, const QString &outer);

// Switches off every enabled location that the search of another enabled location would
// already reach: below it, on the same volume, not behind a hidden step and within the depth
// limit. Returns whether a single file is among the enabled locations afterwards.
bool applyNestingRule(QList<Location> &locations, const NestingRule &rule);

// Space on several rows: the last row decides, every row gets the opposite of its state.
// Returns false when there was no row.
bool toggleTogether(QList<Location> &locations, QList<int> rows);

// Adds the paths, or sets the enabled flag of those already listed. Returns the touched rows.
QList<int> mergeLocations(QList<Location> &locations, const QStringList &paths, bool enabled);

void saveLocations(const QList<Location> &locations, Settings &settings);
// Locations whose path no longer exists are dropped.
QList<Location> loadLocations(const Settings &settings);

} // namespace selfsame
