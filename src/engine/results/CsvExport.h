#pragma once

#include "results/ResultItem.h"

#include <QByteArray>
#include <QList>
#include <QString>

namespace selfsame {

// A list column to export: its identifier ("name", "size", "modified", … as the lists name
// them) and the title of its header.
struct CsvColumn {
    QString identifier;
    QString title;
};

// The text a cell of a column holds in an export: what the list shows, except that dates
// are ISO 8601 in UTC and sizes and counts whole numbers, which spreadsheets read back exactly.
// `spotlightAttribute` is the attribute the "spotlight" column holds.
QString exportedCellText(const ResultItem &item, const QString &column, const QString &spotlightAttribute);

// The items as CSV (RFC 4180, UTF-8): a header of the column titles, then one row per item
// with the columns in the given order. Invalid bytes of names show as \xFF; when any item's
// path is not UTF-8, a last column "pathBytes" holds such paths' exact bytes in base64.
QByteArray exportCsv(const QList<const ResultItem *> &items, const QList<CsvColumn> &columns,
                     const QString &spotlightAttribute);

} // namespace selfsame
