#include "Dupes.h"

#include "DupesSettingsKeys.h"

#include "Alert.h"
#include "ColumnDefaults.h"
#include "Desktop.h"
#include "FilterBar.h"
#include "FocusRing.h"
#include "LocalFiles.h"
#include "LocationsModel.h"
#include "PreviewPane.h"
#include "ResultCellDelegate.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "ResultsStatus.h"
#include "WindowTitles.h"
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
#include <QMessageBox>
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


Dupes::Dupes(Settings &settings, QWidget *parent) : QMainWindow(parent), m_settings(settings)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAcceptDrops(true);
    m_settings.registerDefaults({{dupeskey::resultListSize, 16}, {dupeskey::listFontSize, QApplication::font().pointSize()}});

    m_statusFld = new QLabel;
    m_statusFld->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_statusFld->setMinimumWidth(100);
    m_progressIndicator = new QProgressBar;
    m_progressIndicator->setTextVisible(false);
    m_progressIndicator->setMaximumWidth(240);
    m_abortBtn = new QPushButton(tr("&Stop"));
    m_abortBtn->setToolTip(tr("Stop the search and show the groups found so far"));
    connect(m_abortBtn, &QPushButton::clicked, this, [this] { m_search.abort(); });
    m_pauseBtn = new QPushButton(tr("&Pause"));
    connect(m_pauseBtn, &QPushButton::clicked, this, &Dupes::togglePause);
    m_searchingRow = new QWidget;
    auto *searchingLayout = new QHBoxLayout(m_searchingRow);
    searchingLayout->setContentsMargins(0, 0, 0, 0);
    searchingLayout->addWidget(m_progressIndicator);
    searchingLayout->addWidget(m_statusFld, 1);
    searchingLayout->addWidget(m_pauseBtn);
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
    lists->addWidget(new FocusRing(m_mainList));
    m_groupCaption = new QLabel;
    m_groupCaption->setObjectName(QStringLiteral("groupCaption"));
    auto *bottom = new QWidget;
    auto *bottomLayout = new QVBoxLayout(bottom);
    bottomLayout->setContentsMargins(0, 0, 0, 0);
    bottomLayout->setSpacing(2);
    bottomLayout->addWidget(m_groupCaption);
    bottomLayout->addWidget(new FocusRing(m_cloneList), 1);
    lists->addWidget(bottom);
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
    m_statusLine->setTextFormat(Qt::RichText);
    m_statusLine->setTextInteractionFlags(Qt::LinksAccessibleByMouse | Qt::LinksAccessibleByKeyboard);
    connect(m_statusLine, &QLabel::linkActivated, this, &Dupes::showUnreadableItems);
    m_summaryLine = new QLabel;
    m_summaryLine->setObjectName(QStringLiteral("summaryLine"));
    m_summaryLine->setTextFormat(Qt::PlainText);
    m_summaryLine->hide();
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
    layout->addWidget(m_summaryLine);
    layout->addLayout(statusRow);
    setCentralWidget(central);

    m_actionsToolBar = addToolBar(tr("Actions"));
    m_actionsToolBar->setObjectName(QStringLiteral("actionsToolBar"));
    m_actionsToolBar->setMovable(false);
    m_actionsToolBar->hide(); // shown once an action is added
    buildMenus();
    installActions();
    setUpKeyboardCycle();

    restoreColumnLayouts();
    m_icons.setSize(int(m_settings.integerValue(dupeskey::resultListSize)));
    changeListFontSize(int(m_settings.integerValue(dupeskey::listFontSize)));

    connect(&m_search, &DuplicateSearch::progress, this, &Dupes::showProgress);
    connect(&m_search, &DuplicateSearch::searchDone, this, &Dupes::searchDone);
    resize(1100, 700);
}

Dupes::~Dupes() = default;

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
    m_userHiddenColumns = m_settings.stringListValue(dupeskey::hiddenColumns);
    updateListsLayout();
    m_titleLocations = request.searchInFolderURLs;
    m_titleMode = request.detectionMode;
    m_attributeName = attributeName.isEmpty() ? attribute : attributeName;
    updateWindowTitle();
}

void Dupes::searchInFolderURLs(const SearchRequest &request)
{
    prepareWindow(request);
    m_model.reset();
    reloadList(m_mainList);
    reloadList(m_cloneList);
    m_searchingRow->show();
    m_progressText = tr("Enumerating files…");
    m_statusFld->setText(m_progressText);
    m_progressIndicator->setRange(0, 0);
    m_pauseBtn->setText(tr("&Pause"));
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
    updateWindowTitle();
    showResults();
}

QString Dupes::saveResults(const QString &path)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QString error = ResultsFile::save(m_model, path);
    QApplication::restoreOverrideCursor();
    if (error.isEmpty()) {
        setWindowFilePath(path);
        updateWindowTitle();
    }
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
    m_progressText = status;
    m_statusFld->setText(m_search.paused() ? tr("Paused: %1").arg(status) : status);
    if (progress < 0) {
        m_progressIndicator->setRange(0, 0);
    } else {
        m_progressIndicator->setRange(0, 1000);
        m_progressIndicator->setValue(int(progress * 1000));
    }
}

void Dupes::togglePause()
{
    if (m_search.paused()) {
        m_search.resume();
        m_pauseBtn->setText(tr("&Pause"));
        m_statusFld->setText(m_progressText);
    } else if (m_search.pause()) {
        m_pauseBtn->setText(tr("&Resume"));
        m_statusFld->setText(tr("Paused: %1").arg(m_progressText));
    }
}

QString Dupes::progressText() const
{
    return m_searchingRow->isVisibleTo(this) ? m_statusFld->text() : QString();
}

void Dupes::searchDone()
{
    m_model.setResults(m_search.takeMainItems(), m_search.request());
    m_model.setPartial(m_search.statistics().stopped);
    m_unreadable = m_search.statistics().unreadableFolderPaths;
    m_unreadableFiles = m_search.statistics().unreadableFiles;
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
    m_emptyColumns = columnsLeftEmpty(m_model.mainItems() + m_model.mainItemsHidden());
    updateListsLayout();
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

void Dupes::updateWindowTitle()
{
    setWindowTitle(resultsWindowTitle(m_titleLocations, m_titleMode, m_attributeName, windowFilePath()));
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
    updateOverview();
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
    return m_status.text;
}

QString Dupes::groupCaptionText() const
{
    return m_groupCaption->text();
}

QString Dupes::summaryText() const
{
    return m_summaryLine->isVisibleTo(this) ? m_summaryLine->text() : QString();
}

void Dupes::showActionSummary(const QString &summary)
{
    m_summaryLine->setText(summary);
    m_summaryLine->setVisible(!summary.isEmpty());
}

QString Dupes::pathBarText() const
{
    return m_pathControl->isVisibleTo(this) ? m_pathControl->toolTip() : QString();
}

void Dupes::updateStatus()
{
    if (m_ignoreSelectionChange || !m_finished) return;
    m_status = resultsStatus(m_model, activeList(), m_unreadable.size() + m_unreadableFiles);
    const QString caption = groupCaption(m_model.cloneItems());
    m_groupCaption->setText(caption.isEmpty() ? tr("Select one item above to see its group here.") : caption);
    const ResultsStatus &line = m_status;
    // The count of unreadable items is a link that lists them.
    QString html = line.text.toHtmlEscaped();
    if (!line.unreadable.isEmpty())
        html.replace(line.unreadable.toHtmlEscaped(),
                     QStringLiteral("<a href=\"unreadable\">%1</a>").arg(line.unreadable.toHtmlEscaped()));
    m_statusLine->setText(html);
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

void Dupes::showUnreadableItems()
{
    const qint64 count = m_unreadable.size() + m_unreadableFiles;
    if (count == 0) return;
    auto *box = new QMessageBox(QMessageBox::Information, windowTitle(),
                                tr("%Ln item(s) could not be read", nullptr, int(count)), QMessageBox::Ok, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(Qt::WindowModal);
    QStringList lines;
    if (!m_unreadable.isEmpty())
        lines.append(tr("These folders could not be listed, so nothing in them was searched:"));
    constexpr qsizetype kShown = 12;
    for (qsizetype i = 0; i < std::min(kShown, m_unreadable.size()); ++i)
        lines.append(displayPath(m_unreadable[i]));
    if (m_unreadable.size() > kShown)
        lines.append(tr("and %Ln more (all of them under Show Details)", nullptr, int(m_unreadable.size() - kShown)));
    if (m_unreadableFiles > 0)
        lines.append(tr("%Ln file(s) could not be read to compare their content.", nullptr, int(m_unreadableFiles)));
    box->setInformativeText(lines.join(QLatin1Char('\n')));
    if (m_unreadable.size() > kShown) {
        QStringList all;
        for (const QString &path : std::as_const(m_unreadable))
            all.append(displayPath(path));
        box->setDetailedText(all.join(QLatin1Char('\n')));
    }
    box->open();
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

void Dupes::closeEvent(QCloseEvent *event)
{
    m_icons.cancelPendingThumbnails();
    m_search.abortAndWait(true);
    Q_EMIT closed(this);
    event->accept();
}

} // namespace selfsame