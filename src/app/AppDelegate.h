#pragma once

#include "CatalogueSettings.h"
#include "CompareFoldersWarning.h"
#include "LaunchRequest.h"
#include "attributes/SpotlightAttributesManager.h"

#include <QFileDialog>
#include <QList>
#include <QMainWindow>
#include <QStringList>

class QAction;
class QMenu;

namespace selfsame {

class Dupes;
class LocationsModel;
class LocationsView;
class SearchOptionsPanel;
class Settings;
class WelcomePanel;

// The main window: the search locations, the options of a search, and the results windows
// that the searches open.
class AppDelegate : public QMainWindow {
    Q_OBJECT
public:
    explicit AppDelegate(Settings &settings, QWidget *parent = nullptr);
    ~AppDelegate() override;

    LocationsModel *sources() const { return m_sources; }
    LocationsView *sourcesTable() const { return m_sourcesTable; }
    SearchOptionsPanel *optionsPanel() const { return m_options; }
    const QList<Dupes *> &dupesList() const { return m_dupesList; }
    int searchingCount() const { return int(m_searchingDupesList.size()); }

    // Starts a search over the enabled locations, or asks for folders when none is enabled.
    void searchDuplicates();
    // Validates and saves the options, then opens a results window searching these locations.
    // Returns the new window, or null when an option was refused.
    Dupes *searchInFolderURLs(const QStringList &paths);
    void addURLs(const QStringList &paths, bool enabled, bool select, bool needsSaving);
    void addFolderWithButton(const QString &prompt, bool enable, bool search);
    // Files handed over by the desktop or a later start of the executable.
    void handleLaunch(const LaunchRequest &request);
    void showInOpenWindowOrAddURLs(const QStringList &paths);
    // Opens saved results in a results window of their own, or tells why it cannot.
    Dupes *openResults(const QString &path);
    void welcome();
    void showWelcomeAtStartup();
    // Opens the attribute chooser as a sheet over the window.
    void manageSpotlightAttributes();

protected:
    void closeEvent(QCloseEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    QWidget *buildLocations();
    void buildMenus();
    void loadSettings();
    void clearDigestCache();
    void placeWindow();
    // Opens a chooser modal to the window; the chosen items are added.
    static void allowSeveralFolders(QFileDialog *dialog);
    void chooseLocations(QFileDialog::FileMode fileMode, const QString &title, const QString &prompt,
                         bool enable, bool search);
    void compareFoldersWarning();
    void spotlightAttributesManagerTerminated(const std::optional<QString> &key);
    void toggleFindAllDupesForSingleFiles();
    void keepTopEdge(int heightDelta);
    void deleteTargetRows();
    void revealTargetRows();
    void validateLocationActions();
    // A results window, known to the application until it closes.
    Dupes *newDupes();
    void chooseResultsToOpen();
    void dupesFinishedSearching(Dupes *dupes);
    void dupesClosed(Dupes *dupes);
    void updateDock();

    Settings &m_settings;
    CatalogueSettings m_catalogueSettings{m_settings};
    SpotlightAttributesManager m_spotlightAttributesManager;
    LocationsModel *m_sources;
    LocationsView *m_sourcesTable;
    SearchOptionsPanel *m_options = nullptr;
    WelcomePanel *m_welcomePanel = nullptr;
    QAction *m_deleteAction;
    QAction *m_revealAction;
    QAction *m_resetDoNotShowAgainAction;
    CompareFoldersWarning m_compareFoldersWarning;
    QList<Dupes *> m_dupesList;
    QList<Dupes *> m_searchingDupesList;
};

} // namespace selfsame
