#include "results/CsvExport.h"

#include "format/IsoDate.h"
#include "names/FileNames.h"
#include "results/ListColumns.h"

#include <QDateTime>

#include <algorithm>

namespace selfsame {

namespace {

void appendField(QByteArray &out, const QString &text)
{
    QByteArray field = displayPath(text).toUtf8(); // a name that is not UTF-8 shows its bytes as \xFF
    if (field.contains(',') || field.contains('"') || field.contains('\n') || field.contains('\r'))
        field = '"' + field.replace("\"", "\"\"") + '"';
    out += field;
}

} // namespace

QString exportedCellText(const ResultItem &item, const QString &column, const QString &spotlightAttribute)
{
    if (isDateColumn(column)) {
        const std::optional<qint64> date = cellDate(item, column);
        return date ? QString::fromLatin1(isoDate(*date)) : QString();
    }
    if (column == QLatin1String("spotlight") && item.spotlight().typeId() == QMetaType::QDateTime)
        return QString::fromLatin1(isoDate(item.spotlight().toDateTime().toSecsSinceEpoch()));
    if (column == QLatin1String("size")) return QString::number(item.size);
    if (column == QLatin1String("dupes")) return QString::number(item.dupes);
    if (column == QLatin1String("tags")) return item.tagList().join(QLatin1String(", "));
    return cellText(item, column, spotlightAttribute);
}

QByteArray exportCsv(const QList<const ResultItem *> &items, const QList<CsvColumn> &columns,
                     const QString &spotlightAttribute)
{
    // Names that are not UTF-8 cannot be text: a last column then gives their exact bytes.
    const bool withBytes =
        std::any_of(items.begin(), items.end(), [](const ResultItem *item) { return hasInvalidBytes(item->path); });
    QByteArray out;
    auto row = [&](auto cellText, const QByteArray &last) {
        for (qsizetype c = 0; c < columns.size(); ++c) {
            if (c > 0) out += ',';
            appendField(out, cellText(columns[c]));
        }
        if (withBytes) out += ',' + last;
        out += "\r\n";
    };
    row([](const CsvColumn &column) { return column.title; }, "pathBytes");
    for (const ResultItem *item : items)
        row([&](const CsvColumn &column) { return exportedCellText(*item, column.identifier, spotlightAttribute); },
            hasInvalidBytes(item->path) ? pathBytes(item->path).toBase64() : QByteArray());
    return out;
}

} // namespace selfsame
