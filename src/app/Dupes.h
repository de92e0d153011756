#pragma once

#include "ItemIcons.h"
#include "ResultActionsWiring.h"
#include "ResultsStatus.h"
#include "results/ResultModel.h"
#include "search/DuplicateSearch.h"

#include <QMainWindow>

class QLabel;
class QMimeData;
class QMenu;
class QProgressBar;
class QPushButton;
class QToolBar;

namespace selfsame {

class FilterBar;
class OverviewWindow;
class PreviewPane;
class ResultListView;
class ResultTableModel;
class Settings;

// A results window: runs one search (or shows finished results) in two linked lists, the
// top list of every item and the bottom list of the selected item's duplicates, with the
// filter bar above them, the status line and the path of the selected item below them.
//
// File actions plug in from outside: they work on resultModel(), put their commands into
// actionsMenu(), actionsToolBar() and the lists' context menus (contextMenuAboutToShow), mark
// changed items with setStatusImage() and call modelDidChange() once the items have changed.
class Dupes : public QMainWindow {
    Q_OBJECT
public:
    explicit Dupes(Settings &settings, QWidget *parent = nullptr);
    ~Dupes() override;

    // Starts a search; the lists fill when it is done.
    void searchInFolderURLs(const SearchRequest &request);
    // Copies of the request's single files are looked for on the volumes of these locations.
    void setSingleFileScopeVolumesOf(const QStringList &locations)
    {
        m_search.setSingleFileScopeVolumesOf(locations);
    }
    // Shows results that are already complete, without a search.
    void showFinishedResults(QList<ResultItem> items, const SearchRequest &request);
    // Shows saved results as they were saved: the same lists, hidden items and marks of what
    // was done to items; items whose file changed or vanished since are shown as missing.
    void showSavedResults(ResultModel model, const QString &file);
    // Saves every item, the hidden ones too, with the search request. Returns an error
    // message, empty on success.
    QString saveResults(const QString &path);
    // Writes the visible rows of the top list as CSV, with its visible columns in their order.
    QString exportTopList(const QString &path) const;

    // Selects and shows the visible item with this path; false when the results do not hold it.
    bool selectAndRevealInTopList(const QString &path);

    // A drag over the window: refused when it comes from the window's own lists, else shown
    // with the drop indicator. A drop of exactly one file reveals it; false for any other drop.
    bool draggingEntered(const QMimeData *data, const QObject *source);
    bool performDragOperation(const QMimeData *data);

    ResultModel &resultModel() { return m_model; }
    const ResultModel &resultModel() const { return m_model; }

    QMenu *actionsMenu() const { return m_actionsMenu; }
    QToolBar *actionsToolBar() const { return m_actionsToolBar; }
    // The list that has (or last had) the keyboard focus; an empty bottom list counts as the top.
    ResultList activeList() const;
    // The items the commands of the active list apply to: its selected items in row order.
    QList<ResultItem *> targetItems() const;
    // Marks an item with the state badge of what an action did to it ("trashed", "deleted",
    // "cloned", "hard linked", "aliased").
    void setStatusImage(const ResultItem *item, const QString &name);

    // The file commands and the automatic selection of this window.
    const ResultActions &resultActions() const { return m_resultActions; }
    ResultListView *mainList() const { return m_mainList; }
    ResultListView *cloneList() const { return m_cloneList; }
    FilterBar *filterBar() const { return m_filterBar; }
    PreviewPane *previewPane() const { return m_previewPane; }
    // The parts of the window that Tab and F6 cycle through, in order: the filter bar's text
    // field, the top list and the bottom list.
    QList<QWidget *> keyboardCycle() const;
    // F6 and Shift+F6: the focus moves to the next or previous part of the cycle.
    void focusNextPart(bool forward);
    // "Where are the duplicates?": the treemap of reclaimable space by folder, opened from the
    // View menu; a click on a folder filters the lists to it.
    OverviewWindow *showOverview();
    QString statusText() const;
    QString groupCaptionText() const;
    // The line above the lists while a search runs, and its Pause (Resume) and Stop buttons.
    QString progressText() const;
    QPushButton *pauseButton() const { return m_pauseBtn; }
    QPushButton *stopButton() const { return m_abortBtn; }
    DuplicateSearch &search() { return m_search; }
    // The line of what the last file command did, empty before any.
    QString summaryText() const;
    // The paths the search could not read, listed when their count in the status line is clicked.
    const QStringList &unreadablePaths() const { return m_unreadable; }
    void showUnreadableItems();
    QString pathBarText() const;

    // Column visibility: the mode's hidden columns cannot be shown by the user.
    bool isColumnHidden(const QString &identifier) const;
    bool canShowColumn(const QString &identifier) const { return !m_modeHiddenColumns.contains(identifier); }
    void changeListColumn(const QString &identifier, bool shown);
    void changeListSize(int thumbnailSize);
    void changeListFontSize(int pointSize);

public Q_SLOTS:
    // The items changed (moved, deleted, hidden or shown again): both lists are read again,
    // the selection that is left is kept, and the status line is brought up to date.
    void modelDidChange();
    // The summary line of a file command that is over; empty hides it.
    void showActionSummary(const QString &summary);
    void applyFilter();
    void revealSelectedInFileManager();
    void openSelected();
    void togglePreview();

Q_SIGNALS:
    void finishedSearching(Dupes *dupes);
    void closed(Dupes *dupes);
    // File › Open Results… of this window: the application opens them in another one.
    void openResultsRequested();
    // The context menu of a list is about to open; add commands to `menu`.
    void contextMenuAboutToShow(QMenu *menu, ResultList list);
    // The selection of either list changed, or the lists were read again: commands revalidate.
    void selectionDidChange();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragLeaveEvent(QDragLeaveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void buildMenus();
    void setUpKeyboardCycle();
    void installActions();
    void fillContextMenu(QMenu *menu, ResultList list);
    void validateItemActions();
    QMenu *columnsMenu(QWidget *parent);
    void showProgress(const QString &status, double progress);
    void togglePause();
    void searchDone();
    void prepareWindow(const SearchRequest &request);
    void showResults();
    void updateListsLayout();
    void saveColumnLayouts();
    void restoreColumnLayouts();
    void viewSelectionChanged(ResultListView *view);
    void selectInView(ResultListView *view);
    void reloadList(ResultListView *view);
    void updateStatus();
    void updateOverview();
    void updateWindowTitle();
    void showGPSLocation(int service);
    void removeDropIndicator();

    Settings &m_settings;
    DuplicateSearch m_search;
    ResultModel m_model;
    ItemIcons m_icons;
    bool m_finished = false;
    int m_ignoreSelectionChange = 0;
    ResultList m_active = ResultList::Top;
    QStringList m_modeHiddenColumns;
    QStringList m_userHiddenColumns;
    // What the title names: the searched locations, the mode and the compared attribute.
    QStringList m_titleLocations;
    DetectionMode m_titleMode = DetectionMode::Content;
    QString m_attributeName;
    QStringList m_emptyColumns; // no item has a value for them
    bool m_layingOutColumns = false;

    QWidget *m_searchingRow;
    QLabel *m_statusFld;
    QProgressBar *m_progressIndicator;
    QPushButton *m_abortBtn;
    QPushButton *m_pauseBtn; // Pause, or Resume while paused
    QString m_progressText;  // the search's last status, shown again while it is paused
    FilterBar *m_filterBar;
    ResultTableModel *m_mainModel;
    ResultTableModel *m_cloneModel;
    ResultListView *m_mainList;
    ResultListView *m_cloneList;
    PreviewPane *m_previewPane;
    QLabel *m_statusLine;
    QLabel *m_summaryLine;
    QLabel *m_groupCaption; // above the bottom list: its group's size and what it would free
    ResultsStatus m_status;
    QStringList m_unreadable; // folders the search could not list
    qint64 m_unreadableFiles = 0;
    QLabel *m_pathControl;
    QMenu *m_actionsMenu = nullptr;
    QToolBar *m_actionsToolBar = nullptr;
    QAction *m_previewAction = nullptr;
    QAction *m_openAction = nullptr;
    QAction *m_revealAction = nullptr;
    QList<QAction *> m_mapActions;
    QWidget *m_dropIndicatorView = nullptr;
    OverviewWindow *m_overview = nullptr;
    ResultActions m_resultActions;
};

} // namespace selfsame
