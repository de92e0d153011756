#pragma once

// A results window over a real search of a small temporary tree, for widget tests.
#include "Dupes.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "Settings.h"
#include "support/TempTree.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

namespace selfsame {

// A finished results window over a tree with groups {a, b, c} and {d, e} and a unique f.
struct ResultWindow {
    TempTree tree;
    Settings settings{tree.path(QStringLiteral("Selfsame.conf"))};
    Dupes *dupes = nullptr;

    explicit ResultWindow(DetectionMode mode = DetectionMode::Content)
    {
        tree.build({"x/a:3", "x/b:3", "x/sub/c:3", "x/d:5", "x/e:5", "x/f:7"});
        open(mode);
    }
    ~ResultWindow() { delete dupes; }

    void open(DetectionMode mode)
    {
        delete dupes;
        dupes = new Dupes(settings);
        dupes->setAttribute(Qt::WA_DeleteOnClose, false);
        SearchRequest request;
        request.searchInFolderURLs = {tree.path(QStringLiteral("x"))};
        request.detectionMode = mode;
        QSignalSpy done(dupes, &Dupes::finishedSearching);
        dupes->searchInFolderURLs(request);
        EXPECT_TRUE(done.wait(20000));
        dupes->show();
    }
    ResultListView *top() const { return dupes->mainList(); }
    ResultListView *bottom() const { return dupes->cloneList(); }
    int rowOf(ResultListView *view, const QString &name) const
    {
        for (int row = 0; row < view->model()->rowCount(); ++row)
            if (view->resultModel()->item(row)->name() == name) return row;
        return -1;
    }
    void click(ResultListView *view, const QString &name, Qt::KeyboardModifiers modifiers = {}) const
    {
        const int row = rowOf(view, name);
        ASSERT_GE(row, 0) << name.toStdString();
        const QRect cell = view->visualRect(view->model()->index(row, 0));
        QTest::mouseClick(view->viewport(), Qt::LeftButton, modifiers, cell.center());
    }
    QStringList names(ResultListView *view) const
    {
        QStringList names;
        for (int row = 0; row < view->model()->rowCount(); ++row)
            names.append(view->resultModel()->item(row)->name());
        return names;
    }
    QStringList selectedNames(ResultListView *view) const
    {
        QStringList names;
        for (const QModelIndex &index : view->selectionModel()->selectedRows())
            names.append(view->resultModel()->item(index.row())->name());
        names.sort();
        return names;
    }
    QString cell(ResultListView *view, const QString &name, const QString &column) const
    {
        return view->model()->data(view->model()->index(rowOf(view, name), view->resultModel()->columnOf(column)))
            .toString();
    }
};

} // namespace selfsame
