#include "LocationsModel.h"

#include "LocalFiles.h"
#include "names/FileNames.h"

#include <algorithm>

namespace selfsame {

LocationsModel::LocationsModel(Settings &settings, std::function<NestingRule()> currentRule, QObject *parent)
    : QAbstractTableModel(parent), m_settings(settings), m_currentRule(std::move(currentRule))
{
}

QStringList LocationsModel::enabledPaths() const
{
    QStringList paths;
    for (const Location &l : m_locations) {
        if (l.enabled)
            paths.append(l.path);
    }
    return paths;
}

void LocationsModel::load()
{
    beginResetModel();
    m_locations = loadLocations(m_settings);
    endResetModel();
    refresh(false);
}

QList<int> LocationsModel::addPaths(const QStringList &paths, bool enabled, bool needsSaving)
{
    // Rows are appended, never reset, so that the selection survives.
    QList<Location> merged = m_locations;
    const QList<int> touched = mergeLocations(merged, paths, enabled);
    if (merged.size() > m_locations.size()) {
        beginInsertRows({}, int(m_locations.size()), int(merged.size()) - 1);
        m_locations = std::move(merged);
        endInsertRows();
    } else {
        m_locations = std::move(merged);
    }
    refresh(needsSaving);
    return touched;
}

void LocationsModel::removeLocations(QList<int> rows)
{
    std::sort(rows.begin(), rows.end(), std::greater<>());
    rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
    for (int row : rows) {
        if (row < 0 || row >= m_locations.size())
            continue;
        beginRemoveRows({}, row, row);
        m_locations.removeAt(row);
        endRemoveRows();
    }
    refresh(true);
}

void LocationsModel::toggleTogether(const QList<int> &rows)
{
    if (selfsame::toggleTogether(m_locations, rows))
        refresh(true);
}

void LocationsModel::refresh(bool needsSaving)
{
    Q_EMIT singleFileEnabledChanged(applyNestingRule(m_locations, m_currentRule()));
    if (!m_locations.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(int(m_locations.size()) - 1, NameColumn));
    if (needsSaving)
        saveLocations(m_locations, m_settings);
}

int LocationsModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_locations.size());
}

int LocationsModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : 2;
}

QVariant LocationsModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_locations.size())
        return {};
    const Location &location = m_locations[index.row()];
    if (role == Qt::ToolTipRole)
        return displayPath(location.path);
    if (index.column() == CheckboxColumn)
        return role == Qt::CheckStateRole ? QVariant(location.enabled ? Qt::Checked : Qt::Unchecked)
                                          : QVariant();
    switch (role) {
    case Qt::DisplayRole:
        return displayName(location.path);
    case Qt::DecorationRole:
        return iconFor(location.path);
    default:
        return {};
    }
}

bool LocationsModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != CheckboxColumn || role != Qt::CheckStateRole)
        return false;
    m_locations[index.row()].enabled = value.toInt() == Qt::Checked;
    refresh(true);
    return true;
}

Qt::ItemFlags LocationsModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags f = QAbstractTableModel::flags(index) | Qt::ItemIsDropEnabled;
    if (index.column() == CheckboxColumn)
        f |= Qt::ItemIsUserCheckable;
    return f;
}

QIcon LocationsModel::iconFor(const QString &path) const
{
    auto it = m_icons.find(path);
    if (it == m_icons.end())
        it = m_icons.insert(path, pathIcon(m_iconProvider, path));
    return *it;
}

} // namespace selfsame
