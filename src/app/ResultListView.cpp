#include "ResultListView.h"

#include "ResultTableModel.h"
#include "results/ListColumns.h"
#include "results/ResultFilter.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>

namespace selfsame {

ResultListView::ResultListView(QWidget *parent) : QTableView(parent)
{
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setSortingEnabled(true);
    setShowGrid(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideMiddle);
    setDragEnabled(true);
    setDragDropMode(DragOnly);
    setDefaultDropAction(Qt::CopyAction);
    setHorizontalScrollMode(ScrollPerPixel);
    // Tab leaves the list, so that the keyboard reaches the other list and the filter bar.
    setTabKeyNavigation(false);
    muteUnfocusedSelection();
    verticalHeader()->hide();
    // Fixed, equal rows: the view never measures a row, whatever the number of items.
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsMovable(true);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setContextMenuPolicy(Qt::CustomContextMenu);
    horizontalHeader()->setSortIndicatorShown(true);
}

void ResultListView::muteUnfocusedSelection()
{
    // The selection of the list without the focus is drawn in a muted grey, apart from the
    // group bands: the strong highlight is always on the rows that the commands act on.
    QPalette colours = QApplication::palette(this);
    const QColor text = colours.color(QPalette::Active, QPalette::Text);
    const QColor base = colours.color(QPalette::Active, QPalette::Base);
    const QColor muted = QColor::fromRgbF(float(base.redF() * 0.72 + text.redF() * 0.28),
                                          float(base.greenF() * 0.72 + text.greenF() * 0.28),
                                          float(base.blueF() * 0.72 + text.blueF() * 0.28));
    colours.setColor(QPalette::Inactive, QPalette::Highlight, muted);
    colours.setColor(QPalette::Inactive, QPalette::HighlightedText, text);
    // Setting the palette is itself a palette change: only a new one is set.
    if (colours != palette()) setPalette(colours);
}

bool ResultListView::event(QEvent *event)
{
    // A new desktop theme brings new colours to mute.
    if (event->type() == QEvent::ApplicationPaletteChange || event->type() == QEvent::PaletteChange)
        muteUnfocusedSelection();
    return QTableView::event(event);
}

ResultTableModel *ResultListView::resultModel() const
{
    return static_cast<ResultTableModel *>(model());
}

void ResultListView::setRowHeight(int pixels)
{
    verticalHeader()->setMinimumSectionSize(1);
    verticalHeader()->setDefaultSectionSize(pixels);
}

void ResultListView::keyPressEvent(QKeyEvent *event)
{
    const bool plainSpace = event->key() == Qt::Key_Space &&
                            !(event->modifiers() & (Qt::ShiftModifier | Qt::AltModifier | Qt::ControlModifier));
    // A blank while typing a name is part of the name; on its own it shows the preview.
    if (plainSpace && (m_typed.isEmpty() || m_lastTyped.elapsed() > QApplication::keyboardInputInterval())) {
        Q_EMIT previewRequested();
        return;
    }
    QTableView::keyPressEvent(event);
}

void ResultListView::keyboardSearch(const QString &search)
{
    if (search.isEmpty()) return;
    if (!m_lastTyped.isValid() || m_lastTyped.elapsed() > QApplication::keyboardInputInterval()) m_typed.clear();
    m_lastTyped.start();
    m_typed += search;
    if (m_typed == QLatin1String(" ")) return;
    const int current = currentIndex().isValid() ? currentIndex().row() : 0;
    // A new search starts after the current row; a longer text first tries the current row.
    const int row = typeSelectMatch(m_typed, m_typed.size() == 1 ? current + 1 : current);
    if (row < 0) return;
    const QModelIndex index = model()->index(row, 0);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    scrollTo(index);
}

int ResultListView::typeSelectMatch(const QString &text, int start) const
{
    ResultTableModel *model = resultModel();
    const int rows = model ? model->rowCount() : 0;
    if (rows == 0 || text.isEmpty()) return -1;
    const std::optional<SortDescriptor> sort =
        horizontalHeader()->sortIndicatorSection() >= 0
            ? std::optional(SortDescriptor{columnSortKey(model->columnIdentifier(horizontalHeader()->sortIndicatorSection())),
                                           true})
            : std::nullopt;
    const int column = model->columnOf(typeSelectColumn(sort));
    const QString wanted = foldedForFilter(text);
    start = std::clamp(start, 0, rows - 1);
    for (int i = 0; i < rows; ++i) {
        const int row = (start + i) % rows;
        const QString shown = model->data(model->index(row, column), Qt::DisplayRole).toString();
        if (foldedForFilter(shown.left(wanted.size() + 4)).startsWith(wanted)) return row;
    }
    return -1;
}

void ResultListView::contextMenuEvent(QContextMenuEvent *event)
{
    QMenu menu(this);
    Q_EMIT contextMenuRequested(&menu);
    if (!menu.isEmpty()) menu.exec(event->globalPos());
}

void ResultListView::focusInEvent(QFocusEvent *event)
{
    QTableView::focusInEvent(event);
    Q_EMIT activated();
}

} // namespace selfsame
