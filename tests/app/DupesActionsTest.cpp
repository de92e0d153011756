// The file commands of a results window, driven through their actions with alerts answered
// by a test hook, on files in temporary folders and a temporary trash.
#include "Alert.h"
#include "CloneProgressWindow.h"
#include "AutoSelectSheet.h"
#include "DupesActions.h"
#include "ResultActionsWiring.h"
#include "SearchDefaults.h"
#include "Settings.h"
#include "UndoCommands.h"
#include "support/FileItems.h"
#include "support/MountedVolume.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileInfo>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTimer>
#include <QToolBar>
#include <QWidget>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace selfsame;

namespace {

class DupesActionsTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        setAlertAnswerer([this](const Alert &alert) {
            asked.append(alert.message);
            // Unscripted questions are cancelled.
            const int cancel = alert.cancelButton >= 0 ? alert.cancelButton : int(alert.buttons.size()) - 1;
            return answers.isEmpty() ? AlertAnswer{kFirstButton + cancel} : answers.takeFirst();
        });
    }
    void TearDown() override { setAlertAnswerer({}); }

    // The files as a content search found them: files of one group share a digest.
    void load(const QString &root, const QList<QPair<QString, int>> &files)
    {
        ItemGroup group;
        QList<ResultItem> items;
        for (const auto &[rel, number] : files) {
            ResultItem item = *group.add(root + u'/' + rel, number);
            item.digest.fill(std::uint8_t(number));
            item.set(HasDigest);
            items.append(item);
        }
        SearchRequest request;
        request.searchInFolderURLs = {root};
        model.setResults(items, request);
        actions = std::make_unique<DupesActions>(&window, model, settings);
        changes = std::make_unique<QSignalSpy>(actions.get(), &DupesActions::modelChanged);
    }
    ResultItem *item(const QString &path)
    {
        for (ResultItem &i : model.allItems())
            if (i.path == path)
                return &i;
        return nullptr;
    }
    // Acting on the bottom list: `reference` selected in the top list, `target` below.
    void targetBottom(ResultItem *reference, ResultItem *target)
    {
        model.select(ResultList::Top, {reference});
        actions->setTargetsSource([target] { return DupesActions::Targets{ResultList::Bottom, {target}}; });
        actions->updateActions(); // as the window does when a selection changes
    }
    void answer(std::initializer_list<int> codes)
    {
        for (int code : codes)
            answers.append(AlertAnswer{code});
    }
    static void pressAlt(bool down)
    {
        QWidget anywhere;
        QKeyEvent event(down ? QEvent::KeyPress : QEvent::KeyRelease, Qt::Key_Alt,
                        down ? Qt::AltModifier : Qt::NoModifier);
        QApplication::sendEvent(&anywhere, &event);
    }

    TrashHome home;
    TempTree tree;
    Settings settings{tree.path(QStringLiteral("settings.ini"))};
    QWidget window;
    ResultModel model;
    std::unique_ptr<DupesActions> actions;
    std::unique_ptr<QSignalSpy> changes;
    QStringList asked;
    QList<AlertAnswer> answers;
    const QByteArray content = patternBytes(5000, 7);
};

bool exists(const QString &path)
{
    struct stat st {};
    return lstat(path.toUtf8().constData(), &st) == 0;
}

TEST_F(DupesActionsTest, AltHeldAnywhereShowsEditsAndPerformsTheAlternateMode)
{
    const QString keep = tree.file(QStringLiteral("keep/a.bin"), content);
    const QString dup = tree.file(QStringLiteral("old/a.bin"), content);
    load(tree.path(), {{QStringLiteral("keep/a.bin"), 0}, {QStringLiteral("old/a.bin"), 0}});

    actions->chooseReplaceWith(ReplaceWithSymbolicLink);
    EXPECT_EQ(actions->moveToTrashAction()->text(), QStringLiteral("Move to &Trash and Replace with Symbolic Link"));
    EXPECT_EQ(actions->deleteImmediatelyAction()->text(),
              QStringLiteral("&Delete Immediately and Replace with Symbolic Link…"));

    pressAlt(true);
    EXPECT_TRUE(actions->showingAlternate());
    EXPECT_EQ(actions->moveToTrashAction()->text(), QStringLiteral("Move to &Trash and Do Not Replace"));
    EXPECT_EQ(actions->replaceWithPopup()->currentIndex(), ReplaceWithNone);
    // Choosing for the alternate slot the plain slot's mode swaps the two, in the settings too.
    actions->chooseReplaceWith(ReplaceWithSymbolicLink);
    EXPECT_EQ(actions->modes().alternate, ReplaceWithSymbolicLink);
    EXPECT_EQ(actions->modes().replaceWith, ReplaceWithNone);
    EXPECT_EQ(settings.integerValue(QStringLiteral("alternate replace with")), ReplaceWithSymbolicLink);
    EXPECT_EQ(settings.integerValue(QStringLiteral("replace with")), ReplaceWithNone);

    // With Alt held the command replaces by a symbolic link; the one-time note comes first.
    targetBottom(item(keep), item(dup));
    actions->moveToTrashAction()->trigger();
    ASSERT_EQ(asked.size(), 1);
    EXPECT_EQ(asked[0], QStringLiteral("Items moved to the Trash by Selfsame can be put back where they were."));
    EXPECT_TRUE(settings.boolValue(QStringLiteral("put back tip shown")));
    EXPECT_EQ(QFileInfo(dup).symLinkTarget(), keep);
    EXPECT_EQ(item(dup)->statusImage(), QStringLiteral("aliased"));
    EXPECT_TRUE(item(dup)->trashedURL().isEmpty());
    EXPECT_EQ(changes->count(), 1);

    pressAlt(false);
    EXPECT_FALSE(actions->showingAlternate());
    EXPECT_EQ(actions->moveToTrashAction()->text(), QStringLiteral("Move to &Trash"));
    EXPECT_EQ(actions->replaceWithPopup()->currentIndex(), ReplaceWithNone);
}

TEST_F(DupesActionsTest, AnswersToTheWarningsDecideWhetherFilesMoveAndPutBackBringsThemHome)
{
    const QString a = tree.file(QStringLiteral("a.bin"), content);
    const QString b = tree.file(QStringLiteral("b.bin"), content);
    load(tree.path(), {{QStringLiteral("a.bin"), 0}, {QStringLiteral("b.bin"), 0}});
    settings.setValue(QStringLiteral("put back tip shown"), true);
    model.select(ResultList::Top, {item(a), item(b)});

    answer({kFirstButton}); // Cancel the warning about selecting every copy
    actions->moveToTrash();
    EXPECT_EQ(asked, QStringList{QStringLiteral("Warning: you have selected ALL the dupes of at least one file")});
    EXPECT_TRUE(exists(a) && exists(b));
    EXPECT_EQ(changes->count(), 0);

    asked.clear();
    answer({kFirstButton + 1}); // Continue Anyway
    actions->moveToTrash();
    EXPECT_EQ(asked.size(), 1);
    EXPECT_FALSE(exists(a) || exists(b));
    EXPECT_TRUE(item(a)->trashedURL().startsWith(home.trash()));
    EXPECT_EQ(item(b)->statusImage(), QStringLiteral("trashed"));
    EXPECT_FALSE(actions->moveToTrashAction()->isEnabled());
    EXPECT_TRUE(actions->putBackAction()->isEnabled());

    actions->putBackAction()->trigger();
    EXPECT_TRUE(exists(a) && exists(b));
    EXPECT_EQ(readFile(b), content);
    EXPECT_TRUE(item(a)->trashedURL().isEmpty());
    EXPECT_TRUE(item(b)->statusImage().isEmpty());
    EXPECT_FALSE(actions->putBackAction()->isEnabled());
    EXPECT_EQ(changes->count(), 2);
}

TEST_F(DupesActionsTest, ImmediateDeletionIsConfirmedAndReplacesByAHardLink)
{
    const QString keep = tree.file(QStringLiteral("keep/a.bin"), content);
    const QString dup = tree.file(QStringLiteral("old/a.bin"), content);
    load(tree.path(), {{QStringLiteral("keep/a.bin"), 0}, {QStringLiteral("old/a.bin"), 0}});
    actions->chooseReplaceWith(ReplaceWithHardLink);
    targetBottom(item(keep), item(dup));

    answer({kFirstButton + 1}); // Cancel
    actions->deleteImmediately();
    EXPECT_EQ(asked, QStringList{QStringLiteral("Are you sure you want to delete “a.bin” immediately?")});
    EXPECT_EQ(statOf(dup).st_ino, item(dup)->inode);
    EXPECT_EQ(changes->count(), 0);

    answer({kFirstButton}); // Delete Immediately
    actions->deleteImmediately();
    EXPECT_EQ(statOf(dup).st_ino, statOf(keep).st_ino);
    EXPECT_TRUE(item(dup)->has(Deleted));
    EXPECT_EQ(item(dup)->statusImage(), QStringLiteral("hard linked"));
    EXPECT_EQ(changes->count(), 1);
}

TEST_F(DupesActionsTest, WithoutReferenceTheFilesGoWithoutReplacementWhenTheUserAgrees)
{
    const QString a = tree.file(QStringLiteral("a.bin"), content);
    tree.file(QStringLiteral("b.bin"), content);
    load(tree.path(), {{QStringLiteral("a.bin"), 0}, {QStringLiteral("b.bin"), 0}});
    settings.setValue(QStringLiteral("put back tip shown"), true);
    actions->chooseReplaceWith(ReplaceWithSymbolicLink);
    model.select(ResultList::Top, {item(a)});

    answer({kFirstButton + 1}); // Cancel
    actions->moveToTrash();
    EXPECT_EQ(asked, QStringList{QStringLiteral("No item is selected in the bottom list")});
    EXPECT_TRUE(exists(a));

    answer({kFirstButton}); // Delete Without Replacing
    actions->moveToTrash();
    EXPECT_FALSE(exists(a));
    // Marked with the mode's status, as asked, and so not offered for putting back.
    EXPECT_EQ(item(a)->statusImage(), QStringLiteral("aliased"));
    EXPECT_TRUE(item(a)->trashedURL().isEmpty());
}

TEST_F(DupesActionsTest, AFailedMoveToTrashOffersImmediateDeletionOnlyWhereItCanWork)
{
    const QString a = tree.file(QStringLiteral("a.bin"), content);
    const QString b = tree.file(QStringLiteral("b.bin"), content);
    tree.file(QStringLiteral("c.bin"), content);
    load(tree.path(), {{QStringLiteral("a.bin"), 0}, {QStringLiteral("b.bin"), 0}, {QStringLiteral("c.bin"), 0}});
    settings.setValue(QStringLiteral("put back tip shown"), true);

    // Changed since the search: a deletion would leave it alone as well, so only OK is offered.
    model.select(ResultList::Top, {item(a)});
    writeFile(a, "changed since the search");
    answer({kFirstButton + 1});
    actions->moveToTrash();
    EXPECT_EQ(asked, QStringList{QStringLiteral("“a.bin” could not be moved to the Trash.")});
    EXPECT_EQ(readFile(a), QByteArray("changed since the search"));

    // No trash can be made (its place is a file): deleting for good is offered, with its own question.
    asked.clear();
    const QByteArray dataHome = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QFile::encodeName(tree.file(QStringLiteral("not a folder"), "x")));
    model.select(ResultList::Top, {item(b)});
    answer({kFirstButton + 1, kFirstButton}); // Delete Immediately…, then Delete Immediately
    actions->moveToTrash();
    qputenv("XDG_DATA_HOME", dataHome);
    EXPECT_EQ(asked, (QStringList{QStringLiteral("“b.bin” could not be moved to the Trash."),
                                  QStringLiteral("Are you sure you want to delete “b.bin” immediately?")}));
    EXPECT_FALSE(exists(b));
    EXPECT_TRUE(item(b)->has(Deleted));
}

TEST_F(DupesActionsTest, CloningFindsNothingOnAFileSystemThatCannotAndStopsWhenTheProgressIsCancelled)
{
    const QString a = tree.file(QStringLiteral("a.bin"), content);
    const QString b = tree.file(QStringLiteral("b.bin"), content);
    load(tree.path(), {{QStringLiteral("a.bin"), 0}, {QStringLiteral("b.bin"), 0}});
    model.select(ResultList::Top, {item(a), item(b)});
    ASSERT_TRUE(actions->replaceByClonesAction()->isEnabled());

    actions->progressWindow()->setShowDelay(0);
    QTimer::singleShot(0, actions->progressWindow()->stopButton(), &QPushButton::click);
    actions->replaceByClones();
    EXPECT_TRUE(asked.isEmpty()); // the planning pass was cancelled: nothing to ask
    EXPECT_FALSE(actions->progressWindow()->isVisible());

    actions->progressWindow()->setShowDelay(1000);
    actions->replaceByClones();
    ASSERT_FALSE(asked.isEmpty());
    // tmpfs and ext4 share no extents; on a file system that does, the pair is clonable.
    if (asked.first() != QStringLiteral("No file among the selection can be cloned")) {
        EXPECT_TRUE(asked.first().startsWith(QStringLiteral("Do you want to replace “b.bin”")));
    }
    EXPECT_EQ(readFile(b), content);
    EXPECT_EQ(changes->count(), 0);
}

TEST_F(DupesActionsTest, AWindowGetsTheCommandsInItsMenusAndIsRefreshedAfterEachChange)
{
    const QString a = tree.file(QStringLiteral("keep/a.bin"), content);
    const QString b = tree.file(QStringLiteral("old/a.bin"), content);
    load(tree.path(), {{QStringLiteral("keep/a.bin"), 0}, {QStringLiteral("old/a.bin"), 0}});
    settings.setValue(QStringLiteral("put back tip shown"), true);
    QMenu menu, context;
    QToolBar toolBar;
    int refreshed = 0;
    const ResultActions wired = installResultActions(
        {&window, &model, &settings, &menu, &toolBar,
         [this] { return DupesActions::Targets{ResultList::Top, model.selectedItems(ResultList::Top)}; },
         [&] { ++refreshed; }});
    EXPECT_TRUE(menu.actions().contains(wired.files->moveToTrashAction()));
    EXPECT_TRUE(menu.actions().contains(wired.autoSelect->unhideAction()));
    EXPECT_FALSE(wired.files->moveToTrashAction()->isEnabled()); // nothing selected yet

    model.select(ResultList::Top, {item(b)});
    updateResultActions(wired);
    addResultActionsToContextMenu(&context, wired, {item(b)});
    QMenu *folders = context.actions().first()->menu();
    ASSERT_NE(folders, nullptr);
    EXPECT_EQ(folders->actions().first()->data().toString(), tree.path(QStringLiteral("old")));

    wired.files->moveToTrashAction()->trigger();
    EXPECT_FALSE(exists(b));
    EXPECT_TRUE(exists(a));
    EXPECT_EQ(refreshed, 1);
    EXPECT_FALSE(wired.files->moveToTrashAction()->isEnabled()); // revalidated after the change
    EXPECT_TRUE(wired.files->putBackAction()->isEnabled());
}

class CloneActionsOn : public DupesActionsTest, public ::testing::WithParamInterface<const char *> {
protected:
    MountedVolume volume{QString::fromUtf8(GetParam())};
};

TEST_P(CloneActionsOn, TheConfirmationShowsThePlanAndWriteProtectionIsAskedAndRemembered)
{
    if (const QString why = volume.mount(); !why.isEmpty())
        GTEST_SKIP() << why.toStdString();
    const QString root = volume.path();
    const QByteArray big = patternBytes(200000, 3);
    for (const char *name : {"a.bin", "b.bin", "c.bin"})
        writeFile(root + u'/' + QString::fromUtf8(name), big);
    sync();
    load(root, {{QStringLiteral("a.bin"), 0}, {QStringLiteral("b.bin"), 0}, {QStringLiteral("c.bin"), 0}});
    ResultItem *a = item(root + QStringLiteral("/a.bin"));
    ResultItem *b = item(root + QStringLiteral("/b.bin"));
    ResultItem *c = item(root + QStringLiteral("/c.bin"));
    c->set(ReadOnly); // as the search records a file the user may not write
    model.select(ResultList::Top, {a, b, c});
    QStringList viewed;
    actions->planViewer = [&](const QString &path) { viewed.append(QString::fromUtf8(readFile(path))); };

    // View Cloning Plan, then Clone; Skip Them, remembered.
    answers = {AlertAnswer{kFirstButton + 2}, AlertAnswer{kFirstButton}, AlertAnswer{kFirstButton, true}};
    actions->replaceByClones();
    ASSERT_EQ(asked.size(), 3);
    EXPECT_EQ(asked[0], asked[1]);
    EXPECT_TRUE(asked[0].startsWith(QStringLiteral("Do you want to replace 2 duplicates among the selected files, "
                                                   "by clones of “a.bin”?")));
    EXPECT_EQ(asked[2], QStringLiteral("Warning: write-protected files"));
    ASSERT_EQ(viewed.size(), 1);
    EXPECT_TRUE(viewed[0].contains(c->path + QStringLiteral(" (write-protected)")));
    EXPECT_EQ(b->statusImage(), QStringLiteral("cloned"));
    EXPECT_TRUE(c->statusImage().isEmpty());
    EXPECT_EQ(allocDigestOf(b->path), allocDigestOf(a->path));
    EXPECT_NE(allocDigestOf(c->path), allocDigestOf(a->path));
    EXPECT_EQ(settings.dictionary(key::doNotShowAgain).value(QStringLiteral("bypass write-protection")).toInt(),
              kFirstButton);
    EXPECT_EQ(changes->count(), 1);
    EXPECT_TRUE(actions->viewClonePlanAction()->isEnabled());
}

INSTANTIATE_TEST_SUITE_P(FileSystems, CloneActionsOn, ::testing::Values("btrfs", "xfs"),
                         [](const auto &info) { return std::string(info.param); });

} // namespace

TEST_F(DupesActionsTest, EditUndoPutsBackWhatTheLastActionMovedAndTheWindowForgetsItsMark)
{
    const QString a = tree.file(QStringLiteral("a.bin"), content);
    const QString b = tree.file(QStringLiteral("b.bin"), content);
    load(tree.path(), {{QStringLiteral("a.bin"), 0}, {QStringLiteral("b.bin"), 0}});
    settings.setValue(QStringLiteral("put back tip shown"), true);
    targetBottom(item(a), item(b));
    actions->moveToTrash();
    ASSERT_FALSE(exists(b));
    ASSERT_FALSE(item(b)->trashedURL().isEmpty());

    QMenu edit;
    UndoCommands::instance().addTo(&edit, &window);
    Q_EMIT edit.aboutToShow();
    QAction *undo = edit.actions().first();
    EXPECT_EQ(undo->text(), QStringLiteral("&Undo Moved to the trash"));
    ASSERT_TRUE(undo->isEnabled());
    asked.clear();
    const int before = changes->count();
    undo->trigger();
    EXPECT_TRUE(exists(b));
    EXPECT_EQ(asked, QStringList{QStringLiteral("“Moved to the trash” was undone")});
    EXPECT_TRUE(item(b)->trashedURL().isEmpty());
    EXPECT_TRUE(item(b)->statusImage().isEmpty());
    EXPECT_GT(changes->count(), before);

    // The history, newest first, shows the action as undone and no longer offers it.
    Q_EMIT edit.aboutToShow();
    QAction *newest = edit.actions().at(1)->menu()->actions().first();
    EXPECT_TRUE(newest->text().startsWith(QStringLiteral("Undid action"))) << newest->text().toStdString();
    QAction *ours = edit.actions().at(1)->menu()->actions().at(1);
    EXPECT_TRUE(ours->text().endsWith(QStringLiteral("— undone"))) << ours->text().toStdString();
    EXPECT_FALSE(ours->isEnabled());
}
