#include "LocationsView.h"

#include "LocalFiles.h"
#include "LocationsModel.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <algorithm>

namespace selfsame {

LocationsView::LocationsView(QWidget *parent) : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setShowGrid(false);
    setWordWrap(false);
    setAcceptDrops(true);
    viewport()->setAcceptDrops(true);
    setDropIndicatorShown(false);
    setDragDropMode(DropOnly);
    setEditTriggers(NoEditTriggers);
    setTextElideMode(Qt::ElideMiddle);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
}

void LocationsView::setLocationsModel(LocationsModel *model)
{
    m_model = model;
    setModel(model);
    horizontalHeader()->setSectionResizeMode(LocationsModel::CheckboxColumn, QHeaderView::ResizeToContents);
    horizontalHeader()->setSectionResizeMode(LocationsModel::NameColumn, QHeaderView::Stretch);
}

QList<int> LocationsView::targetRows() const
{
    QList<int> rows;
    for (const QModelIndex &index : selectionModel()->selectedRows())
        rows.append(index.row());
    if (m_clickedRow >= 0 && !rows.contains(m_clickedRow))
        return {m_clickedRow};
    std::sort(rows.begin(), rows.end());
    return rows;
}

void LocationsView::selectRows(const QList<int> &rows)
{
    if (rows.isEmpty())
        return;
    QItemSelection selection;
    for (int row : rows)
        selection.select(model()->index(row, 0), model()->index(row, model()->columnCount() - 1));
    selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    selectionModel()->setCurrentIndex(model()->index(rows.first(), LocationsModel::NameColumn),
                                      QItemSelectionModel::NoUpdate);
    scrollTo(model()->index(rows.last(), 0));
    scrollTo(model()->index(rows.first(), 0));
}

void LocationsView::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Delete:
    case Qt::Key_Backspace:
        Q_EMIT deleteRequested();
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT searchRequested();
        return;
    case Qt::Key_Space:
        if (m_model)
            m_model->toggleTogether(targetRows());
        return;
    default:
        QTableView::keyPressEvent(event);
    }
}

void LocationsView::contextMenuEvent(QContextMenuEvent *event)
{
    if (!m_contextMenu)
        return;
    m_clickedRow = rowAt(event->pos().y());
    m_contextMenu->exec(event->globalPos());
    m_clickedRow = -1;
}

void LocationsView::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void LocationsView::dragMoveEvent(QDragMoveEvent *event)
{
    // Wherever the drop lands, the items are appended at the end.
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void LocationsView::dropEvent(QDropEvent *event)
{
    const QStringList paths = localPaths(event->mimeData()->urls());
    event->acceptProposedAction();
    if (!paths.isEmpty())
        Q_EMIT pathsDropped(paths);
}

QItemSelectionModel::SelectionFlags LocationsView::selectionCommand(const QModelIndex &index,
                                                                    const QEvent *event) const
{
    // Ticking a check box leaves the selection alone.
    if (event && index.column() == LocationsModel::CheckboxColumn &&
        (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonRelease))
        return QItemSelectionModel::NoUpdate;
    return QTableView::selectionCommand(index, event);
}

} // namespace selfsame
