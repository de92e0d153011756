#include "ResultTableModel.h"

#include "ActionSummary.h"
#include "ItemIcons.h"
#include "ResultsStatus.h"
#include "ListColours.h"
#include "names/FileNames.h"
#include "format/ByteSize.h"
#include "results/ListColumns.h"
#include "results/Reclaimable.h"

#include <QFont>
#include <QGuiApplication>

#include <QMimeData>
#include <QSet>
#include <QUrl>

namespace selfsame {

ResultTableModel::ResultTableModel(ResultModel &model, ResultList list, ItemIcons &icons, QObject *parent)
    : QAbstractTableModel(parent), m_model(model), m_list(list), m_icons(icons), m_columns(listColumnIdentifiers())
{
}

void ResultTableModel::setSpotlightAttribute(const QString &key, const QString &displayName)
{
    m_spotlightAttribute = key;
    m_spotlightTitle = displayName;
    const int column = columnOf(QStringLiteral("spotlight"));
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void ResultTableModel::setClusterTitle(bool cluster)
{
    m_clusterTitle = cluster;
    const int column = columnOf(QStringLiteral("dupes"));
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
}

void ResultTableModel::reload()
{
    beginResetModel();
    endResetModel();
}

void ResultTableModel::iconsChanged()
{
    if (rowCount() > 0) Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, 0), {Qt::DecorationRole});
}

int ResultTableModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_model.items(m_list).size());
}

int ResultTableModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_columns.size());
}

QVariant ResultTableModel::data(const QModelIndex &index, int role) const
{
    const ResultItem *item = this->item(index.row());
    if (!item) return {};
    const QString &column = m_columns[index.column()];
    switch (role) {
    case Qt::DisplayRole:
        if (isDateColumn(column)) return {};
        if (column == QLatin1String("clone")) {
            // A status is relative to the item selected in the top list: in the top list itself
            // it would be left over from an earlier selection.
            if (m_list == ResultList::Top) return {};
            // What a command made of the item says more than how it related to the selection.
            if (const QString acted = actedOnStatus(item->statusImage()); !acted.isEmpty()) return acted;
        }
        // Below, how alike each copy is to the selected item; above, to its group's first item.
        if (column == QLatin1String("similarity") && m_list == ResultList::Bottom)
            return similarityText(m_model.similarityToSelection(*item));
        // Names and folders keep their bytes for sorting and filtering; shown, those that are
        // not UTF-8 read \xFF.
        return displayPath(cellText(*item, column, m_spotlightAttribute));
    case DateRole:
        if (const std::optional<qint64> date = cellDate(*item, column)) return *date;
        return {};
    case TagsRole:
        return column == QLatin1String("tags") ? QVariant(item->tagList()) : QVariant();
    case GroupStartRole:
        return showsGroups() && index.row() > 0 && this->item(index.row() - 1)->group != item->group;
    case Qt::DecorationRole:
        if (index.column() == 0) return m_icons.icon(*item);
        return {};
    case Qt::BackgroundRole:
        if (column == QLatin1String("clone") && m_list == ResultList::Bottom && !isActedOn(*item)) {
            const QColor colour = cloneStatusColour(item->clone);
            if (colour.isValid()) return colour;
        }
        if (showsGroups()) return groupColour(item->has(AlternateColor), QGuiApplication::palette());
        return {};
    case Qt::ForegroundRole:
        // Moved away or replaced by a command, or changed since saved results were made: the
        // row stays for reference, greyed.
        if (isActedOn(*item) || item->has(Missing))
            return QGuiApplication::palette().color(QPalette::Disabled, QPalette::Text);
        // The status colours are light whatever the theme.
        if (column == QLatin1String("clone") && m_list == ResultList::Bottom && cloneStatusColour(item->clone).isValid())
            return QColor(Qt::black);
        return {};
    case Qt::FontRole:
        // In the bottom list, the row of the item selected above stands out from its copies.
        if (m_list == ResultList::Bottom && item->clone == SelectedItself) {
            QFont bold;
            bold.setBold(true);
            return bold;
        }
        return {};
    case Qt::ToolTipRole:
        if (item->has(Missing))
            return tr("%1\nChanged or gone since these results were saved").arg(displayPath(item->path));
        if (showsGroups()) return groupToolTip(*item);
        if (index.column() == 0 || column == QLatin1String("path") || column == QLatin1String("folder"))
            return displayPath(item->path);
        return {};
    case Qt::TextAlignmentRole:
        if (column == QLatin1String("size") || column == QLatin1String("duration") ||
            column == QLatin1String("bitrate") || column == QLatin1String("dupes") ||
            column == QLatin1String("similarity"))
            return int(Qt::AlignRight | Qt::AlignVCenter);
        return int(Qt::AlignLeft | Qt::AlignVCenter);
    default:
        return {};
    }
}

bool ResultTableModel::showsGroups() const
{
    return m_list == ResultList::Top && m_model.showGroups();
}

QString ResultTableModel::groupToolTip(const ResultItem &item) const
{
    return displayPath(item.path) + QLatin1Char('\n') + groupCaption(m_model.duplicatesFor(item));
}

QString ResultTableModel::title(const QString &column) const
{
    static const QHash<QString, const char *> titles{
        {QStringLiteral("name"), QT_TR_NOOP("Name")},
        {QStringLiteral("folder"), QT_TR_NOOP("Folder")},
        {QStringLiteral("path"), QT_TR_NOOP("Path")},
        {QStringLiteral("extension"), QT_TR_NOOP("Kind")},
        {QStringLiteral("size"), QT_TR_NOOP("Size")},
        {QStringLiteral("duration"), QT_TR_NOOP("Duration")},
        {QStringLiteral("latitude"), QT_TR_NOOP("Latitude")},
        {QStringLiteral("longitude"), QT_TR_NOOP("Longitude")},
        {QStringLiteral("spotlight"), QT_TR_NOOP("Attribute")},
        {QStringLiteral("pixelSize"), QT_TR_NOOP("Pixel Size")},
        {QStringLiteral("codecs"), QT_TR_NOOP("Codecs")},
        {QStringLiteral("bitrate"), QT_TR_NOOP("Bit Rate")},
        {QStringLiteral("modified"), QT_TR_NOOP("Modified")},
        {QStringLiteral("created"), QT_TR_NOOP("Created")},
        {QStringLiteral("lastUsed"), QT_TR_NOOP("Last Opened")},
        {QStringLiteral("addedDate"), QT_TR_NOOP("Date Added")},
        {QStringLiteral("attributes"), QT_TR_NOOP("Attributes Changed")},
        {QStringLiteral("tags"), QT_TR_NOOP("Tags")},
        {QStringLiteral("dupes"), QT_TR_NOOP("Duplicates")},
        {QStringLiteral("clone"), QT_TR_NOOP("Status")},
        {QStringLiteral("similarity"), QT_TR_NOOP("Similarity")},
    };
    if (column == QLatin1String("spotlight") && !m_spotlightTitle.isEmpty()) return m_spotlightTitle;
    if (column == QLatin1String("dupes") && m_clusterTitle) return tr("Cluster Size");
    return tr(titles.value(column));
}

QVariant ResultTableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || section < 0 || section >= m_columns.size()) return {};
    if (role == Qt::DisplayRole) return title(m_columns[section]);
    if (role == Qt::ToolTipRole) {
        const QString &column = m_columns[section];
        if (column == QLatin1String("dupes") && m_clusterTitle)
            return tr("Items whose values lie within the tolerance of each other, counted around the first "
                      "item of each cluster.");
        if (column == QLatin1String("similarity"))
            return m_list == ResultList::Top ? tr("How alike each item is to the first item of its group.")
                                             : tr("How alike each copy is to the item selected above.");
        if (column == QLatin1String("clone"))
            return tr("How each duplicate relates to the selected item: the item itself, a hard link of it, "
                      "a clone sharing its storage, a copy on another volume, or a proven duplicate.");
    }
    return {};
}

Qt::ItemFlags ResultTableModel::flags(const QModelIndex &index) const
{
    if (!index.isValid()) return Qt::NoItemFlags;
    return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren;
}

void ResultTableModel::sort(int column, Qt::SortOrder order)
{
    if (column < 0 || column >= m_columns.size()) return;
    beginResetModel();
    m_model.setSortDescriptor(m_list, SortDescriptor{columnSortKey(m_columns[column]), order == Qt::AscendingOrder});
    endResetModel();
    Q_EMIT resorted();
}

QStringList ResultTableModel::mimeTypes() const
{
    return {QStringLiteral("text/uri-list")};
}

QMimeData *ResultTableModel::mimeData(const QModelIndexList &indexes) const
{
    QList<QUrl> urls;
    QSet<int> rows;
    for (const QModelIndex &index : indexes)
        if (!rows.contains(index.row()) && item(index.row())) {
            rows.insert(index.row());
            urls.append(fileUrl(item(index.row())->path));
        }
    auto *data = new QMimeData;
    data->setUrls(urls);
    return data;
}

} // namespace selfsame
