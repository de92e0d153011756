// Where the keys and commands of a results window go, what its status and summary lines say,
// and the texts behind them: titles, trash alerts, summaries, plural forms, empty columns.
#include "ActionSummary.h"
#include "Alert.h"
#include "ColumnDefaults.h"
#include "DupesActions.h"
#include "language/EnglishPlurals.h"
#include "FilterBar.h"
#include "FocusRing.h"
#include "ResultWindowFixture.h"
#include "ResultsStatus.h"
#include "fileops/DesktopAlerts.h"
#include "WindowTitles.h"
#include "fileops/CloneAlerts.h"
#include "fileops/CloneWorker.h"
#include "fileops/DeleteChecks.h"
#include "support/FileItems.h"
#include "support/MediaFiles.h"
#include "support/TrashHome.h"

#include <QAction>
#include <QApplication>
#include <QDesktopServices>
#include <QDir>
#include <QFile>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>

#include <unistd.h>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>

using namespace selfsame;

namespace {

struct FocusedWindow : ResultWindow {
    FocusedWindow()
    {
        dupes->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(dupes));
    }
    bool lit(ResultListView *view) const { return qobject_cast<FocusRing *>(view->parentWidget())->isLit(); }
    void key(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(key), modifiers);
    }
};

} // namespace

TEST(ResultWindowFocus, TabAndF6CycleThroughTheFilterBarAndBothListsAndTheFocusedListIsLit)
{
    FocusedWindow w;
    w.click(w.top(), QStringLiteral("a"));
    ASSERT_EQ(QApplication::focusWidget(), w.top());
    EXPECT_TRUE(w.lit(w.top()));
    EXPECT_FALSE(w.lit(w.bottom()));

    w.key(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), w.bottom()) << "Tab leaves the top list for the bottom list";
    EXPECT_EQ(w.dupes->activeList(), ResultList::Bottom);
    EXPECT_TRUE(w.lit(w.bottom()));
    EXPECT_FALSE(w.lit(w.top()));
    w.key(Qt::Key_Tab);
    EXPECT_TRUE(w.dupes->filterBar()->isAncestorOf(QApplication::focusWidget())) << "then the filter bar";
    w.key(Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), w.bottom());
    w.key(Qt::Key_Backtab);
    EXPECT_EQ(QApplication::focusWidget(), w.top());
    EXPECT_EQ(w.dupes->activeList(), ResultList::Top);

    // F6 runs through the three parts, Shift+F6 back; Ctrl+Tab as F6.
    const QList<QWidget *> cycle{w.bottom(), w.dupes->filterBar()->textField(), w.top()};
    for (QWidget *expected : cycle) {
        w.key(Qt::Key_F6);
        EXPECT_EQ(QApplication::focusWidget(), expected) << expected->objectName().toStdString();
    }
    w.key(Qt::Key_F6, Qt::ShiftModifier);
    EXPECT_EQ(QApplication::focusWidget(), w.dupes->filterBar()->textField());
    w.key(Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(QApplication::focusWidget(), w.top());
    // Typing in the filter field never reaches the commands of the lists.
    w.key(Qt::Key_F6, Qt::ShiftModifier);
    w.key(Qt::Key_Delete);
    EXPECT_EQ(w.top()->model()->rowCount(), 5);
}

TEST(ResultWindowFocus, CommandsActOnTheSelectionOfTheFocusedListAndSayWhatTheyDid)
{
    TrashHome home;
    FocusedWindow w;
    QStringList asked;
    setAlertAnswerer([&](const Alert &alert) {
        asked.append(alert.message);
        return AlertAnswer{kFirstButton};
    });
    w.click(w.top(), QStringLiteral("a"));
    w.key(Qt::Key_Tab);
    w.key(Qt::Key_Down);
    ASSERT_EQ(w.dupes->activeList(), ResultList::Bottom);
    const QList<ResultItem *> targets = w.dupes->targetItems();
    ASSERT_EQ(targets.size(), 1);
    ASSERT_EQ(w.selectedNames(w.bottom()), QStringList{targets.first()->name()});
    const QString target = targets.first()->path;
    EXPECT_EQ(w.dupes->resultActions().files->targets().list, ResultList::Bottom);
    EXPECT_EQ(w.dupes->resultActions().files->moveToTrashAction()->toolTip(),
              QStringLiteral("Moves the 1 file selected in the bottom list to the Trash"));

    w.key(Qt::Key_Delete);
    setAlertAnswerer({});
    EXPECT_EQ(asked.size(), 1) << "the one-time note on putting back";
    EXPECT_FALSE(QFileInfo::exists(target)) << "the bottom list's selection went to the trash";
    for (const char *name : {"a", "b", "sub/c"}) {
        const QString path = w.tree.path(QStringLiteral("x/") + QLatin1String(name));
        EXPECT_EQ(QFileInfo::exists(path), path != target) << name;
    }

    // The row stays, greyed, and the bottom list says what became of it.
    const QString name = QFileInfo(target).fileName();
    EXPECT_EQ(w.cell(w.bottom(), name, QStringLiteral("clone")), QStringLiteral("in Trash"));
    const QVariant grey = w.bottom()->model()->data(w.bottom()->model()->index(w.rowOf(w.bottom(), name), 0),
                                                    Qt::ForegroundRole);
    EXPECT_EQ(grey.value<QColor>(), QGuiApplication::palette().color(QPalette::Disabled, QPalette::Text));
    EXPECT_EQ(w.dupes->summaryText(),
              QStringLiteral("Moved 1 file to the Trash (4.1 kB is freed when the Trash is emptied)."));
    EXPECT_TRUE(w.dupes->statusText().startsWith(QStringLiteral("2 groups · 4 files · 12.3 kB reclaimable")))
        << w.dupes->statusText().toStdString();
}

TEST(ResultWindowTexts, StatusLineCountsGroupsFilesSpaceAndWhatIsHiddenUnreadableOrMissing)
{
    QList<ResultItem> items;
    for (int i = 0; i < 4; ++i) {
        ResultItem item;
        item.path = QStringLiteral("/m/f%1").arg(i);
        item.group = i / 2;
        item.physicalSize = 1'500'000;
        item.inode = quint64(100 + i);
        items.append(item);
    }
    items[3].set(Missing);
    ResultModel model;
    SearchRequest request;
    request.searchInFolderURLs = {QStringLiteral("/m")};
    model.setResults(items, request);
    EXPECT_EQ(resultsStatus(model, ResultList::Top, 0).text,
              QStringLiteral("1 group · 3 files · 1.5 MB reclaimable · 1 missing"));
    const ResultsStatus unreadable = resultsStatus(model, ResultList::Top, 1234);
    EXPECT_EQ(unreadable.text, QStringLiteral("1 group · 3 files · 1.5 MB reclaimable · 1,234 unreadable · 1 missing"));
    EXPECT_EQ(unreadable.unreadable, QStringLiteral("1,234 unreadable"));

    model.select(ResultList::Top, {model.mainItems()[0], model.mainItems()[2]});
    const ResultsStatus two = resultsStatus(model, ResultList::Bottom, 0);
    EXPECT_TRUE(two.text.endsWith(QStringLiteral(" — 2 selected (3.0 MB on disk)"))) << two.text.toStdString()
        << ": an empty bottom list counts as the top list";
    EXPECT_TRUE(two.path.isEmpty());
    model.select(ResultList::Top, {model.mainItems()[0]});
    const ResultsStatus one = resultsStatus(model, ResultList::Bottom, 0);
    EXPECT_TRUE(one.text.endsWith(QStringLiteral(" — 1 duplicate selected (1.5 MB on disk)"))) << one.text.toStdString();
    EXPECT_EQ(one.path, model.selectedItems(ResultList::Bottom).first()->path);
}

TEST(ResultWindowTexts, TitlesNameTheLocationOrResultsFileAndTheMode)
{
    EXPECT_EQ(resultsWindowTitle({QStringLiteral("/home/u/Photos")}, DetectionMode::Duration, {}),
              QStringLiteral("Photos — by duration — Selfsame"));
    EXPECT_EQ(resultsWindowTitle({QStringLiteral("/a"), QStringLiteral("/b")}, DetectionMode::Content, {}),
              QStringLiteral("2 locations — by content — Selfsame"));
    EXPECT_EQ(resultsWindowTitle({QStringLiteral("/m")}, DetectionMode::Attribute, QStringLiteral("Title")),
              QStringLiteral("m — by Title — Selfsame"));
    EXPECT_EQ(resultsWindowTitle({QStringLiteral("/m")}, DetectionMode::FileName, {}, QStringLiteral("/s/Old scan.selfsame")),
              QStringLiteral("Old scan.selfsame — by name — Selfsame"));

    ResultWindow w(DetectionMode::FileName);
    EXPECT_EQ(w.dupes->windowTitle(), QStringLiteral("x — by name — Selfsame"));
    ASSERT_TRUE(w.dupes->saveResults(w.tree.path(QStringLiteral("kept.selfsame"))).isEmpty());
    EXPECT_EQ(w.dupes->windowTitle(), QStringLiteral("kept.selfsame — by name — Selfsame"));
}

TEST(ResultWindowTexts, TrashFailuresSayWhyAndOfferWhatIsPossible)
{
    ResultItem file;
    file.path = QStringLiteral("/media/stick/DCIM/a.jpg");
    ResultItem *item = &file;
    DeleteReport report;
    report.removalFailures = 1;
    report.firstFailedPath = item->path;
    report.lastErrorText = QStringLiteral("Permission denied");

    const auto noTrash = trashFailureQuestion(report, {item}, TrashFailureCause::NoTrashFolder);
    ASSERT_TRUE(noTrash);
    EXPECT_EQ(noTrash->alert.message, QStringLiteral("“a.jpg” could not be moved to the Trash."));
    EXPECT_TRUE(noTrash->alert.informative.contains(QStringLiteral("has no trash folder")));
    EXPECT_EQ(noTrash->alert.buttons, (QStringList{QStringLiteral("OK"), QStringLiteral("Delete Immediately…")}));
    EXPECT_EQ(noTrash->alert.destructiveButton, 1);

    const auto permission = trashFailureQuestion(report, {item, item}, TrashFailureCause::Permission);
    ASSERT_TRUE(permission);
    EXPECT_EQ(permission->alert.message, QStringLiteral("1 file could not be moved to the Trash."));
    EXPECT_TRUE(permission->alert.informative.contains(QStringLiteral("“/media/stick/DCIM”")));
    EXPECT_EQ(permission->offers, QList<TrashFailureOffer>{TrashFailureOffer::ShowInFileManager});
    EXPECT_EQ(permission->alert.buttons.last(), QStringLiteral("Show in File Manager"));

    report.refused = {item->path}; // changed since the search: deleting it would be refused too
    const auto refused = trashFailureQuestion(report, {item}, TrashFailureCause::Other);
    ASSERT_TRUE(refused);
    EXPECT_EQ(refused->alert.buttons, QStringList{QStringLiteral("OK")});
    report.removalFailures = 0;
    EXPECT_FALSE(trashFailureQuestion(report, {item}, TrashFailureCause::Other));
    // The other alerts of the file commands keep their questions and buttons in Linux words.
    const Alert cloneFailure =
        *postDeleteActionFailedForCount(2, ReplaceWithClone, QStringLiteral("/a/x"), QStringLiteral("/b/y"));
    EXPECT_EQ(cloneFailure.message, QStringLiteral("Creating a clone of 2 files failed"));
    CloneCounts counts;
    counts.replaceDuplicates = 3;
    counts.byClones = 2;
    const Alert confirmation = cloneConfirmationAlert(counts);
    const Alert nothingToClone = noClonableFileAlert();
    // No alert or tip speaks of another desktop's parts.
    for (const Alert &alert : {putBackNote(), noTrash->alert, permission->alert, refused->alert, cloneFailure,
                               confirmation, nothingToClone})
        for (const QString &word : {QStringLiteral("Bin"), QStringLiteral("Finder"), QStringLiteral("Dock"),
                                    QStringLiteral("APFS"), QStringLiteral("HFS")})
            EXPECT_FALSE((alert.message + alert.informative + alert.buttons.join(u' ')).contains(word))
                << word.toStdString();
    EXPECT_TRUE(putBackNote().informative.contains(QStringLiteral("Actions › Put Back from Trash")));
}

TEST(ResultWindowTexts, SummariesCountWhatWasDoneAndFreedAndStatusWordsNameIt)
{
    ResultItem trashed, deleted, linked, untouched;
    trashed.physicalSize = 2'000'000;
    deleted.physicalSize = 1'000'000;
    linked.physicalSize = 500'000;
    // A file that failed to go to the trash and was deleted after: its last word counts.
    auto outcome = [](ResultItem *item, const char *status) {
        DeleteOutcome result;
        result.item = item;
        result.status = QLatin1String(status);
        result.error = result.status.isEmpty() ? QStringLiteral("refused") : QString();
        return result;
    };
    const QList<DeleteOutcome> outcomes{outcome(&trashed, "trashed"), outcome(&deleted, "trashed"),
                                        outcome(&untouched, ""), outcome(&deleted, "deleted"),
                                        outcome(&linked, "hard linked")};
    EXPECT_EQ(deleteSummary(outcomes),
              QStringLiteral("Moved 1 file to the Trash (2.0 MB is freed when the Trash is emptied); Deleted 1 file; "
                             "Replaced 1 file by links or clones — 1.5 MB freed."));
    EXPECT_TRUE(deleteSummary({outcome(&untouched, "")}).isEmpty());
    EXPECT_EQ(putBackSummary({&trashed, &deleted}), QStringLiteral("Put back 2 files from the Trash."));
    EXPECT_EQ(actedOnStatus(QStringLiteral("trashed")), QStringLiteral("in Trash"));
    EXPECT_EQ(actedOnStatus(QStringLiteral("aliased")), QStringLiteral("replaced by link"));
    EXPECT_TRUE(actedOnStatus({}).isEmpty());
    EXPECT_EQ(englishPluralForm(QStringLiteral("%Ln file(s) in %Ln folder(s)"), 1), QStringLiteral("%Ln file in %Ln folder"));
    EXPECT_EQ(englishPluralForm(QStringLiteral("%Ln file(s)"), 0), QStringLiteral("%Ln files"));
}

TEST(ResultWindowTexts, ColumnsThatNoItemFillsStartHiddenAndStatusIsInView)
{
    ResultItem plain, tagged;
    tagged.created = 1'700'000'000;
    tagged.lastUsed = 1'700'000'000;
    tagged.setTagList({QStringLiteral("Red")});
    EXPECT_EQ(columnsLeftEmpty({&plain}),
              (QStringList{QStringLiteral("created"), QStringLiteral("lastUsed"), QStringLiteral("addedDate"),
                           QStringLiteral("tags")}));
    EXPECT_EQ(columnsLeftEmpty({&plain, &tagged}), QStringList{QStringLiteral("addedDate")});

    ResultWindow w;
    w.click(w.top(), QStringLiteral("a"));
    const int status = w.bottom()->resultModel()->columnOf(QStringLiteral("clone"));
    const int added = w.bottom()->resultModel()->columnOf(QStringLiteral("addedDate"));
    EXPECT_TRUE(w.bottom()->isColumnHidden(added)) << "Linux keeps no date added";
    EXPECT_TRUE(w.top()->isColumnHidden(w.top()->resultModel()->columnOf(QStringLiteral("clone"))));
    ASSERT_FALSE(w.bottom()->isColumnHidden(status));
    const int right = w.bottom()->columnViewportPosition(status) + w.bottom()->columnWidth(status);
    EXPECT_LE(right, w.bottom()->viewport()->width()) << "the Status column is in view in the default window";
    w.dupes->changeListColumn(QStringLiteral("addedDate"), true);
    EXPECT_FALSE(w.bottom()->isColumnHidden(added)) << "the user may show it all the same";
}

namespace {

// Takes the links the window opens instead of the desktop.
class OpenedLinks : public QObject {
    Q_OBJECT
public:
    OpenedLinks() { QDesktopServices::setUrlHandler(QStringLiteral("https"), this, "open"); }
    ~OpenedLinks() override { QDesktopServices::unsetUrlHandler(QStringLiteral("https")); }
    QList<QUrl> urls;
public Q_SLOTS:
    void open(const QUrl &url) { urls.append(url); }
};

} // namespace

TEST(ResultWindowMaps, ThePlaceOfAPhotoIsReadWhenAskedForInEveryMode)
{
    if (const QString missing = missingMediaTools(); !missing.isEmpty()) GTEST_SKIP() << missing.toStdString();
    TempTree tree;
    const QString photo = tree.path(QStringLiteral("x/photo.jpg"));
    QDir().mkpath(tree.path(QStringLiteral("x")));
    ASSERT_TRUE(makeJpeg(photo, {QStringLiteral("set Exif.GPSInfo.GPSLatitude 48/1 51/1 0/1"),
                                 QStringLiteral("set Exif.GPSInfo.GPSLatitudeRef N"),
                                 QStringLiteral("set Exif.GPSInfo.GPSLongitude 2/1 21/1 0/1"),
                                 QStringLiteral("set Exif.GPSInfo.GPSLongitudeRef E")}));
    ASSERT_TRUE(QFile::copy(photo, tree.path(QStringLiteral("x/copy.jpg"))));
    tree.file(QStringLiteral("x/notes.txt"), "same");
    tree.file(QStringLiteral("x/notes copy.txt"), "same");

    Settings settings(tree.path(QStringLiteral("Selfsame.conf")));
    Dupes dupes(settings);
    dupes.setAttribute(Qt::WA_DeleteOnClose, false);
    SearchRequest request;
    request.searchInFolderURLs = {tree.path(QStringLiteral("x"))};
    QSignalSpy done(&dupes, &Dupes::finishedSearching);
    dupes.searchInFolderURLs(request); // by content: no place is read during the search
    ASSERT_TRUE(done.wait(20000));
    QMenu *item = nullptr;
    for (QAction *menu : dupes.menuBar()->actions())
        if (menu->text() == QStringLiteral("&Item")) item = menu->menu();
    ASSERT_TRUE(item);
    QAction *osm = nullptr;
    for (QAction *action : item->actions())
        if (action->text().contains(QStringLiteral("OpenStreetMap"))) osm = action;
    ASSERT_TRUE(osm);

    OpenedLinks links;
    for (const char *name : {"notes.txt", "photo.jpg"}) {
        ResultItem *chosen = nullptr;
        for (ResultItem *candidate : dupes.resultModel().mainItems())
            if (candidate->name() == QLatin1String(name)) chosen = candidate;
        ASSERT_TRUE(chosen);
        ASSERT_TRUE(std::isnan(chosen->latitude()));
        dupes.selectAndRevealInTopList(chosen->path);
        EXPECT_TRUE(osm->isEnabled()) << name;
        osm->trigger();
    }
    ASSERT_EQ(links.urls.size(), 1) << "a file without a place opens nothing";
    EXPECT_TRUE(links.urls.first().toString().contains(QStringLiteral("48.85"))) << links.urls.first().toString().toStdString();
    EXPECT_TRUE(links.urls.first().toString().contains(QStringLiteral("2.35"))) << links.urls.first().toString().toStdString();
}

#include "ResultWindowFocusTest.moc"

TEST(ResultWindowUnreadable, FoldersTheSearchCouldNotListAreCountedAndListedOnAClick)
{
    if (geteuid() == 0) GTEST_SKIP() << "every folder is readable to root";
    ResultWindow w;
    w.tree.build({"x/locked/"});
    QFile::setPermissions(w.tree.path(QStringLiteral("x/locked")), {});
    w.open(DetectionMode::Content);
    QFile::setPermissions(w.tree.path(QStringLiteral("x/locked")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(w.dupes->unreadablePaths(), QStringList{w.tree.path(QStringLiteral("x/locked"))});
    EXPECT_TRUE(w.dupes->statusText().contains(QStringLiteral(" · 1 unreadable"))) << w.dupes->statusText().toStdString();
    auto *line = w.dupes->findChild<QLabel *>(QStringLiteral("statusLine"));
    ASSERT_TRUE(line);
    EXPECT_TRUE(line->text().contains(QStringLiteral("<a href=\"unreadable\">1 unreadable</a>")));
    Q_EMIT line->linkActivated(QStringLiteral("unreadable"));
    auto *list = w.dupes->findChild<QMessageBox *>();
    ASSERT_TRUE(list);
    EXPECT_EQ(list->text(), QStringLiteral("1 item could not be read"));
    EXPECT_TRUE(list->informativeText().contains(w.tree.path(QStringLiteral("x/locked"))));
    list->close();
}

TEST(ResultWindowUnreadable, AFolderThatMayNotBeChangedIsToldApartFromOtherTrashFailures)
{
    if (geteuid() == 0) GTEST_SKIP() << "root may change every folder";
    TrashHome home;
    TempTree tree;
    const QString file = tree.file(QStringLiteral("kept/a"), "a");
    EXPECT_EQ(trashFailureCause(file), TrashFailureCause::Other);
    QFile::setPermissions(tree.path(QStringLiteral("kept")), QFile::ReadOwner | QFile::ExeOwner);
    EXPECT_EQ(trashFailureCause(file), TrashFailureCause::Permission);
    QFile::setPermissions(tree.path(QStringLiteral("kept")), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST(ResultWindowFocus, TheListWithoutTheFocusMutesItsSelectionInTheThemesColours)
{
    ResultListView view;
    const QPalette light = QApplication::palette();
    const QColor lightMuted = view.palette().color(QPalette::Inactive, QPalette::Highlight);
    EXPECT_NE(lightMuted, view.palette().color(QPalette::Active, QPalette::Highlight));
    QPalette dark = light;
    dark.setColor(QPalette::Base, QColor(0x20, 0x20, 0x20));
    dark.setColor(QPalette::Text, QColor(0xe0, 0xe0, 0xe0));
    QApplication::setPalette(dark);
    QApplication::processEvents();
    const QColor darkMuted = view.palette().color(QPalette::Inactive, QPalette::Highlight);
    QApplication::setPalette(light);
    QApplication::processEvents();
    EXPECT_LT(darkMuted.lightness(), lightMuted.lightness()) << "a new theme brings its own muted colour";
    EXPECT_EQ(view.palette().color(QPalette::Inactive, QPalette::Highlight), lightMuted);
}
