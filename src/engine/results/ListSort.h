#pragma once

#include "results/ResultItem.h"
#include "search/SearchRequest.h"

#include <QList>
#include <QString>
#include <optional>

namespace selfsame
{

// The clicked column of a list: its sort key and direction.
struct SortDescriptor {
    QString key;
    bool ascending = true;
    bool operator==(const SortDescriptor &) const = default;
};

// Folders first (that are not packages), then extensions in plain order, items without
// one last; equal extensions by lower-cased name. Negated as a whole for a descending sort.
int compareExtensions(const ResultItem &a, const ResultItem &b, bool ascending);

// The pixels of a pixel size "W × H"; none for a text of another form.
std::optional<qint64> pixelCount(const QString &pixelSize);

// Pixel sizes "W × H" by their pixel count; texts of another form are equal to everything.
// The list sort itself orders "pixelSize" as text, as the column has always done.
int comparePixelSizes(const QString &a, const QString &b);

// The descriptors a click on `clicked` sorts by in the given mode: the clicked one and the
// secondary keys that keep groups and folders together.
QList<SortDescriptor> sortDescriptorsFor(const SortDescriptor &clicked, DetectionMode mode);

// Sorts in place, stably: by the extension comparison for "extension", else by each
// descriptor in turn, naturally for keys that begin with "URL.path".
void sortItems(QList<ResultItem *> &items, const SortDescriptor &clicked, DetectionMode mode);

// The key of the mode's group column: sorting the top list by it shows the groups.
QString groupColumnKey(DetectionMode mode);

} // namespace selfsame
