// Saved results in the desktop application: saving a results window, opening the file in a
// window of its own, exporting the top list, and refusing a file it cannot read.
#include "AppDelegate.h"
#include "Dupes.h"
#include "LaunchRequest.h"
#include "LocationsModel.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "Settings.h"
#include "results/ResultsFile.h"
#include "support/FileItems.h"
#include "support/TempTree.h"

#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace selfsame;

namespace {

// A finished results window over groups {a, b, c} and {d, e}, and a main window beside it.
struct SavedResults {
    TempTree tree;
    Settings settings{tree.path(QStringLiteral("Selfsame.conf"))};
    std::unique_ptr<Dupes> searched;
    std::unique_ptr<AppDelegate> main;

    SavedResults()
    {
        tree.build({"x/a:3", "x/b:3", "x/sub/c:3", "x/d:5", "x/e:5", "x/f:7"});
        searched = std::make_unique<Dupes>(settings);
        searched->setAttribute(Qt::WA_DeleteOnClose, false);
        SearchRequest request;
        request.searchInFolderURLs = {tree.path(QStringLiteral("x"))};
        QSignalSpy done(searched.get(), &Dupes::finishedSearching);
        searched->searchInFolderURLs(request);
        EXPECT_TRUE(done.wait(20000));
        main = std::make_unique<AppDelegate>(settings);
    }
    ~SavedResults()
    {
        for (Dupes *dupes : QList<Dupes *>(main->dupesList()))
            dupes->close();
    }
    static QStringList names(const QList<ResultItem *> &items)
    {
        QStringList names;
        for (const ResultItem *item : items) names.append(item->name());
        return names;
    }
    static QList<QMessageBox *> openAlerts()
    {
        QApplication::processEvents();
        QList<QMessageBox *> boxes;
        for (QWidget *w : QApplication::topLevelWidgets())
            if (auto *box = qobject_cast<QMessageBox *>(w); box && box->isVisible()) boxes.append(box);
        return boxes;
    }
};

TEST(SavedResults, AResultsFileOpensInAWindowOfItsOwnAsItWasSaved)
{
    SavedResults s;
    ResultModel &model = s.searched->resultModel();
    model.setSortDescriptor(ResultList::Top, SortDescriptor{QStringLiteral("URL.path.lastPathComponent"), true});
    QList<ResultItem *> visible = model.mainItems();
    const QList<ResultItem *> hidden = {visible.takeAt(1)};
    model.hide(visible, hidden, false);
    s.searched->modelDidChange();
    const QString file = s.tree.path(QStringLiteral("x results.selfsame"));
    ASSERT_EQ(s.searched->saveResults(file), QString());

    const QString folder = s.tree.path(QStringLiteral("x/sub"));
    s.main->handleLaunch(LaunchRequest{false, {file, folder}});
    ASSERT_EQ(s.main->dupesList().size(), 1);
    Dupes *reopened = s.main->dupesList().first();
    EXPECT_EQ(SavedResults::names(reopened->resultModel().mainItems()), SavedResults::names(model.mainItems()));
    EXPECT_EQ(SavedResults::names(reopened->resultModel().mainItemsHidden()), QStringList{QStringLiteral("b")});
    EXPECT_EQ(reopened->mainList()->model()->rowCount(), 4);
    EXPECT_TRUE(reopened->statusText().contains(QStringLiteral("1 hidden"))) << reopened->statusText().toStdString();
    // The folder opened with the file became a location, as any other file would.
    EXPECT_EQ(s.main->sources()->enabledPaths(), QStringList{folder});
    EXPECT_EQ(s.main->searchingCount(), 0);
}

TEST(SavedResults, AFileThatCannotBeReadIsRefusedWithItsReasonAndNothingChanges)
{
    SavedResults s;
    const QString file = s.tree.path(QStringLiteral("later.selfsame"));
    ASSERT_EQ(s.searched->saveResults(file), QString());
    QByteArray text = readFile(file);
    text.replace("\"version\":1", "\"version\":7");
    writeFile(file, text);

    s.main->handleLaunch(LaunchRequest{false, {file}});
    const QList<QMessageBox *> alerts = SavedResults::openAlerts();
    ASSERT_EQ(alerts.size(), 1);
    EXPECT_TRUE(alerts[0]->informativeText().contains(QStringLiteral("later.selfsame")));
    EXPECT_TRUE(alerts[0]->informativeText().contains(QStringLiteral("newer version")));
    alerts[0]->done(0);
    EXPECT_TRUE(s.main->dupesList().isEmpty());
    EXPECT_TRUE(s.main->sources()->locations().isEmpty());
}

TEST(SavedResults, ExportWritesTheVisibleColumnsInTheirOrder)
{
    SavedResults s;
    s.searched->show();
    for (const QString &column : {QStringLiteral("size"), QStringLiteral("modified"), QStringLiteral("created"),
                                  QStringLiteral("lastUsed"), QStringLiteral("addedDate"),
                                  QStringLiteral("attributes"), QStringLiteral("tags"), QStringLiteral("path")})
        s.searched->changeListColumn(column, false);
    QHeaderView *header = s.searched->mainList()->horizontalHeader();
    const ResultTableModel *table = s.searched->mainList()->resultModel();
    header->moveSection(header->visualIndex(table->columnOf(QStringLiteral("dupes"))), 0);

    const QString file = s.tree.path(QStringLiteral("list.csv"));
    ASSERT_EQ(s.searched->exportTopList(file), QString());
    const QList<QByteArray> rows = readFile(file).split('\n');
    ASSERT_EQ(rows.size(), 1 + 5 + 1) << readFile(file).toStdString(); // header, items, end
    QStringList titles;
    for (int visual = 0; visual < header->count(); ++visual) {
        const int logical = header->logicalIndex(visual);
        if (!header->isSectionHidden(logical))
            titles.append(table->headerData(logical, Qt::Horizontal, Qt::DisplayRole).toString());
    }
    EXPECT_EQ(QString::fromUtf8(rows[0]).trimmed(), titles.join(u','));
    EXPECT_TRUE(rows[0].startsWith(table->headerData(table->columnOf(QStringLiteral("dupes")), Qt::Horizontal,
                                                     Qt::DisplayRole)
                                       .toString()
                                       .toUtf8()));
}

TEST(LaunchRequest, ResultsFilesAreToldApartByTheirSuffix)
{
    TempTree tree;
    EXPECT_TRUE(isResultsFile(tree.file(QStringLiteral("a.selfsame"), "{}")));
    EXPECT_TRUE(isResultsFile(tree.file(QStringLiteral("B.SELFSAME"), "{}")));
    EXPECT_FALSE(isResultsFile(tree.file(QStringLiteral("a.json"), "{}")));
    EXPECT_FALSE(isResultsFile(tree.folder(QStringLiteral("folder.selfsame"))));
    EXPECT_FALSE(isResultsFile(tree.path(QStringLiteral("absent.selfsame"))));
}

} // namespace
