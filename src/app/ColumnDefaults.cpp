#include "ColumnDefaults.h"

#include "results/ListColumns.h"

#include <QHash>

namespace selfsame {

QStringList defaultColumnOrder()
{
    QStringList order{QStringLiteral("name"), QStringLiteral("size"), QStringLiteral("dupes"), QStringLiteral("similarity"),
                      QStringLiteral("clone"), QStringLiteral("spotlight"), QStringLiteral("duration"), QStringLiteral("path"),
                      QStringLiteral("folder"), QStringLiteral("extension"), QStringLiteral("modified")};
    for (const QString &column : listColumnIdentifiers())
        if (!order.contains(column)) order.append(column);
    return order;
}

int defaultColumnWidth(const QString &column)
{
    static const QHash<QString, int> widths{
        {QStringLiteral("name"), 230},     {QStringLiteral("size"), 80},      {QStringLiteral("dupes"), 80},
        {QStringLiteral("clone"), 120},    {QStringLiteral("path"), 200},     {QStringLiteral("folder"), 110},
        {QStringLiteral("extension"), 60}, {QStringLiteral("modified"), 150}, {QStringLiteral("duration"), 80},
        {QStringLiteral("similarity"), 80},
    };
    return widths.value(column, 120);
}

QStringList columnsLeftEmpty(const QList<ResultItem *> &items)
{
    bool created = false, added = false, lastUsed = false, tags = false;
    for (const ResultItem *item : items) {
        created = created || item->created != kNoDate;
        added = added || item->addedDate() != kNoDate;
        lastUsed = lastUsed || item->lastUsed != kNoDate;
        tags = tags || !item->tagList().isEmpty();
        if (created && added && lastUsed && tags) break;
    }
    QStringList empty;
    if (!created) empty.append(QStringLiteral("created"));
    if (!lastUsed) empty.append(QStringLiteral("lastUsed"));
    if (!added) empty.append(QStringLiteral("addedDate"));
    if (!tags) empty.append(QStringLiteral("tags"));
    return empty;
}

} // namespace selfsame
