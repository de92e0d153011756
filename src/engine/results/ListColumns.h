#pragma once

#include "results/ListSort.h"
#include "results/ResultItem.h"
#include "search/SearchRequest.h"

#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

namespace selfsame
{

// The columns of both result lists, in their initial order; each identifier is also the key
// or the kind of value the column shows.
const QStringList &listColumnIdentifiers();

// Columns that make no sense in a detection mode; the user cannot show them.
QStringList modeHiddenColumns(DetectionMode mode, const QString &spotlightAttribute);

// The sort key a click on the column sorts by.
QString columnSortKey(const QString &column);

// The columns whose cells hold a date, shown with less detail as the column narrows.
bool isDateColumn(const QString &column);
// The date a date column shows, or nothing.
std::optional<qint64> cellDate(const ResultItem &item, const QString &column);

// The text of a cell of any column but the date columns and "tags".
QString cellText(const ResultItem &item, const QString &column, const QString &spotlightAttribute);

// "1023 bps", "1 kbps", "1.0 Mbps"; empty below 1.
QString bitrateText(double bitsPerSecond);
// A similarity of 0–100 as the lists show it, "97 %"; empty when there is none (NaN).
QString similarityText(double percent);
// The word of the status column: "selected", "hard link", "clone", "other volume", "duplicate".
QString cloneStatusWord(int status);

// A row tall enough for the font (its size + 4) and for the icons.
int listRowHeight(int fontSize, int thumbnailSize);

// The column that type-to-select searches: the sort column when it holds text, else "name".
QString typeSelectColumn(const std::optional<SortDescriptor> &sort);

// The map pages that show a location: the desktop's own map service, Google Maps and
// OpenStreetMap, at zoom 16.
QStringList mapServiceURLs(double latitude, double longitude);

} // namespace selfsame
