#pragma once

#include <QList>
#include <QRegularExpression>
#include <QString>
#include <functional>
#include <optional>

namespace selfsame
{

// The name of the result list's name column as a sort key.
inline constexpr QLatin1String kSortByNameKeyPath("URL.path.lastPathComponent.lowercaseString");

// How the file-name mode, and the result lists sorting by name in that mode, order names.
struct FilenameSortKey {
    QString keyPath;
    // The text compared for a key value, by plain string order; equal texts are duplicates.
    std::function<QString(const QString &keyValue)> comparable;

    QString keyValue(const QString &path) const;
    int compare(const QString &keyValueA, const QString &keyValueB) const
    {
        return comparable(keyValueA).compare(comparable(keyValueB));
    }
};

// With suffix expressions (even none), names are compared lower-cased without the longest
// matching suffix (and without their extension when asked); otherwise lower-cased, with or
// without the extension.
FilenameSortKey
getFilenameSortKey(bool filenameIgnoreExtension,
                   const std::optional<QList<QRegularExpression>> &filenameIgnoreCommonSuffixRegexes);

// The name without its extension (when asked) and without the longest suffix that any of the
// end-anchored expressions matches.
QString removePathExtension(bool removeExtension, const QList<QRegularExpression> &suffixRegexes,
                            const QString &name);

} // namespace selfsame
