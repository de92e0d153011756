#include "Dupes.h"

#include "Alert.h"
#include "Desktop.h"
#include "FilterBar.h"
#include "LocalFiles.h"
#include "LocationsModel.h"
#include "PreviewPane.h"
#include "ResultCellDelegate.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "SearchDefaults.h"
#include "Settings.h"
#include "attributes/SpotlightAttributesManager.h"
#include "format/Formatters.h"
#include "names/FileNames.h"
#include "ResultsFileDialogs.h"
#include "results/CsvExport.h"
#include "results/ListColumns.h"
#include "results/ResultFilter.h"
#include "results/ResultsFile.h"
#include "results/StatusLine.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QDragEnterEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSaveFile>
#include <QSignalBlocker>
#include <QSplitter>
#include <QTimer>
#include <QToolBar>
#include <QUrl>
#include <QVBoxLayout>

#include <cmath>

namespace selfsame {

namespace {

const QString kHiddenColumns = QStringLiteral("hidden columns");
const QString kResultListSize = QStringLiteral("result list size");
const QString kListFontSize = QStringLiteral("list font size");
const QString kMainListLayout = key::mainListColumns;
const QString kCloneListLayout = key::cloneListColumns;

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

} // namespace

Dupes::Dupes(Settings &settings, QWidget *parent) : QMainWindow(parent), m_settings(settings)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    m_settings.registerDefaults({{kResultListSize, 16}, {kListFontSize, QApplication::font().pointSize()}});

    m_statusFld = new QLabel;
    m_statusFld->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_statusFld->setMinimumWidth(100);
    m_progressIndicator = new QProgressBar;
    m_progressIndicator->setTextVisible(false);
    m_progressIndicator->setMaximumWidth(240);
    m_abortBtn = new QPushButton(tr("&Stop"));
    connect(m_abortBtn, &QPushButton::clicked, this, [this] { m_search.abort(); });
    m_searchingRow = new QWidget;
    auto *searchingLayout = new QHBoxLayout(m_searchingRow);
    searchingLayout->setContentsMargins(0, 0, 0, 0);
    searchingLayout->addWidget(m_progressIndicator);
    searchingLayout->addWidget(m_statusFld, 1);
    searchingLayout->addWidget(m_abortBtn);

    m_filterBar = new FilterBar;
    QVariantMap savedFilter = filterSettings(FilterCriteria());
    for (auto it = savedFilter.begin(); it != savedFilter.end(); ++it)
        if (m_settings.isStored(it.key())) it.value() = m_settings.value(it.key());
    m_filterBar->setCriteria(filterCriteriaFromSettings(savedFilter));
    m_filterBar->setEnabled(false);
    connect(m_filterBar, &FilterBar::filterChanged, this, &Dupes::applyFilter);

    m_mainModel = new ResultTableModel(m_model, ResultList::Top, m_icons, this);
    m_cloneModel = new ResultTableModel(m_model, ResultList::Bottom, m_icons, this);
    m_mainList = new ResultListView;
    m_mainList->setObjectName(QStringLiteral("mainList"));
    m_cloneList = new ResultListView;
    m_cloneList->setObjectName(QStringLiteral("cloneList"));
    for (auto [view, model] : {std::pair{m_mainList, m_mainModel}, std::pair{m_cloneList, m_cloneModel}}) {
        view->setModel(model);
        view->setItemDelegate(new ResultCellDelegate(view));
        connect(view->selectionModel(), &QItemSelectionModel::selectionChanged, this,
                [this, view = view] { viewSelectionChanged(view); });
        connect(model, &ResultTableModel::resorted, this, [this, view = view] { selectInView(view); });
        connect(view, &ResultListView::previewRequested, this, &Dupes::togglePreview);
        connect(view, &ResultListView::contextMenuRequested, this,
                [this, view = view](QMenu *menu) { fillContextMenu(menu, view->resultModel()->list()); });
        // A click on an already selected row makes its list the active one as well.
        connect(view, &QAbstractItemView::pressed, view, &ResultListView::activated);
        connect(view, &ResultListView::activated, this, [this, view = view] {
            m_active = view->resultModel()->list();
            updateStatus();
            validateItemActions();
        });
        connect(view, &QAbstractItemView::doubleClicked, this, &Dupes::openSelected);
        connect(view->horizontalHeader(), &QHeaderView::customContextMenuRequested, this,
                [this, view = view](const QPoint &at) { columnsMenu(this)->exec(view->horizontalHeader()->mapToGlobal(at)); });
        connect(view->horizontalHeader(), &QHeaderView::sectionResized, this, &Dupes::saveColumnLayouts);
        connect(view->horizontalHeader(), &QHeaderView::sectionMoved, this, &Dupes::saveColumnLayouts);
    }
    connect(&m_icons, &ItemIcons::iconsChanged, m_mainModel, &ResultTableModel::iconsChanged);
    connect(&m_icons, &ItemIcons::iconsChanged, m_cloneModel, &ResultTableModel::iconsChanged);

    auto *lists = new QSplitter(Qt::Vertical);
    lists->addWidget(m_mainList);
    lists->addWidget(m_cloneList);
    lists->setStretchFactor(0, 3);
    lists->setStretchFactor(1, 1);
    lists->setChildrenCollapsible(false);
    m_previewPane = new PreviewPane;
    m_previewPane->hide();
    auto *previewSplitter = new QSplitter(Qt::Horizontal);
    previewSplitter->addWidget(lists);
    previewSplitter->addWidget(m_previewPane);
    previewSplitter->setStretchFactor(0, 3);
    previewSplitter->setStretchFactor(1, 1);

    m_statusLine = new QLabel;
    m_statusLine->setObjectName(QStringLiteral("statusLine"));
    m_pathControl = new QLabel;
    m_pathControl->setObjectName(QStringLiteral("pathControl"));
    m_pathControl->setTextInteractionFlags(Qt::LinksAccessibleByMouse);
    connect(m_pathControl, &QLabel::linkActivated, this,
            [](const QString &link) { revealInFileManager({pathFromUrl(QUrl(link))}); });
    m_pathControl->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_pathControl->hide();
    auto *statusRow = new QHBoxLayout;
    statusRow->addWidget(m_pathControl, 1);
    statusRow->addWidget(m_statusLine, 0, Qt::AlignRight);

    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);
    layout->addWidget(m_searchingRow);
    layout->addWidget(m_filterBar);
    layout->addWidget(previewSplitter, 1);
    layout->addLayout(statusRow);
    setCentralWidget(central);

    m_actionsToolBar = addToolBar(tr("Actions"));
    m_actionsToolBar->setObjectName(QStringLiteral("actionsToolBar"));
    m_actionsToolBar->setMovable(false);
    m_actionsToolBar->hide(); // shown once an action is added
    buildMenus();
    installActions();

    restoreColumnLayouts();
    m_icons.setSize(int(m_settings.integerValue(kResultListSize)));
    changeListFontSize(int(m_settings.integerValue(kListFontSize)));

    connect(&m_search, &DuplicateSearch::progress, this, &Dupes::showProgress);
    connect(&m_search, &DuplicateSearch::searchDone, this, &Dupes::searchDone);
    resize(1100, 700);
}

Dupes::~Dupes() = default;

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
    edit->addAction(tr("&Filter…"), QKeySequence::Find, this, [this] { m_filterBar->textField()->setFocus(); });

    QMenu *view = menuBar()->addMenu(tr("&View"));
    m_previewAction = view->addAction(tr("&Preview"), this, &Dupes::togglePreview);
    m_previewAction->setCheckable(true);
    view->addSeparator();
    view->addMenu(columnsMenu(view))->setText(tr("&Columns"));
    QMenu *sizes = view->addMenu(tr("List &Size"));
    auto *sizeGroup = new QActionGroup(sizes);
    for (const auto &[title, size] : kListSizes) {
        QAction *action = sizes->addAction(tr(title), this, [this, size = size] { changeListSize(size); });
        action->setCheckable(true);
        action->setChecked(size == m_settings.integerValue(kResultListSize));
        sizeGroup->addAction(action);
    }
    QMenu *fonts = view->addMenu(tr("List &Font Size"));
    auto *fontGroup = new QActionGroup(fonts);
    for (int size : kFontSizes) {
        QAction *action = fonts->addAction(QString::number(size), this, [this, size] { changeListFontSize(size); });
        action->setCheckable(true);
        action->setChecked(size == m_settings.integerValue(kListFontSize));
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
}

void Dupes::validateItemActions()
{
    const QList<ResultItem *> targets = targetItems();
    m_openAction->setEnabled(!targets.isEmpty());
    m_revealAction->setEnabled(!targets.isEmpty());
    const bool located = std::any_of(targets.begin(), targets.end(), [](const ResultItem *item) {
        return !std::isnan(item->latitude()) && !std::isnan(item->longitude());
    });
    for (QAction *action : m_mapActions)
        action->setEnabled(located);
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

void Dupes::prepareWindow(const SearchRequest &request)
{
    const QString attribute = request.detectionMode == DetectionMode::Attribute ? request.spotlightAttribute : QString();
    const QString attributeName =
        attribute.isEmpty() ? QString() : SpotlightAttributesManager::GetDisplayNameForSpotlightAttribute(attribute);
    const bool cluster = (request.detectionMode == DetectionMode::Duration && request.durationTolerance > 0) ||
                         (request.detectionMode == DetectionMode::Attribute && request.spotlightTolerance > 0);
    for (ResultTableModel *model : {m_mainModel, m_cloneModel})
        model->setSpotlightAttribute(attribute, attributeName.isEmpty() ? attribute : attributeName);
    m_mainModel->setClusterTitle(cluster);
    m_modeHiddenColumns = modeHiddenColumns(request.detectionMode, request.spotlightAttribute);
    m_userHiddenColumns = m_settings.stringListValue(kHiddenColumns);
    updateListsLayout();
    updateWindowTitle(request.searchInFolderURLs);
}

void Dupes::searchInFolderURLs(const SearchRequest &request)
{
    prepareWindow(request);
    m_model.reset();
    reloadList(m_mainList);
    reloadList(m_cloneList);
    m_searchingRow->show();
    m_statusFld->setText(tr("Enumerating files…"));
    m_progressIndicator->setRange(0, 0);
    m_abortBtn->show();
    m_pathControl->clear();
    m_pathControl->hide();
    m_statusLine->clear();
    m_finished = false;
    m_search.searchInFolderURLs(request);
}

void Dupes::showFinishedResults(QList<ResultItem> items, const SearchRequest &request)
{
    prepareWindow(request);
    m_model.setResults(std::move(items), request);
    showResults();
}

void Dupes::showSavedResults(ResultModel model, const QString &file)
{
    prepareWindow(model.request());
    m_model = std::move(model);
    for (const ResultItem &item : std::as_const(m_model.allItems()))
        if (!item.statusImage().isEmpty()) setStatusImage(&item, item.statusImage());
    setWindowFilePath(file);
    showResults();
}

QString Dupes::saveResults(const QString &path)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString error = ResultsFile::save(m_model, path);
    QApplication::restoreOverrideCursor();
    if (error.isEmpty()) setWindowFilePath(path);
    return error;
}

QString Dupes::exportTopList(const QString &path) const
{
    QList<CsvColumn> columns;
    const QHeaderView *header = m_mainList->horizontalHeader();
    for (int visual = 0; visual < header->count(); ++visual) {
        const int logical = header->logicalIndex(visual);
        if (header->isSectionHidden(logical)) continue;
        columns.append({m_mainModel->columnIdentifier(logical),
                        m_mainModel->headerData(logical, Qt::Horizontal, Qt::DisplayRole).toString()});
    }
    const QList<const ResultItem *> rows(m_model.mainItems().begin(), m_model.mainItems().end());
    const QString attribute =
        m_model.detectionMode() == DetectionMode::Attribute ? m_model.request().spotlightAttribute : QString();
    QSaveFile file(path);
    const QByteArray csv = exportCsv(rows, columns, attribute);
    if (!file.open(QIODevice::WriteOnly) || file.write(csv) != csv.size() || !file.commit())
        return tr("“%1” could not be written: %2").arg(displayPath(path), file.errorString());
    return {};
}

void Dupes::showProgress(const QString &status, double progress)
{
    m_statusFld->setText(status);
    if (progress < 0) {
        m_progressIndicator->setRange(0, 0);
    } else {
        m_progressIndicator->setRange(0, 1000);
        m_progressIndicator->setValue(int(progress * 1000));
    }
}

void Dupes::searchDone()
{
    m_model.setResults(m_search.takeMainItems(), m_search.request());
    showResults();
    if (m_model.mainItems().isEmpty() && m_model.mainItemsHidden().isEmpty()) {
        if (m_search.aborted()) {
            QTimer::singleShot(0, this, &QWidget::close);
        } else {
            const EmptyResultMessage empty =
                emptyResultMessage(m_search.request().detectionMode, m_search.statistics());
            showAlert(this, QMessageBox::Information, empty.message, empty.informativeText, {tr("OK")},
                      [this](int) { close(); });
        }
    }
    Q_EMIT finishedSearching(this);
    if (!QApplication::activeWindow()) QApplication::alert(this);
}

void Dupes::showResults()
{
    m_finished = true;
    m_searchingRow->hide();
    m_filterBar->setEnabled(true);
    // The headers show the engine's sorts (the top list's default, the bottom list's last one)
    // without sorting again.
    for (ResultListView *view : {m_mainList, m_cloneList}) {
        const std::optional<SortDescriptor> sort = m_model.sortDescriptor(view->resultModel()->list());
        int section = -1;
        for (const QString &column : listColumnIdentifiers())
            if (sort && columnSortKey(column) == sort->key) section = view->resultModel()->columnOf(column);
        QHeaderView *header = view->horizontalHeader();
        const QSignalBlocker blocker(header);
        header->setSortIndicator(section, sort && !sort->ascending ? Qt::DescendingOrder : Qt::AscendingOrder);
        header->viewport()->update();
    }
    reloadList(m_mainList);
    reloadList(m_cloneList);
    m_mainList->setFocus(Qt::OtherFocusReason);
    m_active = ResultList::Top;
    updateStatus();
    Q_EMIT selectionDidChange();
}

void Dupes::updateWindowTitle(const QStringList &locations)
{
    const QString subtitle = locations.size() == 1 ? displayName(locations.first())
                                                   : tr("%1 locations").arg(formatCount(locations.size()));
    setWindowTitle(tr("%1 — %2").arg(subtitle, QApplication::applicationName()));
}

bool Dupes::isColumnHidden(const QString &identifier) const
{
    return m_modeHiddenColumns.contains(identifier) || m_userHiddenColumns.contains(identifier);
}

void Dupes::changeListColumn(const QString &identifier, bool shown)
{
    if (shown)
        m_userHiddenColumns.removeAll(identifier);
    else if (!m_userHiddenColumns.contains(identifier))
        m_userHiddenColumns.append(identifier);
    m_settings.setValue(kHiddenColumns, m_userHiddenColumns);
    updateListsLayout();
}

void Dupes::updateListsLayout()
{
    for (ResultListView *view : {m_mainList, m_cloneList})
        for (const QString &column : listColumnIdentifiers())
            view->setColumnHidden(view->resultModel()->columnOf(column), isColumnHidden(column));
}

void Dupes::saveColumnLayouts()
{
    if (!m_finished) return; // the layout of an empty window while it searches says nothing
    m_settings.setValue(kMainListLayout, m_mainList->horizontalHeader()->saveState());
    m_settings.setValue(kCloneListLayout, m_cloneList->horizontalHeader()->saveState());
}

void Dupes::restoreColumnLayouts()
{
    const std::pair<ResultListView *, QString> layouts[] = {{m_mainList, kMainListLayout},
                                                            {m_cloneList, kCloneListLayout}};
    for (const auto &[view, key] : layouts) {
        QHeaderView *header = view->horizontalHeader();
        header->setDefaultSectionSize(110);
        header->resizeSection(view->resultModel()->columnOf(QStringLiteral("name")), 240);
        header->resizeSection(view->resultModel()->columnOf(QStringLiteral("path")), 220);
        header->resizeSection(view->resultModel()->columnOf(QStringLiteral("size")), 80);
        header->resizeSection(view->resultModel()->columnOf(QStringLiteral("extension")), 60);
        header->resizeSection(view->resultModel()->columnOf(QStringLiteral("dupes")), 80);
        header->resizeSection(view->resultModel()->columnOf(QStringLiteral("modified")), 150);
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
    m_settings.setValue(kResultListSize, thumbnailSize);
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
    m_settings.setValue(kListFontSize, pointSize);
    changeListSize(m_icons.size());
}

void Dupes::reloadList(ResultListView *view)
{
    ++m_ignoreSelectionChange;
    view->resultModel()->reload();
    --m_ignoreSelectionChange;
    selectInView(view);
}

// Selects in the view what the engine has selected in that list, scrolling to the first row.
void Dupes::selectInView(ResultListView *view)
{
    const ResultList list = view->resultModel()->list();
    const QList<qsizetype> rows = m_model.selectedRows(list);
    QItemSelection selection;
    for (qsizetype i = 0; i < rows.size();) {
        qsizetype last = i;
        while (last + 1 < rows.size() && rows[last + 1] == rows[last] + 1)
            ++last;
        selection.select(view->model()->index(int(rows[i]), 0),
                         view->model()->index(int(rows[last]), view->model()->columnCount() - 1));
        i = last + 1;
    }
    ++m_ignoreSelectionChange;
    view->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    if (!rows.isEmpty()) {
        const QModelIndex first = view->model()->index(int(rows.first()), 0);
        view->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        view->scrollTo(first);
    }
    --m_ignoreSelectionChange;
}

void Dupes::viewSelectionChanged(ResultListView *view)
{
    if (m_ignoreSelectionChange) return;
    const ResultList list = view->resultModel()->list();
    QList<ResultItem *> items;
    const QItemSelection selection = view->selectionModel()->selection();
    for (const QItemSelectionRange &range : selection)
        for (int row = range.top(); row <= range.bottom(); ++row)
            items.append(view->resultModel()->item(row));
    m_model.select(list, items);
    m_active = list;
    if (list == ResultList::Top) reloadList(m_cloneList);
    updateStatus();
    Q_EMIT selectionDidChange();
}

void Dupes::modelDidChange()
{
    m_model.sortMainItemsIncludingHidden();
    m_model.sortDescriptorsDidChange(ResultList::Top);
    m_model.select(ResultList::Top, m_model.selectedItems(ResultList::Top));
    reloadList(m_mainList);
    reloadList(m_cloneList);
    updateStatus();
    Q_EMIT selectionDidChange();
}

void Dupes::applyFilter()
{
    if (!m_finished) return;
    const FilterCriteria criteria = m_filterBar->criteria();
    m_filterBar->showRegexError(filter(m_model, criteria));
    // The filter keeps the selected items that stay visible; the bottom list follows them.
    m_model.sortDescriptorsDidChange(ResultList::Top);
    m_model.select(ResultList::Top, m_model.selectedItems(ResultList::Top));
    reloadList(m_mainList);
    reloadList(m_cloneList);
    const QVariantMap saved = filterSettings(criteria);
    for (auto it = saved.cbegin(); it != saved.cend(); ++it)
        m_settings.setValue(it.key(), it.value());
    updateStatus();
    Q_EMIT selectionDidChange();
}

ResultList Dupes::activeList() const
{
    return m_active == ResultList::Bottom && m_model.cloneItems().isEmpty() ? ResultList::Top : m_active;
}

QList<ResultItem *> Dupes::targetItems() const
{
    return m_model.selectedItems(activeList());
}

void Dupes::setStatusImage(const ResultItem *item, const QString &name)
{
    m_icons.setStatusImage(item, name);
}

QString Dupes::statusText() const
{
    return m_statusLine->text();
}

QString Dupes::pathBarText() const
{
    return m_pathControl->isVisibleTo(this) ? m_pathControl->toolTip() : QString();
}

void Dupes::updateStatus()
{
    if (m_ignoreSelectionChange || !m_finished) return;
    const StatusLine line = statusLine(m_model, activeList());
    m_statusLine->setText(line.text);
    m_pathControl->setVisible(!line.path.isEmpty());
    m_pathControl->setToolTip(displayPath(line.path));
    // Each folder of the path is a link that shows it in the file manager.
    QStringList links;
    QString folder;
    for (const QString &component : line.path.split(QLatin1Char('/'), Qt::SkipEmptyParts)) {
        folder += QLatin1Char('/') + component;
        links.append(QStringLiteral("<a href=\"%1\" style=\"color: gray; text-decoration: none\">%2</a>")
                         .arg(fileUrl(folder).toString(QUrl::FullyEncoded).toHtmlEscaped(),
                              displayPath(component).toHtmlEscaped()));
    }
    m_pathControl->setText(links.join(QStringLiteral(" <span style=\"color: gray\">›</span> ")));
    if (m_previewPane->isVisible()) {
        const QList<ResultItem *> targets = targetItems();
        m_previewPane->showItem(targets.size() == 1 ? targets.first() : nullptr);
    }
}

bool Dupes::selectAndRevealInTopList(const QString &path)
{
    if (!m_model.selectAndRevealInTopList(path)) return false;
    selectInView(m_mainList);
    reloadList(m_cloneList);
    m_active = ResultList::Top;
    updateStatus();
    Q_EMIT selectionDidChange();
    show();
    raise();
    activateWindow();
    return true;
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
        if (!std::isnan(item->latitude()) && !std::isnan(item->longitude()))
            QDesktopServices::openUrl(QUrl(mapServiceURLs(item->latitude(), item->longitude()).value(service)));
}

bool Dupes::draggingEntered(const QMimeData *data, const QObject *source)
{
    const bool ownList = source && (source == m_mainList || source == m_cloneList ||
                                    source == m_mainList->viewport() || source == m_cloneList->viewport());
    if (ownList || !data->hasUrls()) return false;
    if (!m_dropIndicatorView) {
        m_dropIndicatorView = new QWidget(centralWidget());
        m_dropIndicatorView->setObjectName(QStringLiteral("dropIndicator"));
        m_dropIndicatorView->setAttribute(Qt::WA_TransparentForMouseEvents);
        QColor colour = palette().color(QPalette::Highlight);
        colour.setAlphaF(0.5);
        m_dropIndicatorView->setStyleSheet(QStringLiteral("background-color: %1").arg(colour.name(QColor::HexArgb)));
        m_dropIndicatorView->setGeometry(centralWidget()->rect());
        m_dropIndicatorView->show();
        m_dropIndicatorView->raise();
    }
    return true;
}

bool Dupes::performDragOperation(const QMimeData *data)
{
    removeDropIndicator();
    const QStringList files = localPaths(data->urls());
    if (files.size() != 1) return false;
    selectAndRevealInTopList(files.first());
    return true;
}

void Dupes::dragEnterEvent(QDragEnterEvent *event)
{
    if (draggingEntered(event->mimeData(), event->source()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void Dupes::dragLeaveEvent(QDragLeaveEvent *event)
{
    removeDropIndicator();
    event->accept();
}

void Dupes::dropEvent(QDropEvent *event)
{
    if (performDragOperation(event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void Dupes::removeDropIndicator()
{
    delete m_dropIndicatorView;
    m_dropIndicatorView = nullptr;
}

void Dupes::closeEvent(QCloseEvent *event)
{
    m_icons.cancelPendingThumbnails();
    saveColumnLayouts();
    m_search.abortAndWait(true);
    Q_EMIT closed(this);
    event->accept();
}

} // namespace selfsame
