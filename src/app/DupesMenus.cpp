// The menus of a results window and the commands on its items.
#include "Dupes.h"

#include "Alert.h"
#include "Desktop.h"
#include "DupesSettingsKeys.h"
#include "FilterBar.h"
#include "OverviewWindow.h"
#include "PreviewPane.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "ResultsFileDialogs.h"
#include "Settings.h"
#include "UndoCommands.h"
#include "LocationsModel.h"
#include "attributes/MetadataReader.h"
#include "names/FileNames.h"
#include "results/ListColumns.h"

#include <QAction>
#include <QActionGroup>
#include <QComboBox>
#include <QApplication>
#include <QDesktopServices>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QPointF>
#include <QUrl>

#include <optional>

#include <cmath>

namespace selfsame {

namespace {

const std::pair<const char *, int> kListSizes[] = {
    {QT_TRANSLATE_NOOP("Dupes", "Small"), 16},
    {QT_TRANSLATE_NOOP("Dupes", "Medium"), 32},
    {QT_TRANSLATE_NOOP("Dupes", "Large"), 64},
    {QT_TRANSLATE_NOOP("Dupes", "Extra Large"), 128},
};
const int kFontSizes[] = {8, 9, 10, 11, 12, 13, 14, 16, 18};

// The name offered for saved results and exports: the searched location's, when there is one.
QString suggestedName(const SearchRequest &request)
{
    return request.searchInFolderURLs.size() == 1 ? displayName(request.searchInFolderURLs.first())
                                                  : QCoreApplication::translate("Dupes", "Duplicates");
}

// The longitude (x) and latitude (y) of a file: those the search read, else the file's own,
// read now. Nothing for a file without both.
std::optional<QPointF> locationOf(const ResultItem &item)
{
    if (!std::isnan(item.latitude()) && !std::isnan(item.longitude())) return QPointF(item.longitude(), item.latitude());
    const QString latitudeKey = QStringLiteral("kMDItemLatitude");
    const QString longitudeKey = QStringLiteral("kMDItemLongitude");
    const MetadataValues values = readMetadata(item.path, {latitudeKey, longitudeKey});
    bool hasLatitude = false, hasLongitude = false;
    const double latitude = values.value(latitudeKey).toDouble(&hasLatitude);
    const double longitude = values.value(longitudeKey).toDouble(&hasLongitude);
    if (!hasLatitude || !hasLongitude) return std::nullopt;
    return QPointF(longitude, latitude);
}

} // namespace

void Dupes::buildMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    file->addAction(QIcon::fromTheme(QStringLiteral("document-open")), tr("Open &Results…"), this,
                    &Dupes::openResultsRequested);
    QAction *save = file->addAction(QIcon::fromTheme(QStringLiteral("document-save")), tr("&Save Results…"),
                                    QKeySequence::Save, this, [this] {
                                        chooseResultsFileToSave(this, suggestedName(m_model.request()), [this](const QString &path) {
                                            if (const QString error = saveResults(path); !error.isEmpty())
                                                showAlert(this, QMessageBox::Warning,
                                                          tr("The results could not be saved."), error, {tr("OK")});
                                        });
                                    });
    QAction *exportList = file->addAction(tr("&Export…"), this, [this] {
        chooseCsvFileToExport(this, suggestedName(m_model.request()), [this](const QString &path) {
            if (const QString error = exportTopList(path); !error.isEmpty())
                showAlert(this, QMessageBox::Warning, tr("The list could not be exported."), error, {tr("OK")});
        });
    });
    connect(file, &QMenu::aboutToShow, this, [this, save, exportList] {
        save->setEnabled(m_finished);
        exportList->setEnabled(m_finished && !m_model.mainItems().isEmpty());
    });
    file->addSeparator();
    file->addAction(tr("&Close Window"), QKeySequence::Close, this, &QWidget::close);

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    UndoCommands::instance().addTo(edit, this);
    edit->addAction(tr("&Filter…"), QKeySequence::Find, this, [this] { m_filterBar->textField()->setFocus(); });

    QMenu *view = menuBar()->addMenu(tr("&View"));
    m_previewAction = view->addAction(tr("&Preview"), this, &Dupes::togglePreview);
    m_previewAction->setCheckable(true);
    view->addSeparator();
    QAction *overview = view->addAction(tr("&Where Are the Duplicates?"), this, &Dupes::showOverview);
    overview->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_T));
    connect(view, &QMenu::aboutToShow, overview, [this, overview] { overview->setEnabled(m_finished); });
    view->addSeparator();
    view->addMenu(columnsMenu(view))->setText(tr("&Columns"));
    QMenu *sizes = view->addMenu(tr("List &Size"));
    auto *sizeGroup = new QActionGroup(sizes);
    for (const auto &[title, size] : kListSizes) {
        QAction *action = sizes->addAction(tr(title), this, [this, size = size] { changeListSize(size); });
        action->setCheckable(true);
        action->setChecked(size == m_settings.integerValue(dupeskey::resultListSize));
        sizeGroup->addAction(action);
    }
    QMenu *fonts = view->addMenu(tr("List &Font Size"));
    auto *fontGroup = new QActionGroup(fonts);
    for (int size : kFontSizes) {
        QAction *action = fonts->addAction(QString::number(size), this, [this, size] { changeListFontSize(size); });
        action->setCheckable(true);
        action->setChecked(size == m_settings.integerValue(dupeskey::listFontSize));
        fontGroup->addAction(action);
    }

    m_actionsMenu = menuBar()->addMenu(tr("&Actions"));
    m_actionsMenu->setObjectName(QStringLiteral("actionsMenu"));

    QMenu *item = menuBar()->addMenu(tr("&Item"));
    m_openAction = item->addAction(tr("&Open"), this, &Dupes::openSelected);
    m_revealAction = item->addAction(tr("Show in File &Manager"), this, &Dupes::revealSelectedInFileManager);
    m_revealAction->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_R));
    item->addAction(m_previewAction);
    item->addSeparator();
    const char *services[] = {QT_TR_NOOP("Show Location in Apple &Maps"), QT_TR_NOOP("Show Location in &Google Maps"),
                              QT_TR_NOOP("Show Location in &OpenStreetMap")};
    for (int service = 0; service < 3; ++service)
        m_mapActions.append(item->addAction(tr(services[service]), this, [this, service] { showGPSLocation(service); }));
    connect(this, &Dupes::selectionDidChange, this, &Dupes::validateItemActions);
    validateItemActions();
}

void Dupes::setUpKeyboardCycle()
{
    // Tab runs through the filter bar, the top list and the bottom list, and round again.
    setTabOrder(m_filterBar->lastInTabOrder(), m_mainList);
    setTabOrder(m_mainList, m_cloneList);
    setTabOrder(m_cloneList, m_filterBar->firstInTabOrder());
    // The replacement pop-up is a setting, not a place to work in: clicks reach it, Tab does not.
    m_resultActions.files->replaceWithPopup()->setFocusPolicy(Qt::ClickFocus);
    // F6 moves between the parts of the window as in the desktop's own applications;
    // Ctrl+Tab does the same for those used to it from tabbed windows.
    auto *next = new QAction(this);
    next->setShortcuts({QKeySequence(Qt::Key_F6), QKeySequence(Qt::CTRL | Qt::Key_Tab)});
    connect(next, &QAction::triggered, this, [this] { focusNextPart(true); });
    auto *previous = new QAction(this);
    previous->setShortcuts({QKeySequence(Qt::SHIFT | Qt::Key_F6), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Backtab),
                            QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Tab)});
    connect(previous, &QAction::triggered, this, [this] { focusNextPart(false); });
    addActions({next, previous});
}

QList<QWidget *> Dupes::keyboardCycle() const
{
    return {m_filterBar->textField(), m_mainList, m_cloneList};
}

void Dupes::focusNextPart(bool forward)
{
    const QList<QWidget *> parts = keyboardCycle();
    qsizetype current = -1;
    for (qsizetype i = 0; i < parts.size(); ++i)
        if (parts[i] == focusWidget() || parts[i]->isAncestorOf(focusWidget())) current = i;
    // From elsewhere (a pop-up of the filter bar), F6 goes to the top list.
    const qsizetype count = parts.size();
    const qsizetype next = current < 0 ? 1 : (current + (forward ? 1 : count - 1)) % count;
    parts[next]->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
}

void Dupes::installActions()
{
    m_resultActions = installResultActions(
        {this, &m_model, &m_settings, m_actionsMenu, m_actionsToolBar,
         [this] { return DupesActions::Targets{activeList(), targetItems()}; }, [this] {
             // The items carry what the commands made of them; the icons show it.
             for (const ResultItem &item : std::as_const(m_model.allItems()))
                 if (item.statusImage() != m_icons.statusImage(&item))
                     setStatusImage(&item, item.statusImage());
             modelDidChange();
         }});
    connect(this, &Dupes::contextMenuAboutToShow, this, [this](QMenu *menu, ResultList) {
        menu->addSeparator();
        addResultActionsToContextMenu(menu, m_resultActions, targetItems());
    });
    connect(this, &Dupes::selectionDidChange, this, [this] { updateResultActions(m_resultActions); });
    connect(m_resultActions.files, &DupesActions::actionSummarized, this, &Dupes::showActionSummary);
}

void Dupes::validateItemActions()
{
    const QList<ResultItem *> targets = targetItems();
    m_openAction->setEnabled(!targets.isEmpty());
    m_revealAction->setEnabled(!targets.isEmpty());
    // Where a file was taken is read when a map is asked for, in every mode: only folders
    // certainly have no place.
    const bool mayBeLocated = std::any_of(targets.begin(), targets.end(),
                                          [](const ResultItem *item) { return !item->has(IsFolder); });
    for (QAction *action : m_mapActions)
        action->setEnabled(mayBeLocated);
}

void Dupes::fillContextMenu(QMenu *menu, ResultList list)
{
    m_active = list;
    validateItemActions();
    menu->addActions({m_openAction, m_revealAction, m_previewAction});
    menu->addSeparator();
    menu->addActions(m_mapActions);
    Q_EMIT contextMenuAboutToShow(menu, list);
}

QMenu *Dupes::columnsMenu(QWidget *parent)
{
    auto *menu = new QMenu(parent);
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        for (const QString &column : listColumnIdentifiers()) {
            QAction *action = menu->addAction(m_mainModel->headerData(m_mainModel->columnOf(column), Qt::Horizontal,
                                                                      Qt::DisplayRole).toString());
            action->setObjectName(column);
            action->setCheckable(true);
            action->setEnabled(canShowColumn(column) && column != QLatin1String("name"));
            action->setChecked(!isColumnHidden(column));
            connect(action, &QAction::toggled, this, [this, column](bool on) { changeListColumn(column, on); });
        }
    });
    if (parent == this) connect(menu, &QMenu::aboutToHide, menu, &QObject::deleteLater);
    return menu;
}

void Dupes::revealSelectedInFileManager()
{
    QStringList paths;
    for (const ResultItem *item : targetItems())
        paths.append(item->path);
    if (!paths.isEmpty()) revealInFileManager(paths);
}

void Dupes::openSelected()
{
    for (const ResultItem *item : targetItems())
        openWithDefaultApplication(item->path);
}

void Dupes::togglePreview()
{
    m_previewPane->setVisible(!m_previewPane->isVisible());
    m_previewAction->setChecked(m_previewPane->isVisible());
    updateStatus();
}

void Dupes::showGPSLocation(int service)
{
    for (const ResultItem *item : targetItems())
        if (const std::optional<QPointF> place = locationOf(*item))
            QDesktopServices::openUrl(QUrl(mapServiceURLs(place->y(), place->x()).value(service)));
}

OverviewWindow *Dupes::showOverview()
{
    if (!m_overview) {
        m_overview = new OverviewWindow(this);
        connect(m_overview, &OverviewWindow::folderChosen, m_filterBar, &FilterBar::showOnlyFolder);
        connect(m_overview, &OverviewWindow::showAllChosen, m_filterBar, &FilterBar::clearTextCondition);
    }
    updateOverview();
    m_overview->show();
    m_overview->raise();
    return m_overview;
}

void Dupes::updateOverview()
{
    // The whole search, hidden items too: the picture stays put while the lists are filtered.
    if (m_overview && m_finished) m_overview->setFolders(reclaimableByFolder(m_model.mainItems() + m_model.mainItemsHidden()));
}

} // namespace selfsame
