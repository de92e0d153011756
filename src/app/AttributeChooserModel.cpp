#include "AttributeChooserModel.h"

#include "attributes/AttributeTypes.h"

namespace selfsame {

AttributeChooserModel::AttributeChooserModel(QStringList &editedList, QObject *parent)
    : QAbstractTableModel(parent), m_edited(editedList)
{
}

void AttributeChooserModel::setRows(const QList<AttributeRow> &rows)
{
    beginResetModel();
    m_rows = rows;
    endResetModel();
}

void AttributeChooserModel::setOffered(const QString &key, bool offered)
{
    // New attributes go to the top of the pop-up.
    if (offered && !m_edited.contains(key))
        m_edited.prepend(key);
    else if (!offered)
        m_edited.removeAll(key);
}

void AttributeChooserModel::toggleTogether(const QList<int> &rows)
{
    if (rows.isEmpty())
        return;
    const bool offer = !m_edited.contains(keyAt(rows.first()));
    for (int row : rows)
        setOffered(keyAt(row), offer);
    Q_EMIT dataChanged(index(0, MenuColumn), index(rowCount() - 1, MenuColumn));
}

int AttributeChooserModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : int(m_rows.size());
}

int AttributeChooserModel::columnCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : ColumnCount;
}

QVariant AttributeChooserModel::data(const QModelIndex &index, int role) const
{
    if (!index.isValid() || index.row() >= m_rows.size())
        return {};
    const AttributeRow &row = m_rows[index.row()];
    if (index.column() == MenuColumn)
        return role == Qt::CheckStateRole ? QVariant(m_edited.contains(row.key) ? Qt::Checked : Qt::Unchecked)
                                          : QVariant();
    if (role == Qt::ToolTipRole && index.column() == DescriptionColumn)
        return row.record.description;
    if (role != Qt::DisplayRole)
        return {};
    switch (index.column()) {
    case KeyColumn:
        return row.key;
    case NameColumn:
        return row.record.name;
    case DescriptionColumn:
        return row.record.description;
    case TypeColumn:
        return attributeTypeName(row.record.type);
    default:
        return {};
    }
}

bool AttributeChooserModel::setData(const QModelIndex &index, const QVariant &value, int role)
{
    if (!index.isValid() || index.column() != MenuColumn || role != Qt::CheckStateRole)
        return false;
    setOffered(keyAt(index.row()), value.toInt() == Qt::Checked);
    Q_EMIT dataChanged(index, index);
    Q_EMIT ticked();
    return true;
}

Qt::ItemFlags AttributeChooserModel::flags(const QModelIndex &index) const
{
    Qt::ItemFlags f = QAbstractTableModel::flags(index);
    if (index.column() == MenuColumn)
        f |= Qt::ItemIsUserCheckable;
    return f;
}

QVariant AttributeChooserModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return {};
    switch (section) {
    case MenuColumn:
        return tr("In Menu");
    case KeyColumn:
        return tr("Key");
    case NameColumn:
        return tr("Name");
    case DescriptionColumn:
        return tr("Description");
    case TypeColumn:
        return tr("Type");
    default:
        return {};
    }
}

} // namespace selfsame
