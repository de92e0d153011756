#pragma once

#include "AttributeFilter.h"

#include <QAbstractTableModel>
#include <QStringList>

namespace selfsame {

// The chooser's table: whether each attribute is offered in the pop-up (ticked in the
// edited list), its key, name, description and type.
class AttributeChooserModel : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { MenuColumn, KeyColumn, NameColumn, DescriptionColumn, TypeColumn, ColumnCount };

    // The edited active list, owned by the attribute manager, which ticks change.
    explicit AttributeChooserModel(QStringList &editedList, QObject *parent = nullptr);

    void setRows(const QList<AttributeRow> &rows);
    QString keyAt(int row) const { return m_rows.value(row).key; }
    // Space on several rows: the first row decides whether all are offered or none is.
    void toggleTogether(const QList<int> &rows);

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    bool setData(const QModelIndex &index, const QVariant &value, int role) override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

Q_SIGNALS:
    // A check box was ticked or cleared by the user.
    void ticked();

private:
    void setOffered(const QString &key, bool offered);

    QStringList &m_edited;
    QList<AttributeRow> m_rows;
};

} // namespace selfsame
