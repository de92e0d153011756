// The columns of a results window's lists, their layout, icon and font sizes.
#include "Dupes.h"

#include "ColumnDefaults.h"
#include "DupesSettingsKeys.h"
#include "ItemIcons.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "Settings.h"
#include "results/ListColumns.h"

#include <QHeaderView>
#include <QScopedValueRollback>

namespace selfsame {

bool Dupes::isColumnHidden(const QString &identifier) const
{
    return m_modeHiddenColumns.contains(identifier) || m_userHiddenColumns.contains(identifier) ||
           m_emptyColumns.contains(identifier);
}

void Dupes::changeListColumn(const QString &identifier, bool shown)
{
    if (shown) {
        m_userHiddenColumns.removeAll(identifier);
        m_emptyColumns.removeAll(identifier); // empty or not, the user wants to see it
    } else if (!m_userHiddenColumns.contains(identifier)) {
        m_userHiddenColumns.append(identifier);
    }
    m_settings.setValue(dupeskey::hiddenColumns, m_userHiddenColumns);
    updateListsLayout();
}

void Dupes::updateListsLayout()
{
    // Hiding columns resizes sections; only the user's own moves and resizes are remembered.
    const QScopedValueRollback layingOut(m_layingOutColumns, true);
    for (ResultListView *view : {m_mainList, m_cloneList})
        for (const QString &column : listColumnIdentifiers())
            view->setColumnHidden(view->resultModel()->columnOf(column), isColumnHidden(column));
    // The status of a row is relative to the top list's selection: the top list has none.
    m_mainList->setColumnHidden(m_mainModel->columnOf(QStringLiteral("clone")), true);
}

void Dupes::saveColumnLayouts()
{
    // The layout of an empty window while it searches says nothing.
    if (!m_finished || m_layingOutColumns) return;
    m_settings.setValue(dupeskey::mainListLayout, m_mainList->horizontalHeader()->saveState());
    m_settings.setValue(dupeskey::cloneListLayout, m_cloneList->horizontalHeader()->saveState());
}

void Dupes::restoreColumnLayouts()
{
    const std::pair<ResultListView *, QString> layouts[] = {{m_mainList, dupeskey::mainListLayout},
                                                            {m_cloneList, dupeskey::cloneListLayout}};
    for (const auto &[view, key] : layouts) {
        QHeaderView *header = view->horizontalHeader();
        const QStringList order = defaultColumnOrder();
        for (int visual = 0; visual < order.size(); ++visual) {
            const int logical = view->resultModel()->columnOf(order[visual]);
            header->moveSection(header->visualIndex(logical), visual);
            header->resizeSection(logical, defaultColumnWidth(order[visual]));
        }
        const QByteArray state = m_settings.value(key).toByteArray();
        if (!state.isEmpty()) header->restoreState(state);
    }
}

void Dupes::changeListSize(int thumbnailSize)
{
    m_icons.setSize(thumbnailSize);
    const int rowHeight = listRowHeight(QFontInfo(m_mainList->font()).pixelSize(), thumbnailSize);
    m_mainList->setRowHeight(rowHeight);
    m_cloneList->setRowHeight(rowHeight);
    m_mainList->setIconSize(QSize(thumbnailSize, thumbnailSize));
    m_cloneList->setIconSize(QSize(thumbnailSize, thumbnailSize));
    m_settings.setValue(dupeskey::resultListSize, thumbnailSize);
    m_mainList->viewport()->update();
    m_cloneList->viewport()->update();
}

void Dupes::changeListFontSize(int pointSize)
{
    for (ResultListView *view : {m_mainList, m_cloneList}) {
        QFont font = view->font();
        font.setPointSize(pointSize);
        view->setFont(font);
    }
    m_settings.setValue(dupeskey::listFontSize, pointSize);
    changeListSize(m_icons.size());
}

} // namespace selfsame
