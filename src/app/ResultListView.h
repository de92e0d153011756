#pragma once

#include <QElapsedTimer>
#include <QTableView>

class QMenu;

namespace selfsame {

class ResultTableModel;

// A result list: uniform rows, sortable columns, rows that drag out as file URLs, and
// type-to-select on the column the list is sorted by.
class ResultListView : public QTableView {
    Q_OBJECT
public:
    explicit ResultListView(QWidget *parent = nullptr);

    ResultTableModel *resultModel() const;
    void setRowHeight(int pixels);
    // The row that type-to-select finds for `text`, searching from `start` (wrapping); -1 for none.
    int typeSelectMatch(const QString &text, int start) const;

Q_SIGNALS:
    // Space: show or hide the preview of the selected item.
    void previewRequested();
    // The context menu is about to open; receivers add their commands to `menu`.
    void contextMenuRequested(QMenu *menu);
    // The list gained the keyboard focus: it becomes the active list.
    void activated();

protected:
    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void keyboardSearch(const QString &search) override;
    void contextMenuEvent(QContextMenuEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void muteUnfocusedSelection();

    QString m_typed;
    QElapsedTimer m_lastTyped;
};

} // namespace selfsame
