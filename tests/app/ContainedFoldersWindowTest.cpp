#include "AppDelegate.h"

#include "Dupes.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "SearchDefaults.h"
#include "Settings.h"
#include "format/ByteSize.h"
#include "support/TempTree.h"

#include <QApplication>
#include <QCheckBox>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

using namespace selfsame;

TEST(ContainedFoldersWindow, TheOptionIsSavedAndTheWindowShowsEachFolderWithItsContainer)
{
    TempTree tree;
    tree.build({"old/a:1", "old/trip/b:2", "new/2019/renamed:1", "new/b:2", "new/c:3"});
    QTemporaryDir dir;
    Settings settings(dir.filePath(QStringLiteral("Selfsame.conf")));
    {
        AppDelegate window(settings);
        window.show();
        auto *option = window.findChild<QCheckBox *>(QStringLiteral("containedFoldersChk"));
        ASSERT_TRUE(option && !option->isChecked());
        EXPECT_EQ(option->text(), QStringLiteral("Also find folders whose files all exist elsewhere"));
        option->click();
        Dupes *dupes = window.searchInFolderURLs({tree.path()});
        ASSERT_TRUE(dupes);
        ASSERT_TRUE(QTest::qWaitFor([&] { return window.searchingCount() == 0; }, 20000));
        EXPECT_TRUE(settings.boolValue(key::containedFolders));
        EXPECT_TRUE(dupes->resultModel().request().containedFolders);

        ResultListView *top = dupes->mainList();
        ResultTableModel *rows = top->resultModel();
        ASSERT_EQ(rows->rowCount(), 2);
        int containedRow = -1;
        for (int row = 0; row < 2; ++row) {
            const QString kind = rows->data(rows->index(row, rows->columnOf(QStringLiteral("extension"))), Qt::DisplayRole).toString();
            const bool contained = rows->item(row)->name() == QLatin1String("old");
            EXPECT_EQ(kind, contained ? QStringLiteral("contained") : QStringLiteral("container"));
            if (contained)
                containedRow = row;
        }
        ASSERT_GE(containedRow, 0);
        QTest::mouseClick(top->viewport(), Qt::LeftButton, {}, top->visualRect(rows->index(containedRow, 0)).center());
        EXPECT_EQ(dupes->cloneList()->model()->rowCount(), 2);
        EXPECT_EQ(dupes->groupCaptionText(),
                  QStringLiteral("“old” has copies of all its files in “%1” · %2 reclaimable")
                      .arg(tree.path(QStringLiteral("new")), formatByteCount(rows->item(containedRow)->physicalSize)));
        dupes->close();
    }
    AppDelegate reopened(settings);
    EXPECT_TRUE(reopened.findChild<QCheckBox *>(QStringLiteral("containedFoldersChk"))->isChecked());
}
