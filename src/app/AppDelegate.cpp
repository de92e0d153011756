#include "AppDelegate.h"

#include "Alert.h"
#include "AppName.h"
#include "AttributeChooser.h"
#include "Desktop.h"
#include "Dupes.h"
#include "LocalFiles.h"
#include "LocationsModel.h"
#include "LocationsView.h"
#include "UndoCommands.h"
#include "PutBackDialogue.h"
#include "ResultsFileDialogs.h"
#include "SearchDefaults.h"
#include "SearchOptionsPanel.h"
#include "Settings.h"
#include "WelcomePanel.h"
#include "results/ResultsFile.h"
#include "search/DigestCache.h"
#include "search/DuplicateSearch.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QDesktopServices>
#include <QAbstractItemView>
#include <QDir>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

namespace selfsame {

AppDelegate::AppDelegate(Settings &settings, QWidget *parent) : QMainWindow(parent), m_settings(settings)
{
    // The catalogue keeps the user's attributes in the same settings file.
    SpotlightAttributesManager::setSettingsStore(&m_catalogueSettings);
    m_sources = new LocationsModel(
        m_settings,
        [this] {
            return NestingRule{m_options->skipHiddenFiles(), m_options->depthLimit(), deviceOf};
        },
        this);

    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);
    // Created top to bottom, so that Tab follows the window from the locations down.
    layout->addWidget(buildLocations(), 1);
    m_options = new SearchOptionsPanel;
    layout->addSpacing(style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    layout->addWidget(m_options);
    auto *searchBtn = new QPushButton(QIcon::fromTheme(QStringLiteral("edit-find")), tr("&Search"));
    searchBtn->setToolTip(tr("Search the ticked locations for duplicates (Ctrl+Return)"));
    connect(searchBtn, &QPushButton::clicked, this, &AppDelegate::searchDuplicates);
    auto *bottom = new QHBoxLayout;
    bottom->addStretch(1);
    bottom->addWidget(searchBtn);
    layout->addLayout(bottom);
    setCentralWidget(central);
    setAcceptDrops(true);
    buildMenus();

    connect(m_options, &SearchOptionsPanel::compareFoldersCheckDue, this,
            &AppDelegate::compareFoldersWarning);
    connect(m_options, &SearchOptionsPanel::nestingRuleChanged, this, [this] { m_sources->refresh(true); });
    connect(m_options, &SearchOptionsPanel::findAllDupesForSingleFilesTurnedOn, this,
            &AppDelegate::toggleFindAllDupesForSingleFiles);
    connect(m_options, &SearchOptionsPanel::modeGroupResized, this, &AppDelegate::keepTopEdge);
    connect(m_options, &SearchOptionsPanel::detectionModeChanged, this,
            [this](int mode) { m_settings.setValue(key::detectionMode, mode); });
    connect(m_options, &SearchOptionsPanel::spotlightAttributeChosen, this,
            [this](const QString &key) { m_settings.setValue(key::spotlightAttribute, key); });
    connect(m_options, &SearchOptionsPanel::spotlightAttributesChooserRequested, this,
            &AppDelegate::manageSpotlightAttributes);
    connect(m_sources, &LocationsModel::singleFileEnabledChanged, m_options,
            &SearchOptionsPanel::setFindAllDupesForSingleFilesEnabled);
    connect(m_sourcesTable, &LocationsView::deleteRequested, this, &AppDelegate::deleteTargetRows);
    connect(m_sourcesTable, &LocationsView::searchRequested, this, &AppDelegate::searchDuplicates);
    connect(m_sourcesTable, &LocationsView::pathsDropped, this,
            [this](const QStringList &paths) { addURLs(paths, true, true, true); });

    loadSettings();
}

AppDelegate::~AppDelegate()
{
    SpotlightAttributesManager::setSettingsStore(nullptr);
}

QWidget *AppDelegate::buildLocations()
{
    auto *box = new QWidget;
    auto *layout = new QVBoxLayout(box);
    layout->setContentsMargins(0, 0, 0, 0);
    m_sourcesTable = new LocationsView;
    m_sourcesTable->setLocationsModel(m_sources);
    m_sourcesTable->setMinimumHeight(m_sourcesTable->fontMetrics().lineSpacing() * 7);
    auto *label = new QLabel(tr("Search &in:"));
    label->setBuddy(m_sourcesTable);
    layout->addWidget(label);
    layout->addWidget(m_sourcesTable, 1);

    auto *addBtn = new QPushButton(QIcon::fromTheme(QStringLiteral("list-add")), tr("&Add…"));
    addBtn->setToolTip(tr("Add folders or drives to search"));
    connect(addBtn, &QPushButton::clicked, this, [this] { addFolderWithButton(tr("Add"), true, false); });
    auto *removeBtn = new QPushButton(QIcon::fromTheme(QStringLiteral("list-remove")), tr("&Remove"));
    removeBtn->setToolTip(tr("Remove the selected locations from the list; nothing is deleted"));
    removeBtn->setEnabled(false);
    connect(removeBtn, &QPushButton::clicked, this, &AppDelegate::deleteTargetRows);
    connect(m_sourcesTable->selectionModel(), &QItemSelectionModel::selectionChanged, removeBtn,
            [this, removeBtn] { removeBtn->setEnabled(m_sourcesTable->selectionModel()->hasSelection()); });
    connect(m_sources, &QAbstractItemModel::modelReset, removeBtn,
            [removeBtn] { removeBtn->setEnabled(false); });
    auto *hint = new QLabel(tr("Drop folders or files here to add them."));
    hint->setForegroundRole(QPalette::PlaceholderText);
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(addBtn);
    buttons->addWidget(removeBtn);
    buttons->addSpacing(style()->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
    buttons->addWidget(hint, 1);
    layout->addLayout(buttons);
    return box;
}

void AppDelegate::buildMenus()
{
    QMenu *fileMenu = menuBar()->addMenu(tr("&File"));
    QAction *add = fileMenu->addAction(QIcon::fromTheme(QStringLiteral("list-add")), tr("&Add Folder…"), this,
                                       [this] { addFolderWithButton(tr("Add"), true, false); });
    add->setShortcut(QKeySequence::Open);
    // Folder choosers pick one folder; single files, several at once, come from their own chooser.
    QAction *addFiles = fileMenu->addAction(tr("Add &Files…"), this, [this] {
        chooseLocations(QFileDialog::ExistingFiles, tr("Choose Files to Find Duplicates Of"), tr("Add"), true,
                        false);
    });
    addFiles->setShortcut(QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_O));
    QAction *search = fileMenu->addAction(QIcon::fromTheme(QStringLiteral("edit-find")),
                                          tr("&Search for Duplicates"), this, &AppDelegate::searchDuplicates);
    search->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Return));
    fileMenu->addAction(QIcon::fromTheme(QStringLiteral("document-open")), tr("Open &Results…"), this,
                        &AppDelegate::chooseResultsToOpen);
    fileMenu->addSeparator();
    m_deleteAction = fileMenu->addAction(QIcon::fromTheme(QStringLiteral("list-remove")),
                                         tr("&Remove from List"), this, &AppDelegate::deleteTargetRows);
    m_revealAction = fileMenu->addAction(QIcon::fromTheme(QStringLiteral("document-open-folder")),
                                         tr("Show in File &Manager"), this, &AppDelegate::revealTargetRows);
    fileMenu->addSeparator();
    fileMenu->addAction(tr("Clear Digest &Cache"), this, &AppDelegate::clearDigestCache);
    fileMenu->addSeparator();
    QAction *quit = fileMenu->addAction(QIcon::fromTheme(QStringLiteral("application-exit")), tr("&Quit"),
                                        qApp, &QApplication::closeAllWindows);
    quit->setShortcut(QKeySequence::Quit);
    connect(fileMenu, &QMenu::aboutToShow, this, &AppDelegate::validateLocationActions);

    auto *contextMenu = new QMenu(this);
    contextMenu->addAction(m_deleteAction);
    contextMenu->addAction(m_revealAction);
    connect(contextMenu, &QMenu::aboutToShow, this, [this] {
        const bool rows = !m_sourcesTable->targetRows().isEmpty();
        m_deleteAction->setEnabled(rows);
        m_revealAction->setEnabled(rows);
    });
    m_sourcesTable->setContextMenu(contextMenu);

    UndoCommands::instance().addTo(menuBar()->addMenu(tr("&Edit")), this);

    QMenu *helpMenu = menuBar()->addMenu(tr("&Help"));
    helpMenu->addAction(tr("&Welcome to [NSApp]"), this, &AppDelegate::welcome);
    m_resetDoNotShowAgainAction = helpMenu->addAction(tr("Reset &Do Not Show Again"), this,
                                                      [this] { m_settings.remove(key::doNotShowAgain); });
    helpMenu->addAction(QIcon::fromTheme(QStringLiteral("mail-send")), tr("Send &Feedback…"), this,
                        composeFeedback);
    helpMenu->addSeparator();
    helpMenu->addAction(QIcon::fromTheme(QStringLiteral("help-about")), tr("&About [NSApp]"), this, [this] {
        QMessageBox::about(
            this, withAppName(tr("About [NSApp]")),
            withAppName(
                tr("<h3>[NSApp] %1</h3>"
                   "<p>Finds duplicate files by content, duration, name or metadata, and helps you "
                   "keep one copy.</p>"
                   "<p><b>Credits</b><br>Built with Qt, OpenSSL (SHA-512) and xxHash. Icons follow your "
                   "desktop's theme.</p>"))
                .arg(QApplication::applicationVersion()));
    });
    connect(helpMenu, &QMenu::aboutToShow, this, [this] {
        m_resetDoNotShowAgainAction->setEnabled(!m_settings.dictionary(key::doNotShowAgain).isEmpty());
    });
    for (QAction *menu : menuBar()->actions())
        replaceAppNameInMenu(menu->menu());
}

void AppDelegate::clearDigestCache()
{
    // Searches running now keep what they opened; the next search starts with an empty cache.
    const QString path = DigestCache::defaultPath();
    if (!DigestCache::clear(path))
        showAlert(this, QMessageBox::Warning, tr("The digest cache could not be cleared."),
                  tr("Check the permissions of %1.").arg(path), {tr("OK")}, [](int) {});
}

void AppDelegate::loadSettings()
{
    registerSearchDefaults(m_settings);
    m_settings.registerDefaults({{key::welcomeShowAtStartup, true}});
    migrateColumnsLayout(m_settings);
    m_spotlightAttributesManager.setActiveSpotlightAttributes(
        m_settings.stringListValue(key::activeSpotlightAttributes));
    placeWindow();
    m_options->setOptions(loadSearchOptions(m_settings));
    m_options->setAttributePopup(m_spotlightAttributesManager.updateSpotlightAttributePopup(
        m_settings.stringValue(key::spotlightAttribute)));
    m_sources->load();
    setWindowTitle(QApplication::applicationName());
    m_options->applyToggles();
}

void AppDelegate::placeWindow()
{
    resize(sizeHint().expandedTo(QSize(fontMetrics().averageCharWidth() * 80, 0)));
    if (!m_settings.boolValue(key::mainWindowInitialPosition)) {
        if (const QScreen *screen = QApplication::primaryScreen())
            move(screen->availableGeometry().topLeft());
        m_settings.setValue(key::mainWindowInitialPosition, true);
    } else {
        restoreGeometry(m_settings.value(key::mainWindowGeometry).toByteArray());
    }
}

void AppDelegate::closeEvent(QCloseEvent *event)
{
    m_settings.setValue(key::mainWindowGeometry, saveGeometry());
    QMainWindow::closeEvent(event);
}

void AppDelegate::compareFoldersWarning()
{
    if (!m_compareFoldersWarning.update(m_options->warningState()))
        return;
    // Queued, so that a warning due while the window is built opens over the shown window.
    QTimer::singleShot(0, this, [this] {
        showAlert(
            this, QMessageBox::Warning,
            tr("Skipping some files or subfolders while comparing folders can lead to false positives"),
            tr("You may however choose to ignore .app extensions if you don’t want to compare applications "
               "(which are actually file packages)."),
            {tr("Got It!")});
    });
}

void AppDelegate::manageSpotlightAttributes()
{
    auto *chooser = new AttributeChooser(m_spotlightAttributesManager, this);
    chooser->setAttribute(Qt::WA_DeleteOnClose);
    connect(chooser, &AttributeChooser::terminatedWithSelectedAttribute, this,
            &AppDelegate::spotlightAttributesManagerTerminated);
    chooser->open();
}

void AppDelegate::spotlightAttributesManagerTerminated(const std::optional<QString> &key)
{
    if (key)
        m_settings.setValue(key::spotlightAttribute, *key);
    m_options->setAttributePopup(m_spotlightAttributesManager.updateSpotlightAttributePopup(
        m_settings.stringValue(key::spotlightAttribute)));
}

void AppDelegate::toggleFindAllDupesForSingleFiles()
{
    showAlert(
        this, QMessageBox::Information,
        tr("Please select the folder or drive in which to search for duplicates of individual files."),
        tr("Note that you should not enable this location in the list (leave the checkbox unticked): "
           "it only tells Selfsame where copies of the files may be, and is not searched itself.\n\n"
           "You can designate more such folders by adding them to the folder list and leaving their "
           "checkboxes unticked."),
        {tr("Grant Access…"), tr("Cancel")}, [this](int answer) {
            if (answer == kFirstButton)
                addFolderWithButton(tr("Grant Access"), false, false);
            else
                m_options->turnFindAllDupesForSingleFilesOff();
        });
}

void AppDelegate::keepTopEdge(int heightDelta)
{
    // Resizing keeps the window's top-left corner, so the top edge stays in place.
    if (!isMaximized() && !isFullScreen())
        resize(width(), height() + heightDelta);
}

void AppDelegate::searchDuplicates()
{
    const QStringList paths = m_sources->enabledPaths();
    if (paths.isEmpty())
        addFolderWithButton(tr("Add"), true, true);
    else
        searchInFolderURLs(paths);
}

Dupes *AppDelegate::searchInFolderURLs(const QStringList &paths)
{
    const SearchStart start = startSearch(m_options->options(), paths, m_settings);
    if (!start.request) {
        showAlert(this, QMessageBox::Warning, invalidRegexMessage(start.invalidPattern.pattern),
                  start.invalidPattern.message, {tr("OK"), tr("Test Online…")}, [](int answer) {
                      if (answer == kFirstButton + 1)
                          QDesktopServices::openUrl(
                              QUrl(QStringLiteral("https://regex101.com/?flavor=pcre2")));
                  });
        return nullptr;
    }
    m_options->showCanonicalTexts(start.shownOptions);
    DuplicateSearch::setDigestCachePath(m_settings.boolValue(key::useDigestCache) ? DigestCache::defaultPath()
                                                                                   : QString());

    Dupes *dupes = newDupes();
    m_searchingDupesList.append(dupes);
    connect(dupes, &Dupes::finishedSearching, this, &AppDelegate::dupesFinishedSearching);
    updateDock();
    dupes->show();
    if (start.request->findAllDupesForSingleFiles) {
        // Copies of single files are looked for on the volumes of every location, switched on or off.
        QStringList designated = paths;
        for (const Location &location : m_sources->locations())
            designated.append(location.path);
        dupes->setSingleFileScopeVolumesOf(designated);
    }
    dupes->searchInFolderURLs(*start.request);
    return dupes;
}

void AppDelegate::addURLs(const QStringList &paths, bool enabled, bool select, bool needsSaving)
{
    const QList<int> touched = m_sources->addPaths(paths, enabled, needsSaving);
    if (select)
        m_sourcesTable->selectRows(touched);
    m_sourcesTable->setFocus(Qt::OtherFocusReason);
}

void AppDelegate::addFolderWithButton(const QString &prompt, bool enable, bool search)
{
    chooseLocations(QFileDialog::Directory, tr("Choose Folders to Search"), prompt, enable, search);
}

void AppDelegate::chooseLocations(QFileDialog::FileMode fileMode, const QString &title, const QString &prompt,
                                  bool enable, bool search)
{
    show();
    raise();
    activateWindow();
    auto *dialog = new QFileDialog(this, title);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(fileMode);
    dialog->setLabelText(QFileDialog::Accept, prompt);
    const QString previous = m_settings.stringValue(key::previousDirectory);
    dialog->setDirectory(previous.isEmpty() ? QDir::homePath() : previous);
    if (fileMode == QFileDialog::Directory) allowSeveralFolders(dialog);
    dialog->setWindowModality(Qt::WindowModal);
    connect(dialog, &QFileDialog::accepted, this, [this, dialog, enable, search] {
        m_settings.setValue(key::previousDirectory, dialog->directory().absolutePath());
        addURLs(dialog->selectedFiles(), enable, true, true);
        if (search)
            searchDuplicates();
    });
    dialog->open();
}

void AppDelegate::allowSeveralFolders(QFileDialog *dialog)
{
    // The desktop's own dialogs choose one folder at a time; Qt's own lists take several.
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    for (const char *name : {"listView", "treeView"})
        if (auto *view = dialog->findChild<QAbstractItemView *>(QLatin1String(name)))
            view->setSelectionMode(QAbstractItemView::ExtendedSelection);
}

void AppDelegate::handleLaunch(const LaunchRequest &launch)
{
    LaunchRequest request = launch;
    if (!request.search) {
        // Saved results open in windows of their own; files opened with them go on as usual.
        const auto results = std::stable_partition(request.paths.begin(), request.paths.end(),
                                                   [](const QString &path) { return !isResultsFile(path); });
        const QStringList resultFiles(results, request.paths.end());
        request.paths.erase(results, request.paths.end());
        for (const QString &path : resultFiles)
            openResults(path);
        if (!resultFiles.isEmpty() && request.paths.isEmpty()) return;
    }
    if (request.paths.isEmpty()) {
        showNormal();
        raise();
        activateWindow();
    } else if (request.search) {
        // A one-off: the saved locations stay as the user left them for the next search.
        // The results come to the front; the welcome panel would only stand in their way.
        if (m_welcomePanel && m_welcomePanel->isVisible()) m_welcomePanel->hide();
        if (Dupes *dupes = searchInFolderURLs(request.paths)) {
            dupes->raise();
            dupes->activateWindow();
        }
    } else if (const QStringList trashed = PutBackDialogue::trashedFiles(request.paths); !trashed.isEmpty()) {
        // Files from the trash are put back; the others opened with them are left alone.
        (new PutBackDialogue(this, trashed, int(request.paths.size())))->start();
    } else {
        showInOpenWindowOrAddURLs(request.paths);
    }
}

Dupes *AppDelegate::openResults(const QString &path)
{
    QApplication::setOverrideCursor(Qt::WaitCursor);
    ResultsFile::Loaded loaded = ResultsFile::load(path);
    QApplication::restoreOverrideCursor();
    if (!loaded.model) {
        showAlert(this, QMessageBox::Warning, tr("The results could not be opened."), loaded.error, {tr("OK")});
        return nullptr;
    }
    Dupes *dupes = newDupes();
    dupes->showSavedResults(std::move(*loaded.model), path);
    dupes->show();
    return dupes;
}

Dupes *AppDelegate::newDupes()
{
    auto *dupes = new Dupes(m_settings);
    m_dupesList.append(dupes);
    connect(dupes, &Dupes::closed, this, &AppDelegate::dupesClosed);
    connect(dupes, &Dupes::openResultsRequested, this, &AppDelegate::chooseResultsToOpen);
    return dupes;
}

void AppDelegate::chooseResultsToOpen()
{
    chooseResultsFileToOpen(this, [this](const QString &path) { openResults(path); });
}

void AppDelegate::showInOpenWindowOrAddURLs(const QStringList &paths)
{
    if (paths.size() == 1) {
        for (Dupes *dupes : m_dupesList) {
            if (dupes->selectAndRevealInTopList(paths.first()))
                return;
        }
    }
    auto addAndShow = [this, paths] {
        addURLs(paths, true, true, true);
        showNormal();
        raise();
        activateWindow();
    };
    const bool resultsWindowActive = std::any_of(m_dupesList.begin(), m_dupesList.end(),
                                                 [](const Dupes *dupes) { return dupes->isActiveWindow(); });
    if (resultsWindowActive && paths.size() == 1 && isRegularFile(paths.first())) {
        showAlert(nullptr, QMessageBox::Question,
                  tr("No duplicate found for “%1” in the current results").arg(displayName(paths.first())),
                  tr("Do you want to add this file to the list of locations to search?"),
                  {tr("Add Serarch Location"), tr("Cancel")}, [addAndShow](int answer) {
                      if (answer == kFirstButton)
                          addAndShow();
                  });
        return;
    }
    addAndShow();
}

void AppDelegate::welcome()
{
    if (!m_welcomePanel)
        m_welcomePanel = new WelcomePanel(m_settings, this);
    m_welcomePanel->showCentered();
}

void AppDelegate::showWelcomeAtStartup()
{
    if (m_settings.boolValue(key::welcomeShowAtStartup))
        welcome();
}

void AppDelegate::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void AppDelegate::dropEvent(QDropEvent *event)
{
    const QStringList paths = localPaths(event->mimeData()->urls());
    event->acceptProposedAction();
    if (!paths.isEmpty())
        addURLs(paths, true, true, true);
}

void AppDelegate::deleteTargetRows()
{
    const QList<int> rows = m_sourcesTable->targetRows();
    if (rows.isEmpty())
        return;
    m_sources->removeLocations(rows);
    m_sourcesTable->clearSelection();
}

void AppDelegate::revealTargetRows()
{
    QStringList paths;
    for (int row : m_sourcesTable->targetRows())
        paths.append(m_sources->locations().at(row).path);
    revealInFileManager(paths);
}

void AppDelegate::validateLocationActions()
{
    const bool enabled = m_sourcesTable->hasFocus() && !m_sourcesTable->targetRows().isEmpty();
    m_deleteAction->setEnabled(enabled);
    m_revealAction->setEnabled(enabled);
}

void AppDelegate::dupesFinishedSearching(Dupes *dupes)
{
    m_searchingDupesList.removeOne(dupes);
    updateDock();
}

void AppDelegate::dupesClosed(Dupes *dupes)
{
    m_dupesList.removeOne(dupes);
    m_searchingDupesList.removeOne(dupes);
    updateDock();
}

void AppDelegate::updateDock()
{
    const int count = searchingCount();
    const QString name = QApplication::applicationName();
    if (count == 0)
        setWindowTitle(name);
    else
        setWindowTitle(tr("%1 — %Ln (search|searches) running", nullptr, count).arg(name));
    showLauncherCount(count);
}

} // namespace selfsame
