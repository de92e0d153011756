#include "SearchedWindow.h"

#include "Dupes.h"
#include "ResultListView.h"

#include <QEventLoop>
#include <QTimer>

namespace selfsame {

void settle(int ms)
{
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
}

Dupes *searchedWindow(Settings &settings, DetectionMode mode, const QStringList &locations, const QString &attribute,
                      QSize size)
{
    SearchRequest request;
    request.searchInFolderURLs = locations;
    request.detectionMode = mode;
    request.spotlightAttribute = attribute;
    return searchedWindow(settings, request, size);
}

Dupes *searchedWindow(Settings &settings, const SearchRequest &request, QSize size)
{
    auto *dupes = new Dupes(settings);
    dupes->setAttribute(Qt::WA_DeleteOnClose, false);
    if (size.isValid())
        dupes->resize(size);
    dupes->show();
    QEventLoop loop;
    QObject::connect(dupes, &Dupes::finishedSearching, &loop, &QEventLoop::quit);
    dupes->searchInFolderURLs(request);
    loop.exec();
    return dupes;
}

void selectRow(Dupes *dupes, int row)
{
    ResultListView *top = dupes->mainList();
    top->selectionModel()->select(top->model()->index(row, 0),
                                  QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    // The focused list is drawn framed, with its selection in the strong colour.
    dupes->activateWindow();
    top->setFocus();
}

void save(Dupes *dupes, const QDir &output, const QString &name)
{
    settle(400); // thumbnails
    dupes->grab().save(output.filePath(name));
    delete dupes;
}

} // namespace selfsame
