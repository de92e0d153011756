#include "AppDelegate.h"

#include "Dupes.h"
#include "LocationsModel.h"
#include "LocationsView.h"
#include "SearchDefaults.h"
#include "SearchOptionsPanel.h"
#include "Settings.h"
#include "WelcomePanel.h"
#include "fileops/Trash.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QAbstractItemView>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QUrl>
#include <gtest/gtest.h>

using namespace selfsame;

namespace {

struct MainWindow {
    QTemporaryDir dir;
    Settings settings{dir.filePath(QStringLiteral("Selfsame.conf"))};
    std::unique_ptr<AppDelegate> window;

    AppDelegate &open()
    {
        window = std::make_unique<AppDelegate>(settings);
        window->show();
        QApplication::processEvents();
        return *window;
    }
    ~MainWindow()
    {
        for (Dupes *dupes : QList<Dupes *>(window ? window->dupesList() : QList<Dupes *>()))
            dupes->close();
    }
    QList<bool> savedFlags()
    {
        QList<bool> flags;
        for (const QVariantMap &row : settings.recordList(key::searchLocations))
            flags.append(row.value(QStringLiteral("enabled")).toBool());
        return flags;
    }
};

QList<QMessageBox *> openAlerts()
{
    QApplication::processEvents();
    QList<QMessageBox *> boxes;
    for (QWidget *w : QApplication::topLevelWidgets()) {
        if (auto *box = qobject_cast<QMessageBox *>(w); box && box->isVisible())
            boxes.append(box);
    }
    return boxes;
}

void closeAlerts()
{
    for (QMessageBox *box : openAlerts())
        box->done(0);
    QApplication::processEvents();
}

bool waitForSearches(const AppDelegate &window)
{
    return QTest::qWaitFor([&] { return window.searchingCount() == 0; }, 20000);
}

} // namespace

TEST(AppDelegate, FirstLaunchPlacesTheWindowOnceAndWritesNoDefaults)
{
    MainWindow m;
    AppDelegate &w = m.open();
    EXPECT_EQ(w.windowTitle(), QStringLiteral("Selfsame"));
    EXPECT_TRUE(m.settings.boolValue(key::mainWindowInitialPosition));
    EXPECT_TRUE(m.settings.boolValue(key::columnsLayoutV2));
    EXPECT_TRUE(m.settings.boolValue(key::welcomeShowAtStartup));
    EXPECT_FALSE(m.settings.isStored(key::welcomeShowAtStartup));
    EXPECT_FALSE(m.settings.isStored(key::skipHiddenFiles));
    EXPECT_TRUE(openAlerts().isEmpty());
}

TEST(AppDelegate, KeysInTheLocationsTableToggleRemoveAndSearch)
{
    TempTree tree;
    tree.build({"a/", "b/", "c.jpg"});
    MainWindow m;
    AppDelegate &w = m.open();
    w.addURLs(
        {tree.path(QStringLiteral("a")), tree.path(QStringLiteral("b")), tree.path(QStringLiteral("c.jpg"))},
        true, true, true);
    LocationsView *table = w.sourcesTable();
    EXPECT_EQ(table->targetRows(), (QList<int>{0, 1, 2}));
    EXPECT_EQ(m.savedFlags(), (QList<bool>{true, true, true}));

    QTest::keyClick(table, Qt::Key_Space);
    EXPECT_EQ(m.savedFlags(), (QList<bool>{false, false, false})) << "the last row decides for all";
    table->selectRows({0, 2});
    w.sources()->addPaths({tree.path(QStringLiteral("c.jpg"))}, true, true);
    QTest::keyClick(table, Qt::Key_Space);
    EXPECT_EQ(m.savedFlags(), (QList<bool>{false, false, false}));

    table->selectRows({1});
    QTest::keyClick(table, Qt::Key_Delete);
    ASSERT_EQ(w.sources()->locations().size(), 2);
    EXPECT_EQ(m.settings.recordList(key::searchLocations).size(), 2);
    EXPECT_EQ(w.sources()->locations()[1].path, tree.path(QStringLiteral("c.jpg")));

    table->selectRows({0});
    QTest::keyClick(table, Qt::Key_Space);
    QTest::keyClick(table, Qt::Key_Return);
    EXPECT_EQ(w.dupesList().size(), 1);
    EXPECT_TRUE(waitForSearches(w));
}

TEST(AppDelegate, NestedLocationsAndTheSingleFileOption)
{
    TempTree tree;
    tree.build({"photos/2023/", "photos/.hidden/x/", "one.jpg"});
    MainWindow m;
    AppDelegate &w = m.open();
    auto *singleFiles = w.findChild<QCheckBox *>(QStringLiteral("findAllDupesForSingleFilesBtn"));
    ASSERT_TRUE(singleFiles);
    w.addURLs({tree.path(QStringLiteral("photos/2023")), tree.path(QStringLiteral("photos/.hidden/x"))}, true,
              true, true);
    w.addURLs({tree.path(QStringLiteral("photos"))}, true, true, true);
    EXPECT_EQ(m.savedFlags(), (QList<bool>{false, true, true})) << "the hidden step keeps x enabled";
    EXPECT_FALSE(singleFiles->isEnabled());

    w.addURLs({tree.path(QStringLiteral("one.jpg"))}, true, false, true);
    EXPECT_TRUE(singleFiles->isEnabled());
    w.addURLs({tree.path(QStringLiteral("one.jpg"))}, false, false, true);
    EXPECT_FALSE(singleFiles->isEnabled());
}

TEST(AppDelegate, CopiesOfASingleFileAreLookedForOnTheVolumesOfSwitchedOffLocationsToo)
{
    // The desktop's index knows nothing of volumes mounted a moment ago: the walk answers.
    QTemporaryDir noBus;
    qputenv("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + QFile::encodeName(noBus.filePath(QStringLiteral("bus"))));
    MountedVolume photos(QStringLiteral("tmpfs")), backup(QStringLiteral("tmpfs"));
    for (MountedVolume *volume : {&photos, &backup})
        if (const QString reason = volume->mount(); !reason.isEmpty())
            GTEST_SKIP() << reason.toStdString();
    const QByteArray bytes = patternBytes(50'000, 7);
    auto write = [](const QString &path, const QByteArray &content) {
        QDir().mkpath(QFileInfo(path).path());
        QFile file(path);
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    };
    const QString original = photos.path(QStringLiteral("2024/beach.jpg"));
    const QString copy = backup.path(QStringLiteral("old/beach copy.jpg"));
    ASSERT_TRUE(write(original, bytes) && write(copy, bytes) &&
                write(backup.path(QStringLiteral("old/other.jpg")), patternBytes(50'000, 8)));

    MainWindow m;
    AppDelegate &w = m.open();
    w.addURLs({backup.path(QStringLiteral("old"))}, false, false, true);
    w.addURLs({original}, true, false, true);
    auto *singleFiles = w.findChild<QCheckBox *>(QStringLiteral("findAllDupesForSingleFilesBtn"));
    ASSERT_TRUE(singleFiles && singleFiles->isEnabled());
    singleFiles->setChecked(true);
    Dupes *dupes = w.searchInFolderURLs(w.sources()->enabledPaths());
    ASSERT_TRUE(dupes && waitForSearches(w));
    QStringList found;
    for (const ResultItem *item : dupes->resultModel().mainItems())
        found.append(item->path);
    QStringList expected{original, copy};
    found.sort();
    expected.sort();
    EXPECT_EQ(found.join(u'\n').toStdString(), expected.join(u'\n').toStdString());
}

TEST(AppDelegate, DroppedItemsAreAppendedEnabledAndSelected)
{
    TempTree tree;
    tree.build({"a/", "b/", "c/"});
    MainWindow m;
    AppDelegate &w = m.open();
    w.addURLs({tree.path(QStringLiteral("a"))}, false, false, true);
    QMimeData mime;
    mime.setUrls({QUrl::fromLocalFile(tree.path(QStringLiteral("c"))),
                  QUrl::fromLocalFile(tree.path(QStringLiteral("b"))),
                  QUrl(QStringLiteral("https://example.org/"))});
    QDragEnterEvent enter(QPoint(2, 2), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(w.sourcesTable()->viewport(), &enter);
    QDropEvent drop(QPointF(2, 2), Qt::CopyAction, &mime, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(w.sourcesTable()->viewport(), &drop);
    ASSERT_EQ(w.sources()->locations().size(), 3);
    EXPECT_EQ(w.sources()->locations()[1].path, tree.path(QStringLiteral("c")));
    EXPECT_EQ(w.sources()->locations()[2].path, tree.path(QStringLiteral("b")));
    EXPECT_EQ(w.sourcesTable()->targetRows(), (QList<int>{1, 2}));
    EXPECT_EQ(m.savedFlags(), (QList<bool>{false, true, true}));
}

TEST(AppDelegate, LocationsComeBackAtTheNextStart)
{
    TempTree tree;
    tree.build({"a/", "b/"});
    MainWindow m;
    m.open().addURLs({tree.path(QStringLiteral("a")), tree.path(QStringLiteral("b"))}, true, false, true);
    m.window->addURLs({tree.path(QStringLiteral("b"))}, false, false, true);
    AppDelegate &again = m.open();
    ASSERT_EQ(again.sources()->locations().size(), 2);
    EXPECT_EQ(again.sources()->enabledPaths(), QStringList{tree.path(QStringLiteral("a"))});
}

TEST(AppDelegate, EachSearchOpensAResultsWindowCountedInTheTitle)
{
    TempTree tree;
    tree.build({"x/a:3", "x/b:3", "x/c:4", "y/d:5", "y/e:5"});
    MainWindow m;
    AppDelegate &w = m.open();
    Dupes *first = w.searchInFolderURLs({tree.path(QStringLiteral("x"))});
    Dupes *second = w.searchInFolderURLs({tree.path(QStringLiteral("y"))});
    ASSERT_TRUE(first && second);
    EXPECT_EQ(w.dupesList().size(), 2);
    // searchDone is queued to this thread, so both are still searching here.
    EXPECT_EQ(w.searchingCount(), 2);
    EXPECT_TRUE(w.windowTitle().contains(QStringLiteral("2 searches running")))
        << w.windowTitle().toStdString();
    ASSERT_TRUE(waitForSearches(w));
    EXPECT_EQ(w.windowTitle(), QStringLiteral("Selfsame"));

    // A file that a results window holds is shown there, not added to the locations.
    w.showInOpenWindowOrAddURLs({tree.path(QStringLiteral("x/a"))});
    EXPECT_TRUE(w.sources()->locations().isEmpty());
    EXPECT_TRUE(openAlerts().isEmpty());
    // Several files are added without asking.
    w.showInOpenWindowOrAddURLs({tree.path(QStringLiteral("x/c")), tree.path(QStringLiteral("y/d"))});
    EXPECT_EQ(w.sources()->locations().size(), 2);

    first->close();
    EXPECT_EQ(w.dupesList(), QList<Dupes *>{second});
}

TEST(AppDelegate, ClosingARunningSearchAbortsItAndForgetsTheWindow)
{
    TempTree tree;
    for (int i = 0; i < 300; ++i)
        tree.file(QStringLiteral("f/%1").arg(i), patternBytes(200'000, i % 150));
    MainWindow m;
    AppDelegate &w = m.open();
    Dupes *dupes = w.searchInFolderURLs({tree.path(QStringLiteral("f"))});
    ASSERT_TRUE(dupes);
    dupes->close();
    EXPECT_TRUE(w.dupesList().isEmpty());
    EXPECT_EQ(w.searchingCount(), 0);
    EXPECT_EQ(w.windowTitle(), QStringLiteral("Selfsame"));
}

TEST(AppDelegate, AnInvalidSkipPatternRefusesTheSearchWithAnAlert)
{
    MainWindow m;
    m.settings.setValue(key::skipFilenameMatchingPatterns, true);
    m.settings.setValue(key::skipFilenamePatterns, QStringLiteral("*.tmp\n/(/"));
    AppDelegate &w = m.open();
    EXPECT_EQ(w.searchInFolderURLs({m.dir.path()}), nullptr);
    const QList<QMessageBox *> alerts = openAlerts();
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts[0]->text(), QStringLiteral("Invalid regular expression:\n^($"));
    EXPECT_EQ(alerts[0]->buttons().size(), 2);
    closeAlerts();
    EXPECT_TRUE(w.dupesList().isEmpty());
}

TEST(AppDelegate, SavedRiskySettingsWarnOnceAtLoading)
{
    MainWindow m;
    m.settings.setValue(key::compareFolders, true);
    AppDelegate &w = m.open();
    QList<QMessageBox *> alerts = openAlerts();
    ASSERT_EQ(alerts.size(), 1) << "content mode, compare folders and the default size filter";
    EXPECT_EQ(alerts[0]->text(),
              QStringLiteral(
                  "Skipping some files or subfolders while comparing folders can lead to false positives"));
    closeAlerts();

    auto *extensions = w.findChild<QCheckBox *>(QStringLiteral("extensionChk"));
    auto *sizes = w.findChild<QCheckBox *>(QStringLiteral("filterFileSizeChk"));
    extensions->click();
    EXPECT_TRUE(openAlerts().isEmpty()) << "still the same risky combination";
    extensions->click();
    sizes->click();
    EXPECT_TRUE(openAlerts().isEmpty()) << "safe now";
    sizes->click();
    EXPECT_EQ(openAlerts().size(), 1) << "risky again";
    closeAlerts();
}

TEST(AppDelegate, ModeChangesAreSavedAtOnce)
{
    MainWindow m;
    AppDelegate &w = m.open();
    auto *modes = qobject_cast<QComboBox *>(w.optionsPanel()->modeSelector());
    ASSERT_TRUE(modes);
    modes->setCurrentIndex(2);
    Q_EMIT modes->activated(2);
    EXPECT_EQ(m.settings.integerValue(key::detectionMode), 2);
    EXPECT_TRUE(m.settings.isStored(key::detectionMode));
}

TEST(AppDelegate, SearchRequestsFromOutsideAreOneOffsThatLeaveTheLocationsAlone)
{
    TempTree tree;
    tree.build({"here/a:1", "here/b:1", "kept/c:1"});
    MainWindow m;
    AppDelegate &w = m.open();
    w.addURLs({tree.path(QStringLiteral("kept"))}, true, false, true);
    const QList<QVariantMap> saved = m.settings.recordList(key::searchLocations);
    w.showWelcomeAtStartup();
    auto *panel = w.findChild<WelcomePanel *>();
    ASSERT_TRUE(panel && panel->isVisible());

    w.handleLaunch({true, {tree.path(QStringLiteral("here"))}});
    EXPECT_EQ(w.sources()->enabledPaths(), QStringList{tree.path(QStringLiteral("kept"))});
    EXPECT_EQ(m.settings.recordList(key::searchLocations), saved);
    ASSERT_EQ(w.dupesList().size(), 1);
    EXPECT_EQ(w.dupesList().first()->windowTitle(), QStringLiteral("here — by content — Selfsame"));
    EXPECT_FALSE(panel->isVisible()) << "the welcome panel does not cover the results";
    EXPECT_TRUE(waitForSearches(w));
    // The next plain search is the saved one.
    w.searchDuplicates();
    ASSERT_EQ(w.dupesList().size(), 2);
    EXPECT_EQ(w.dupesList().last()->windowTitle(), QStringLiteral("kept — by content — Selfsame"));
    EXPECT_TRUE(waitForSearches(w));
}

TEST(AppDelegate, AddStartsAtHomeAndTakesSeveralFolders)
{
    MainWindow m;
    AppDelegate &w = m.open();
    w.addFolderWithButton(QStringLiteral("Add"), true, false);
    auto *dialog = w.findChild<QFileDialog *>();
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->directory().absolutePath(), QDir::homePath());
    auto *list = dialog->findChild<QAbstractItemView *>(QStringLiteral("listView"));
    ASSERT_TRUE(list);
    EXPECT_EQ(list->selectionMode(), QAbstractItemView::ExtendedSelection);
    dialog->reject();
}

TEST(AppDelegate, TheWelcomePanelRemembersItsCheckBoxWhenClosed)
{
    MainWindow m;
    AppDelegate &w = m.open();
    w.showWelcomeAtStartup();
    auto *panel = w.findChild<WelcomePanel *>();
    ASSERT_TRUE(panel && panel->isVisible());
    EXPECT_TRUE(panel->windowTitle().contains(QStringLiteral("Selfsame")));
    panel->findChild<QCheckBox *>()->setChecked(false);
    panel->reject();
    EXPECT_FALSE(m.settings.boolValue(key::welcomeShowAtStartup));
    panel->reject();
    EXPECT_TRUE(m.settings.isStored(key::welcomeShowAtStartup));

    AppDelegate &again = m.open();
    again.showWelcomeAtStartup();
    EXPECT_EQ(again.findChild<WelcomePanel *>(), nullptr);
}

TEST(AppDelegate, ResetDoNotShowAgainIsOfferedOnlyWithSomethingToReset)
{
    MainWindow m;
    AppDelegate &w = m.open();
    QMenu *help = nullptr;
    for (QAction *action : w.menuBar()->actions()) {
        if (action->text() == QStringLiteral("&Help"))
            help = action->menu();
    }
    ASSERT_TRUE(help);
    QAction *reset = nullptr;
    for (QAction *action : help->actions()) {
        if (action->text().contains(QStringLiteral("Not Show Again")))
            reset = action;
    }
    ASSERT_TRUE(reset);
    Q_EMIT help->aboutToShow();
    EXPECT_FALSE(reset->isEnabled());
    m.settings.setDictionaryValue(key::doNotShowAgain, QStringLiteral("some alert"), 1000);
    Q_EMIT help->aboutToShow();
    ASSERT_TRUE(reset->isEnabled());
    reset->trigger();
    EXPECT_TRUE(m.settings.dictionary(key::doNotShowAgain).isEmpty());
    Q_EMIT help->aboutToShow();
    EXPECT_FALSE(reset->isEnabled());
}

namespace {

// A home and data folder of the test's own, so that trashing never reaches the user's trash.
class OpeningTrashedFiles : public ::testing::Test {
protected:
    void SetUp() override
    {
        m_oldData = qgetenv("XDG_DATA_HOME");
        m_oldHome = qgetenv("HOME");
        qputenv("XDG_DATA_HOME", home.path(QStringLiteral("data")).toUtf8());
        qputenv("HOME", home.path().toUtf8());
    }
    void TearDown() override
    {
        qputenv("XDG_DATA_HOME", m_oldData);
        qputenv("HOME", m_oldHome);
    }
    QString trashed(const QString &rel)
    {
        const TrashResult result = trashItem(home.file(rel, "contents"));
        EXPECT_FALSE(result.trashedPath.isEmpty()) << result.errorText.toStdString();
        return result.trashedPath;
    }
    static void answer(const QString &buttonText)
    {
        const QList<QMessageBox *> alerts = openAlerts();
        ASSERT_EQ(alerts.size(), 1);
        for (QAbstractButton *button : alerts[0]->buttons()) {
            if (button->text() == buttonText)
                return button->click();
        }
        FAIL() << "no button " << buttonText.toStdString();
    }
    TempTree home;

private:
    QByteArray m_oldData, m_oldHome;
};

} // namespace

TEST_F(OpeningTrashedFiles, PutsThemBackAndOpensNothingElse)
{
    const QString first = trashed(QStringLiteral("docs/first.txt"));
    const QString second = trashed(QStringLiteral("docs/second.txt"));
    const QString other = home.file(QStringLiteral("other.txt"), "x");
    MainWindow m;
    AppDelegate &w = m.open();
    w.handleLaunch({false, {first, other, second}});
    ASSERT_EQ(openAlerts().size(), 1);
    EXPECT_TRUE(openAlerts()[0]->text().contains(QStringLiteral("first.txt")));
    EXPECT_EQ(openAlerts()[0]->buttons().size(), 3) << "Put Back All is offered for several files";
    answer(QStringLiteral("Cancel"));
    ASSERT_EQ(openAlerts().size(), 1) << "the next file is asked about";
    answer(QStringLiteral("Put Back"));
    EXPECT_TRUE(openAlerts().isEmpty());
    EXPECT_FALSE(QFileInfo::exists(home.path(QStringLiteral("docs/first.txt"))));
    EXPECT_TRUE(QFileInfo::exists(first));
    EXPECT_TRUE(QFileInfo::exists(home.path(QStringLiteral("docs/second.txt"))));
    EXPECT_TRUE(w.sources()->locations().isEmpty()) << "the ordinary file is not added";
}

TEST_F(OpeningTrashedFiles, PutBackAllAsksNoMore)
{
    const QString first = trashed(QStringLiteral("a.txt"));
    const QString second = trashed(QStringLiteral("b.txt"));
    MainWindow m;
    AppDelegate &w = m.open();
    w.handleLaunch({false, {first, second}});
    answer(QStringLiteral("Put Back All"));
    EXPECT_TRUE(openAlerts().isEmpty());
    EXPECT_TRUE(QFileInfo::exists(home.path(QStringLiteral("a.txt"))));
    EXPECT_TRUE(QFileInfo::exists(home.path(QStringLiteral("b.txt"))));
}

TEST_F(OpeningTrashedFiles, AnOccupiedPlaceIsReportedAndNothingIsOverwritten)
{
    const QString first = trashed(QStringLiteral("a.txt"));
    home.file(QStringLiteral("a.txt"), "newer");
    MainWindow m;
    AppDelegate &w = m.open();
    w.handleLaunch({false, {first}});
    EXPECT_EQ(openAlerts()[0]->buttons().size(), 2) << "no Put Back All for one file";
    answer(QStringLiteral("Put Back"));
    ASSERT_EQ(openAlerts().size(), 1);
    EXPECT_TRUE(openAlerts()[0]->text().startsWith(QStringLiteral("Error:")));
    answer(QStringLiteral("Cancel"));
    EXPECT_TRUE(openAlerts().isEmpty());
    QFile kept(home.path(QStringLiteral("a.txt")));
    ASSERT_TRUE(kept.open(QIODevice::ReadOnly));
    EXPECT_EQ(kept.readAll(), QByteArray("newer"));
    EXPECT_TRUE(QFileInfo::exists(first));
}

TEST(AppDelegate, AFileMissingFromTheActiveResultsWindowIsAddedOnlyWhenTheUserAgrees)
{
    TempTree tree;
    tree.build({"x/a:3", "x/b:3", "x/c:4"});
    MainWindow m;
    AppDelegate &w = m.open();
    Dupes *dupes = w.searchInFolderURLs({tree.path(QStringLiteral("x"))});
    ASSERT_TRUE(dupes && waitForSearches(w));
    dupes->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dupes));

    const QString unique = tree.path(QStringLiteral("x/c"));
    w.showInOpenWindowOrAddURLs({unique});
    QList<QMessageBox *> alerts = openAlerts();
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_EQ(alerts[0]->text(), QStringLiteral("No duplicate found for “c” in the current results"));
    EXPECT_EQ(alerts[0]->buttons().size(), 2);
    closeAlerts();
    EXPECT_TRUE(w.sources()->locations().isEmpty()) << "closing the alert cancels";

    dupes->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dupes));
    w.showInOpenWindowOrAddURLs({unique});
    alerts = openAlerts();
    ASSERT_EQ(alerts.size(), 1);
    for (QAbstractButton *button : alerts[0]->buttons()) {
        if (button->text() == QStringLiteral("Add Serarch Location"))
            button->click();
    }
    EXPECT_EQ(w.sources()->enabledPaths(), QStringList{unique});
}
