// The overview "Where are the duplicates?": what each folder would free, the squarified layout,
// and a click on a folder that filters the lists to it.
#include "OverviewWindow.h"
#include "ResultWindowFixture.h"
#include "Treemap.h"
#include "TreemapView.h"

#include <QApplication>
#include <QPushButton>

using namespace selfsame;

namespace {

ResultItem copy(const char *path, int group, qint64 bytes, quint64 inode)
{
    ResultItem item;
    item.path = QLatin1String(path);
    item.group = group;
    item.physicalSize = bytes;
    item.device = 1;
    item.inode = inode;
    return item;
}

} // namespace

TEST(Treemap, EachFolderHoldsWhatItsCopiesBesideTheKeptOneWouldFree)
{
    QList<ResultItem> items{copy("/p/a/1", 0, 100, 1), copy("/p/b/1", 0, 300, 2), copy("/p/b/2", 0, 100, 3),
                            copy("/p/c/link", 0, 300, 2), copy("/p/c/x", 1, 50, 4), copy("/p/a/x", 1, 50, 5),
                            copy("/p/c/alone", 2, 999, 6)};
    items[4].set(Deleted); // acted on: frees nothing any more, and group 1 is no group now
    QList<ResultItem *> pointers;
    for (ResultItem &item : items)
        pointers.append(&item);
    const QList<FolderShare> shares = reclaimableByFolder(pointers);
    // Group 0 keeps /p/b/1 (the largest); its hard link /p/c/link frees nothing.
    ASSERT_EQ(shares.size(), 2);
    EXPECT_EQ(shares[0].folder, QStringLiteral("/p/a"));
    EXPECT_EQ(shares[0].reclaimable, 100);
    EXPECT_EQ(shares[1].folder, QStringLiteral("/p/b"));
    EXPECT_EQ(shares[1].reclaimable, 100);
    EXPECT_EQ(shares[1].copies, 1);
}

TEST(Treemap, SquarifiedTilesFillTheRoomInProportionWithoutOverlapping)
{
    const QList<qint64> weights{600, 300, 200, 120, 60, 0, 15, 5};
    const QRectF room(0, 0, 600, 400);
    const QList<QRectF> tiles = squarify(weights, room);
    ASSERT_EQ(tiles.size(), weights.size());
    const double total = 1300;
    double covered = 0;
    for (qsizetype i = 0; i < tiles.size(); ++i) {
        if (weights[i] == 0) {
            EXPECT_TRUE(tiles[i].isEmpty());
            continue;
        }
        EXPECT_TRUE(room.adjusted(-0.01, -0.01, 0.01, 0.01).contains(tiles[i])) << i;
        EXPECT_NEAR(tiles[i].width() * tiles[i].height(), weights[i] / total * room.width() * room.height(), 1.0) << i;
        covered += tiles[i].width() * tiles[i].height();
        for (qsizetype j = i + 1; j < tiles.size(); ++j)
            EXPECT_LT(tiles[i].intersected(tiles[j]).width() * tiles[i].intersected(tiles[j]).height(), 0.01)
                << i << " and " << j;
    }
    EXPECT_NEAR(covered, room.width() * room.height(), 1.0);
    // Squarified: the large tiles are far from slivers.
    for (int i : {0, 1, 2})
        EXPECT_LT(std::max(tiles[i].width() / tiles[i].height(), tiles[i].height() / tiles[i].width()), 3.0) << i;
    EXPECT_TRUE(squarify({0, 0}, room)[0].isEmpty());
}

TEST(Treemap, ClickingAFolderShowsOnlyItsItemsAndShowAllBringsThemBack)
{
    ResultWindow w;
    OverviewWindow *overview = w.dupes->showOverview();
    ASSERT_TRUE(overview->isVisible());
    EXPECT_EQ(overview->windowTitle(), QStringLiteral("Where are the duplicates?"));
    TreemapView *map = overview->treemap();
    QApplication::processEvents();
    const QString sub = w.tree.path(QStringLiteral("x/sub"));
    const QRectF tile = map->tileOf(sub);
    ASSERT_FALSE(tile.isEmpty()) << "the folder of c holds a copy that would be freed";
    EXPECT_GT(map->tileOf(w.tree.path(QStringLiteral("x"))).width() * map->tileOf(w.tree.path(QStringLiteral("x"))).height(),
              tile.width() * tile.height())
        << "x holds more of the copies";
    QTest::mouseClick(map, Qt::LeftButton, {}, tile.center().toPoint());
    EXPECT_EQ(w.names(w.top()), QStringList{QStringLiteral("c")});
    EXPECT_TRUE(w.dupes->statusText().contains(QStringLiteral("4 hidden"))) << w.dupes->statusText().toStdString();
    auto *showAll = overview->findChild<QPushButton *>();
    for (QPushButton *button : overview->findChildren<QPushButton *>())
        if (button->text() == QStringLiteral("Show All")) showAll = button;
    ASSERT_TRUE(showAll);
    showAll->click();
    EXPECT_EQ(w.top()->model()->rowCount(), 5);
}
