#pragma once

#include "results/ResultModel.h"

#include <QAbstractTableModel>
#include <QStringList>

namespace selfsame {

class ItemIcons;

// One of the two result lists as a table: rows are the engine model's items of that list (by
// pointer, never copied), columns the list columns; cell texts are made when a row is drawn.
class ResultTableModel : public QAbstractTableModel {
    Q_OBJECT
public:
    // The value of a date cell: seconds since 1970 (absent dates give no value).
    static constexpr int DateRole = Qt::UserRole + 1;
    // The tags of a "tags" cell, as a string list.
    static constexpr int TagsRole = Qt::UserRole + 2;
    // True on the first row of each group after the first, while the top list shows groups.
    static constexpr int GroupStartRole = Qt::UserRole + 3;

    ResultTableModel(ResultModel &model, ResultList list, ItemIcons &icons, QObject *parent = nullptr);

    ResultList list() const { return m_list; }
    ResultItem *item(int row) const { return m_model.items(m_list).value(row); }
    int columnOf(const QString &identifier) const { return int(m_columns.indexOf(identifier)); }
    QString columnIdentifier(int column) const { return m_columns.value(column); }

    // Titles that depend on the search: the compared attribute's name, and "Cluster Size" for
    // the "dupes" column when groups are ranges around each item.
    void setSpotlightAttribute(const QString &key, const QString &displayName);
    void setClusterTitle(bool cluster);

    // After the engine's list changed (new results, filter, actions, re-sort).
    void reload();
    // Icons changed: redraws the rows on screen without resetting anything.
    void iconsChanged();

    int rowCount(const QModelIndex &parent = {}) const override;
    int columnCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    void sort(int column, Qt::SortOrder order) override;

    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::DropActions supportedDragActions() const override { return Qt::CopyAction | Qt::LinkAction; }

Q_SIGNALS:
    // The engine re-sorted the list; the view selects the engine's selection again.
    void resorted();

private:
    QString title(const QString &column) const;
    bool showsGroups() const;
    QString groupToolTip(const ResultItem &item) const;

    ResultModel &m_model;
    ResultList m_list;
    ItemIcons &m_icons;
    QStringList m_columns;
    QString m_spotlightAttribute;
    QString m_spotlightTitle;
    bool m_clusterTitle = false;
};

} // namespace selfsame
