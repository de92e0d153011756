#pragma once

#include <QList>
#include <QStringList>
#include <QTableView>

class QMenu;

namespace selfsame {

class LocationsModel;

// The table of search locations: keys, drops from the file manager and the context menu.
class LocationsView : public QTableView {
    Q_OBJECT
public:
    explicit LocationsView(QWidget *parent = nullptr);

    void setLocationsModel(LocationsModel *model);
    // The menu shown on a right click; its actions act on targetRows().
    void setContextMenu(QMenu *menu) { m_contextMenu = menu; }

    // The clicked row when a context menu is open on a row outside the selection, else the
    // selected rows.
    QList<int> targetRows() const;
    void selectRows(const QList<int> &rows);

Q_SIGNALS:
    void deleteRequested();
    void searchRequested();
    void pathsDropped(const QStringList &paths);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

private:
    LocationsModel *m_model = nullptr;
    QMenu *m_contextMenu = nullptr;
    int m_clickedRow = -1;
};

} // namespace selfsame
