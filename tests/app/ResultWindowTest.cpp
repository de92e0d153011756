// The results window over a real search: the two lists, their selection, sorting, columns,
// the filter bar, the status line and drops.
#include "ResultWindowFixture.h"
#include "Dupes.h"
#include "FilterBar.h"
#include "ResultCellDelegate.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "Settings.h"
#include "support/FileItems.h"
#include "support/TempTree.h"

#include <QApplication>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QMimeData>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>
#include <QUrl>
#include <gtest/gtest.h>

using namespace selfsame;


TEST(ResultWindow, TheSelectedTopRowFillsTheBottomListWithItsGroup)
{
    ResultWindow w;
    ASSERT_EQ(w.top()->model()->rowCount(), 5);
    // Groups {a, b, c} of 4 kB files and {d, e} of 8 kB ones: all but one copy of each.
    const QString totals = QStringLiteral("2 groups · 5 files · 16.4 kB reclaimable");
    EXPECT_EQ(w.dupes->statusText(), totals);
    EXPECT_EQ(w.bottom()->model()->rowCount(), 0);
    EXPECT_EQ(w.top()->horizontalHeader()->sortIndicatorSection(), w.top()->resultModel()->columnOf(QStringLiteral("size")));
    EXPECT_EQ(w.top()->horizontalHeader()->sortIndicatorOrder(), Qt::DescendingOrder) << "largest first";

    w.click(w.top(), QStringLiteral("b"));
    QStringList group = w.names(w.bottom());
    group.sort();
    EXPECT_EQ(group, (QStringList{QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")}));
    EXPECT_EQ(w.cell(w.bottom(), QStringLiteral("b"), QStringLiteral("clone")), QStringLiteral("selected"));
    EXPECT_EQ(w.cell(w.bottom(), QStringLiteral("a"), QStringLiteral("clone")), QString());
    EXPECT_EQ(w.cell(w.top(), QStringLiteral("b"), QStringLiteral("clone")), QString()) << "statuses are the bottom list's";
    EXPECT_EQ(w.cell(w.top(), QStringLiteral("c"), QStringLiteral("path")), QStringLiteral("sub"));
    // Sorted by size, the top list shows its groups in alternating colours over the whole row;
    // the status of the selected item itself has its colour in the bottom list.
    auto background = [&](ResultListView *view, const char *name, const char *column) {
        return view->model()->data(view->model()->index(w.rowOf(view, QLatin1String(name)),
                                                        view->resultModel()->columnOf(QLatin1String(column))),
                                   Qt::BackgroundRole);
    };
    EXPECT_EQ(background(w.top(), "a", "name"), background(w.top(), "c", "name"));
    EXPECT_NE(background(w.top(), "a", "name"), background(w.top(), "d", "name"));
    EXPECT_EQ(background(w.top(), "a", "size"), background(w.top(), "a", "name"));
    EXPECT_TRUE(background(w.bottom(), "b", "clone").isValid());
    EXPECT_FALSE(background(w.bottom(), "a", "clone").isValid());
    EXPECT_EQ(w.selectedNames(w.bottom()).size(), 1) << "the first duplicate is selected";
    EXPECT_EQ(w.dupes->pathBarText(), w.tree.path(QStringLiteral("x/b")));
    const QString pathLinks = w.dupes->findChild<QLabel *>(QStringLiteral("pathControl"))->text();
    EXPECT_TRUE(pathLinks.contains(QUrl::fromLocalFile(w.tree.path(QStringLiteral("x"))).toString(QUrl::FullyEncoded)))
        << "each folder of the path shows itself in the file manager";
    EXPECT_EQ(w.dupes->statusText(), totals + QStringLiteral(" — 1 selected (4.1 kB on disk)"));
    EXPECT_EQ(w.dupes->groupCaptionText(), QStringLiteral("Group of 3 files · 12.3 kB on disk · 8.2 kB reclaimable"));

    w.click(w.top(), QStringLiteral("d"), Qt::ControlModifier);
    EXPECT_EQ(w.bottom()->model()->rowCount(), 0) << "two selected rows have no single group";
    EXPECT_EQ(w.dupes->statusText(), totals + QStringLiteral(" — 2 selected (12.3 kB on disk)"));
    EXPECT_TRUE(w.dupes->pathBarText().isEmpty());

    // The engine's selection is the view's: commands of other components see the same items.
    w.click(w.top(), QStringLiteral("e"));
    ASSERT_EQ(w.dupes->resultModel().selectedItems(ResultList::Top).size(), 1);
    EXPECT_EQ(w.dupes->resultModel().selectedItems(ResultList::Top).first()->name(), QStringLiteral("e"));
    w.click(w.bottom(), QStringLiteral("d"));
    EXPECT_EQ(w.dupes->activeList(), ResultList::Bottom);
    EXPECT_EQ(w.dupes->statusText(), totals + QStringLiteral(" — 1 duplicate selected (8.2 kB on disk)"));
    EXPECT_EQ(w.dupes->targetItems().first()->name(), QStringLiteral("d"));
}

TEST(ResultWindow, ResortingKeepsTheSelectedItemsWhereverTheyMove)
{
    ResultWindow w;
    w.click(w.top(), QStringLiteral("e"));
    w.click(w.top(), QStringLiteral("a"), Qt::ControlModifier);
    const int nameColumn = w.top()->resultModel()->columnOf(QStringLiteral("name"));
    for (Qt::SortOrder order : {Qt::AscendingOrder, Qt::DescendingOrder}) {
        w.top()->sortByColumn(nameColumn, order);
        QStringList sorted = w.names(w.top());
        EXPECT_EQ(sorted.first(), order == Qt::AscendingOrder ? QStringLiteral("a") : QStringLiteral("e"));
        EXPECT_EQ(w.selectedNames(w.top()), (QStringList{QStringLiteral("a"), QStringLiteral("e")}));
    }
    // The bottom list keeps its own selection across its own re-sort.
    w.click(w.top(), QStringLiteral("a"));
    w.click(w.bottom(), QStringLiteral("c"));
    w.bottom()->sortByColumn(nameColumn, Qt::DescendingOrder);
    EXPECT_EQ(w.names(w.bottom()).first(), QStringLiteral("c"));
    EXPECT_EQ(w.selectedNames(w.bottom()), QStringList{QStringLiteral("c")});
    EXPECT_EQ(w.selectedNames(w.top()), QStringList{QStringLiteral("a")});
}

TEST(ResultWindow, ColumnsHiddenByTheModeCannotBeShownAndTheUsersChoiceIsKept)
{
    ResultWindow w;
    auto hidden = [&](ResultListView *view, const char *column) {
        return view->isColumnHidden(view->resultModel()->columnOf(QLatin1String(column)));
    };
    for (const char *column : {"duration", "spotlight", "latitude", "codecs"}) {
        EXPECT_TRUE(hidden(w.top(), column) && hidden(w.bottom(), column)) << column;
        EXPECT_FALSE(w.dupes->canShowColumn(QLatin1String(column)));
    }
    w.dupes->changeListColumn(QStringLiteral("duration"), true);
    EXPECT_TRUE(hidden(w.top(), "duration"));

    // The header menu offers the mode's columns disabled.
    QMenu *menu = nullptr;
    QTimer::singleShot(0, [&] {
        for (QWidget *widget : QApplication::topLevelWidgets())
            if (auto *m = qobject_cast<QMenu *>(widget); m && m->isVisible()) menu = m;
        ASSERT_TRUE(menu);
        for (QAction *action : menu->actions()) {
            if (action->objectName() == QLatin1String("duration")) {
                EXPECT_FALSE(action->isEnabled());
            }
            if (action->objectName() == QLatin1String("size")) {
                EXPECT_TRUE(action->isEnabled() && action->isChecked());
            }
        }
        menu->close();
    });
    Q_EMIT w.top()->horizontalHeader()->customContextMenuRequested(QPoint(5, 5));
    EXPECT_TRUE(menu);

    w.dupes->changeListColumn(QStringLiteral("size"), false);
    EXPECT_TRUE(hidden(w.top(), "size") && hidden(w.bottom(), "size"));
    EXPECT_EQ(w.settings.stringListValue(QStringLiteral("hidden columns")), QStringList{QStringLiteral("size")});

    // Widths and order are kept for the next window.
    QHeaderView *header = w.top()->horizontalHeader();
    const int folder = w.top()->resultModel()->columnOf(QStringLiteral("folder"));
    header->resizeSection(folder, 321);
    header->moveSection(header->visualIndex(folder), 0);

    // The next window in another mode hides the user's columns and that mode's own.
    w.open(DetectionMode::FileName);
    EXPECT_EQ(w.top()->horizontalHeader()->sectionSize(folder), 321);
    EXPECT_EQ(w.top()->horizontalHeader()->visualIndex(folder), 0);
    EXPECT_TRUE(hidden(w.top(), "size"));
    EXPECT_FALSE(hidden(w.top(), "modified"));
    w.dupes->changeListColumn(QStringLiteral("size"), true);
    EXPECT_FALSE(hidden(w.top(), "size"));
    EXPECT_TRUE(w.settings.stringListValue(QStringLiteral("hidden columns")).isEmpty());
}

TEST(ResultWindow, TheFilterBarHidesItemsAndTheStatusLineCountsThem)
{
    ResultWindow w;
    FilterBar *bar = w.dupes->filterBar();
    w.click(w.top(), QStringLiteral("d"));
    auto *criterion = bar->findChild<QComboBox *>(QStringLiteral("filterStringCriterion"));
    auto *op = bar->findChild<QComboBox *>(QStringLiteral("filterStringOperator"));
    ASSERT_TRUE(criterion && op);
    criterion->setCurrentIndex(criterion->findData(QStringLiteral("URL.path.lastPathComponent")));
    op->setCurrentIndex(op->findData(Contains + kNegated));
    bar->textField()->setText(QStringLiteral("A"));
    Q_EMIT bar->textField()->returnPressed();

    QStringList visible = w.names(w.top());
    visible.sort();
    EXPECT_EQ(visible, (QStringList{QStringLiteral("b"), QStringLiteral("c"), QStringLiteral("d"), QStringLiteral("e")}));
    EXPECT_EQ(w.selectedNames(w.top()), QStringList{QStringLiteral("d")}) << "the selection stays";
    w.top()->clearSelection();
    EXPECT_EQ(w.dupes->statusText(), QStringLiteral("2 groups · 4 files · 12.3 kB reclaimable · 1 hidden"));
    // The hidden item is still a member of its group.
    w.click(w.top(), QStringLiteral("b"));
    EXPECT_EQ(w.bottom()->model()->rowCount(), 3);
    EXPECT_EQ(w.settings.value(QStringLiteral("filterStringOperator")).toInt(), Contains + kNegated);

    // A broken expression shows the error and, negated, keeps every item that has a name.
    op->setCurrentIndex(op->findData(MatchesRegex + kNegated));
    bar->textField()->setText(QStringLiteral("(a"));
    Q_EMIT bar->textField()->returnPressed();
    EXPECT_EQ(w.top()->model()->rowCount(), 5);
    EXPECT_TRUE(bar->findChild<QToolButton *>()->isVisibleTo(bar));

    // Modified within the last day: the files were just made, all pass; older than a day: none.
    bar->textField()->clear();
    auto *dateOperator = bar->findChild<QComboBox *>(QStringLiteral("filterDateOperator"));
    bar->dateValueField()->setValue(1);
    Q_EMIT bar->textField()->returnPressed();
    EXPECT_EQ(w.top()->model()->rowCount(), 5);
    dateOperator->setCurrentIndex(dateOperator->findData(1));
    Q_EMIT bar->textField()->returnPressed();
    EXPECT_EQ(w.top()->model()->rowCount(), 0);
    EXPECT_EQ(w.bottom()->model()->rowCount(), 0);
    EXPECT_EQ(w.dupes->statusText(), QStringLiteral("0 groups · 0 files · 0 bytes reclaimable · 5 hidden"));
    dateOperator->setCurrentIndex(dateOperator->findData(0));

    // Clearing the text and the date number shows everything again.
    bar->textField()->clear();
    bar->dateValueField()->setValue(0);
    Q_EMIT bar->textField()->returnPressed();
    EXPECT_EQ(w.top()->model()->rowCount(), 5);
    EXPECT_FALSE(bar->findChild<QToolButton *>()->isVisibleTo(bar));

    // The pop-ups come back as they were in the next window.
    w.open(DetectionMode::Content);
    auto *restored = w.dupes->filterBar()->findChild<QComboBox *>(QStringLiteral("filterStringOperator"));
    EXPECT_EQ(restored->currentData().toInt(), MatchesRegex + kNegated);
}

TEST(ResultWindow, ModelChangesFromOutsideAreShownAndTheSelectionIsKept)
{
    ResultWindow w;
    w.click(w.top(), QStringLiteral("d"));
    ResultModel &model = w.dupes->resultModel();
    QList<ResultItem *> visible, hidden;
    for (ResultItem *item : model.mainItems())
        (item->name() == QLatin1String("a") ? hidden : visible).append(item);
    model.hide(visible, hidden, true);
    w.dupes->modelDidChange();
    EXPECT_EQ(w.top()->model()->rowCount(), 4);
    EXPECT_EQ(w.selectedNames(w.top()), QStringList{QStringLiteral("d")});
    EXPECT_EQ(w.bottom()->model()->rowCount(), 2);

    // Other components add their commands to the context menu.
    QObject::connect(w.dupes, &Dupes::contextMenuAboutToShow, w.dupes,
                     [](QMenu *menu, ResultList) { menu->addAction(QStringLiteral("Move to Trash")); });
    QMenu menu;
    Q_EMIT w.top()->contextMenuRequested(&menu);
    EXPECT_EQ(menu.actions().last()->text(), QStringLiteral("Move to Trash"));
    EXPECT_TRUE(w.dupes->actionsMenu());
}

TEST(ResultWindow, ADroppedFileIsRevealedWhenItIsAVisibleItem)
{
    ResultWindow w;
    auto drop = [&](const QStringList &paths) {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString &path : paths)
            urls.append(QUrl::fromLocalFile(path));
        data.setUrls(urls);
        EXPECT_TRUE(w.dupes->draggingEntered(&data, nullptr));
        EXPECT_TRUE(w.dupes->findChild<QWidget *>(QStringLiteral("dropIndicator")));
        const bool done = w.dupes->performDragOperation(&data);
        EXPECT_FALSE(w.dupes->findChild<QWidget *>(QStringLiteral("dropIndicator")));
        return done;
    };
    QMimeData own;
    own.setUrls({QUrl::fromLocalFile(w.tree.path(QStringLiteral("x/a")))});
    EXPECT_FALSE(w.dupes->draggingEntered(&own, w.top()->viewport())) << "rows of its own lists are refused";
    EXPECT_FALSE(w.dupes->draggingEntered(&own, w.bottom()));
    EXPECT_FALSE(drop({w.tree.path(QStringLiteral("x/a")), w.tree.path(QStringLiteral("x/d"))}));
    EXPECT_TRUE(w.selectedNames(w.top()).isEmpty());
    EXPECT_TRUE(drop({w.tree.path(QStringLiteral("x/sub/c"))}));
    EXPECT_EQ(w.selectedNames(w.top()), QStringList{QStringLiteral("c")});
    EXPECT_EQ(w.bottom()->model()->rowCount(), 3);
    EXPECT_TRUE(drop({w.tree.path(QStringLiteral("x/f"))})) << "a file that is not there is no failure";
    EXPECT_EQ(w.selectedNames(w.top()), QStringList{QStringLiteral("c")});

    // Rows drag out as the files' addresses.
    const int row = w.rowOf(w.top(), QStringLiteral("d"));
    std::unique_ptr<QMimeData> dragged(w.top()->model()->mimeData({w.top()->model()->index(row, 0),
                                                                    w.top()->model()->index(row, 1)}));
    EXPECT_EQ(dragged->urls(), QList<QUrl>{QUrl::fromLocalFile(w.tree.path(QStringLiteral("x/d")))});
}

TEST(ResultWindow, TypingSelectsByTheSortColumnAndDatesLoseDetailWhenNarrow)
{
    ResultWindow w;
    w.top()->sortByColumn(w.top()->resultModel()->columnOf(QStringLiteral("name")), Qt::AscendingOrder);
    w.top()->setFocus();
    QTest::keyClicks(w.top(), QStringLiteral("E"));
    EXPECT_EQ(w.selectedNames(w.top()), QStringList{QStringLiteral("e")});
    EXPECT_EQ(w.top()->typeSelectMatch(QStringLiteral("zz"), 0), -1);
    // Sorted by size, typing still searches the names.
    w.top()->sortByColumn(w.top()->resultModel()->columnOf(QStringLiteral("size")), Qt::AscendingOrder);
    EXPECT_EQ(w.top()->typeSelectMatch(QStringLiteral("d"), 0), w.rowOf(w.top(), QStringLiteral("d")));

    const QDateTime date(QDate(2024, 3, 9), QTime(14, 5, 6));
    const QStringList texts = dateCellTexts(date);
    ASSERT_EQ(texts.size(), 3);
    EXPECT_TRUE(texts[0].contains(QStringLiteral("06")));
    const QFontMetrics metrics(QApplication::font());
    EXPECT_EQ(fittingDateText(date, metrics, 1000), texts[0]);
    EXPECT_EQ(fittingDateText(date, metrics, metrics.horizontalAdvance(texts[1]) + 4), texts[1]);
    EXPECT_EQ(fittingDateText(date, metrics, 5), texts[2]) << "the shortest form even when it does not fit";
}

TEST(ResultWindow, AnEmptyResultShowsItsSheetAndClosesTheWindow)
{
    TempTree tree;
    tree.build({"x/a:1", "x/b:2"});
    Settings settings(tree.path(QStringLiteral("Selfsame.conf")));
    auto *dupes = new Dupes(settings);
    QSignalSpy closed(dupes, &Dupes::closed);
    SearchRequest request;
    request.searchInFolderURLs = {tree.path(QStringLiteral("x"))};
    QSignalSpy done(dupes, &Dupes::finishedSearching);
    dupes->show();
    dupes->searchInFolderURLs(request);
    ASSERT_TRUE(done.wait(20000));
    QMessageBox *sheet = nullptr;
    for (QWidget *widget : QApplication::topLevelWidgets())
        if (auto *box = qobject_cast<QMessageBox *>(widget); box && box->isVisible()) sheet = box;
    ASSERT_TRUE(sheet);
    EXPECT_EQ(sheet->text(), QStringLiteral("No duplicate files were found."));
    sheet->done(0);
    EXPECT_TRUE(QTest::qWaitFor([&] { return closed.size() == 1; }, 5000));
}
