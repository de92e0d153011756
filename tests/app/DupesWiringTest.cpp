// The file commands inside a results window: its menus hold them and the lists follow them.
#include "Alert.h"
#include "DupesActions.h"
#include "Dupes.h"
#include "Settings.h"
#include "support/FileItems.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QAction>
#include <QMenu>
#include <gtest/gtest.h>

using namespace selfsame;

TEST(DupesWiring, TheActionsMenuTrashesTheSelectionAndTheIconShowsIt)
{
    TrashHome home;
    TempTree tree;
    Settings settings(tree.path(QStringLiteral("settings.ini")));
    settings.setValue(QStringLiteral("put back tip shown"), true);
    const QByteArray content = patternBytes(3000, 4);
    ItemGroup group;
    QList<ResultItem> items;
    for (const char *rel : {"keep/a.bin", "old/a.bin"}) {
        ResultItem item = *group.add(tree.file(QString::fromUtf8(rel), content));
        item.digest.fill(1);
        item.set(HasDigest);
        items.append(item);
    }
    SearchRequest request;
    request.searchInFolderURLs = {tree.path()};
    auto *dupes = new Dupes(settings);
    dupes->showFinishedResults(items, request);
    ASSERT_TRUE(dupes->selectAndRevealInTopList(tree.path(QStringLiteral("old/a.bin"))));

    QAction *trash = dupes->resultActions().files->moveToTrashAction();
    EXPECT_TRUE(dupes->actionsMenu()->actions().contains(trash));
    ASSERT_TRUE(trash->isEnabled());
    trash->trigger();
    const ResultItem *moved = dupes->targetItems().value(0);
    ASSERT_NE(moved, nullptr);
    EXPECT_EQ(moved->statusImage(), QStringLiteral("trashed"));
    EXPECT_FALSE(QFileInfo::exists(tree.path(QStringLiteral("old/a.bin"))));
    EXPECT_FALSE(trash->isEnabled());
    dupes->close();
}
