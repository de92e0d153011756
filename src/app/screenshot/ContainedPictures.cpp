#include "ContainedPictures.h"

#include "Dupes.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "SearchedWindow.h"

#include <QColor>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>

namespace selfsame {

namespace {

void writePhoto(const QString &path, int seed)
{
    QImage image(320 + seed * 16, 240, QImage::Format_RGB32);
    image.fill(QColor::fromHsv((seed * 53) % 360, 140, 210));
    QPainter painter(&image);
    painter.setBrush(QColor::fromHsv((seed * 97) % 360, 200, 250));
    painter.drawEllipse(QPoint(80 + seed * 11 % 160, 100), 50, 50);
    painter.end();
    image.save(path, "JPG", 85);
}

} // namespace

void drawContainedFolders(Settings &settings, const QString &scratch, const QDir &output)
{
    const QDir root(scratch + QStringLiteral("/Contained"));
    const char *const layout[][3] = {
        // old backup name, its place in the library, the library's name for it
        {"Backup 2019/Holiday/IMG_0101.jpg", "Library/2019/08 Brittany", "Beach.jpg"},
        {"Backup 2019/Holiday/IMG_0102.jpg", "Library/2019/08 Brittany", "Harbour.jpg"},
        {"Backup 2019/Holiday/IMG_0103.jpg", "Library/2019/08 Brittany/Evenings", "Sunset.jpg"},
        {"Backup 2019/Family/IMG_0201.jpg", "Library/2019/12 Christmas", "Tree.jpg"},
        {"Backup 2019/Family/IMG_0202.jpg", "Library/2019/12 Christmas", "Dinner.jpg"},
        {"Phone export/IMG_0301.jpg", "Library/2020/Garden", "Roses.jpg"},
        {"Phone export/IMG_0302.jpg", "Library/2020/Garden", "Bench.jpg"},
    };
    int seed = 1;
    for (const auto &[old, folder, name] : layout) {
        const QString oldPath = root.filePath(QLatin1String(old));
        root.mkpath(QFileInfo(oldPath).path());
        root.mkpath(QLatin1String(folder));
        writePhoto(oldPath, seed++);
        QFile::copy(oldPath, root.filePath(QLatin1String(folder) + u'/' + QLatin1String(name)));
    }
    writePhoto(root.filePath(QStringLiteral("Library/2020/Garden/Pond.jpg")), 40); // found only there

    SearchRequest request;
    request.searchInFolderURLs = {root.path()};
    request.containedFolders = true;
    Dupes *dupes = searchedWindow(settings, request, QSize(1180, 640));
    // Room for the Kind column's words, which say which side of its group a folder is.
    for (ResultListView *list : {dupes->mainList(), dupes->cloneList()})
        list->setColumnWidth(list->resultModel()->columnOf(QStringLiteral("extension")), 90);
    selectRow(dupes, 0);
    save(dupes, output, QStringLiteral("contained-folders.png"));
}

} // namespace selfsame
