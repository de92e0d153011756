// The results window at scale, offscreen: 1,000,000 synthetic items in 300,000 groups.
// Measures the time from the end of a search to the first drawn top list (model built, lists
// filled, window painted), a re-sort by name and by size with the redraw, scrolling to random
// places with the redraw, a selection that fills the bottom list, and the memory per item of
// the whole window (items, engine arrays, Qt models and views).
//   selfsame-result-window-bench [ITEMS] [GROUPS]

#include "BenchSupport.h"
#include "Dupes.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "Settings.h"

#include <QApplication>
#include <QHeaderView>
#include <QScrollBar>
#include <QTemporaryDir>
#include <cstdio>

using namespace selfsame;

namespace
{

// Draws the viewport now and waits until it has been drawn.
void drawNow(QWidget *viewport)
{
    viewport->repaint();
    QApplication::processEvents();
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Selfsame"));
    const int count = argc > 1 ? std::atoi(argv[1]) : 1'000'000;
    const int groups = argc > 2 ? std::atoi(argv[2]) : 300'000;
    QTemporaryDir config;
    Settings settings(config.filePath(QStringLiteral("Selfsame.conf")));
    auto *window = new Dupes(settings);
    window->show();
    QApplication::processEvents();
    std::mt19937_64 random(42);

    const std::size_t heapBefore = heapInUse();
    QList<ResultItem> items = syntheticItems(count, groups, random);
    SearchRequest request;
    request.searchInFolderURLs = {QStringLiteral("/home/someone/Pictures"), QStringLiteral("/home/someone/Music")};

    Timer timer;
    window->showFinishedResults(std::move(items), request);
    drawNow(window->mainList()->viewport());
    const QByteArray opened = timer.stop();
    const std::size_t heapAfter = heapInUse();

    ResultListView *top = window->mainList();
    // As a click on the header does it: QTableView::sortByColumn would sort twice.
    QHeaderView *header = top->horizontalHeader();
    timer = Timer();
    header->setSortIndicator(top->resultModel()->columnOf(QStringLiteral("name")), Qt::AscendingOrder);
    drawNow(top->viewport());
    const QByteArray byName = timer.stop();
    timer = Timer();
    header->setSortIndicator(top->resultModel()->columnOf(QStringLiteral("size")), Qt::DescendingOrder);
    drawNow(top->viewport());
    const QByteArray bySize = timer.stop();

    const int scrolls = 200;
    QScrollBar *bar = top->verticalScrollBar();
    timer = Timer();
    for (int i = 0; i < scrolls; ++i) {
        bar->setValue(int(random() % std::uint64_t(bar->maximum() + 1)));
        drawNow(top->viewport());
    }
    const QByteArray scroll = timer.stop(scrolls);

    const int selections = 200;
    timer = Timer();
    for (int i = 0; i < selections; ++i) {
        const QModelIndex index = top->model()->index(int(random() % std::uint64_t(count)), 0);
        top->selectionModel()->select(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
        drawNow(window->cloneList()->viewport());
    }
    const QByteArray select = timer.stop(selections);

    std::printf("items %d in %d groups, window %dx%d, %d rows on screen\n", count, groups, window->width(),
                window->height(), top->viewport()->height() / std::max(1, top->verticalHeader()->defaultSectionSize()));
    std::printf("search end to first drawn lists (model, lists, paint): %s\n", opened.constData());
    std::printf("re-sort by name and redraw: %s\n", byName.constData());
    std::printf("re-sort by size and redraw: %s\n", bySize.constData());
    std::printf("scroll to a random place and redraw, average of %d: %s\n", scrolls, scroll.constData());
    std::printf("select a row, fill and draw the bottom list, average of %d: %s\n", selections, select.constData());
    std::printf("whole window: %.0f bytes per item (heap: items with their paths, engine arrays, Qt models)\n",
                double(heapAfter - heapBefore) / count);
    delete window;
    return 0;
}
