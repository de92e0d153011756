// Names that are not UTF-8 in the application: shown with their bytes escaped, and every file
// command, picture, drag, drop and hand-over reaches the very file, never a look-alike.
#include "Alert.h"
#include "AutoSelectSheet.h"
#include "Desktop.h"
#include "Dupes.h"
#include "DupesActions.h"
#include "ItemIcons.h"
#include "LaunchRequest.h"
#include "LocalFiles.h"
#include "Locations.h"
#include "LocationsModel.h"
#include "PreviewPane.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "Settings.h"
#include "SingleInstance.h"
#include "ThumbnailLoader.h"
#include "names/FileNames.h"
#include "results/ResultsFile.h"
#include "support/ByteFiles.h"
#include "support/TempTree.h"
#include "support/TrashHome.h"

#include <QBuffer>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace selfsame;

namespace {

QByteArray pngOf(QColor colour, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(colour);
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return png;
}

// What no displayed text may hold: the lone surrogates of raw bytes or a replacement character.
bool showsRawBytes(const QString &text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar c) { return c.isSurrogate() || c == QChar::ReplacementCharacter; });
}

// A temporary folder for names that need not be UTF-8, with its real path as bytes.
struct ByteTree {
    TempTree tree;
    QByteArray root = QFileInfo(tree.path()).canonicalFilePath().toUtf8();
};

} // namespace

TEST(ByteNameWindow, ListsShowEscapedNamesAndDragsDropsTrashAndPutBackReachTheFile)
{
    TrashHome home;
    const auto emptyTrash = qScopeGuard([&] { removeContentsBytes(pathBytes(home.path())); });
    ByteTree temp;
    const TempTree &tree = temp.tree;
    const QByteArray &root = temp.root;
    const QByteArray location = root + "/loc\xfe";
    const QByteArray bad = location + "/bad\xff.txt", copy = location + "/sub\xfd/copy.txt";
    ASSERT_EQ(mkdir(location.constData(), 0755), 0);
    ASSERT_EQ(mkdir((location + "/sub\xfd").constData(), 0755), 0);
    const QByteArray content = patternBytes(3000, 5);
    ASSERT_TRUE(writeBytes(bad, content));
    ASSERT_TRUE(writeBytes(location + "/keep.txt", content));
    ASSERT_TRUE(writeBytes(copy, content));

    Settings settings(tree.path(QStringLiteral("Selfsame.conf")));
    settings.setValue(QStringLiteral("put back tip shown"), true);
    QStringList asked;
    setAlertAnswerer([&](const Alert &alert) {
        asked.append(alert.message);
        return AlertAnswer{kFirstButton + int(alert.buttons.size()) - 1};
    });
    const auto showAlertsAgain = qScopeGuard([] { setAlertAnswerer({}); });
    auto dupes = std::make_unique<Dupes>(settings);
    dupes->setAttribute(Qt::WA_DeleteOnClose, false);
    SearchRequest request;
    request.searchInFolderURLs = {pathFromBytes(location)};
    QSignalSpy done(dupes.get(), &Dupes::finishedSearching);
    dupes->searchInFolderURLs(request);
    ASSERT_TRUE(done.wait(20000));
    dupes->show();
    EXPECT_EQ(dupes->windowTitle(), QStringLiteral("loc\\xFE — by content — Selfsame"));

    ResultListView *top = dupes->mainList();
    ResultTableModel *model = top->resultModel();
    ASSERT_EQ(model->rowCount(), 3);
    auto rowOf = [&](const QByteArray &path) {
        for (int row = 0; row < model->rowCount(); ++row)
            if (pathBytes(model->item(row)->path) == path) return row;
        return -1;
    };
    auto cell = [&](const QByteArray &path, const char *column, int role = Qt::DisplayRole) {
        return model->data(model->index(rowOf(path), model->columnOf(QLatin1String(column))), role)
            .toString();
    };
    ASSERT_GE(rowOf(bad), 0);
    ASSERT_GE(rowOf(copy), 0);
    EXPECT_EQ(cell(bad, "name"), QStringLiteral("bad\\xFF.txt"));
    EXPECT_EQ(cell(copy, "folder"), QStringLiteral("sub\\xFD"));
    EXPECT_EQ(cell(copy, "path"), QStringLiteral("sub\\xFD"));
    // The tool tip names the whole path first (then, in a grouped list, the group).
    EXPECT_EQ(cell(bad, "name", Qt::ToolTipRole).section(u'\n', 0, 0),
              QString::fromUtf8(root) + QStringLiteral("/loc\\xFE/bad\\xFF.txt"));
    for (int row = 0; row < model->rowCount(); ++row)
        for (int column = 0; column < model->columnCount(); ++column)
            EXPECT_FALSE(showsRawBytes(model->data(model->index(row, column), Qt::DisplayRole).toString()))
                << "row " << row << ", column " << column;

    // Dragged out, the row is the file's address with the byte percent-encoded.
    std::unique_ptr<QMimeData> dragged(model->mimeData({model->index(rowOf(bad), 0)}));
    ASSERT_EQ(dragged->urls().size(), 1);
    EXPECT_TRUE(dragged->urls()[0].toEncoded().endsWith("/loc%FE/bad%FF.txt"))
        << dragged->urls()[0].toEncoded().constData();
    EXPECT_EQ(pathBytes(pathFromUrl(dragged->urls()[0])), bad);

    // Dropped as a file manager sends it, the file is found and selected.
    QMimeData dropped;
    dropped.setUrls({QUrl::fromEncoded("file://" + root.toPercentEncoding("/") + "/loc%FE/sub%FD/copy.txt")});
    ASSERT_TRUE(dupes->performDragOperation(&dropped));
    ASSERT_EQ(dupes->targetItems().size(), 1);
    EXPECT_EQ(pathBytes(dupes->targetItems()[0]->path), copy);
    EXPECT_EQ(dupes->pathBarText(), QString::fromUtf8(root) + QStringLiteral("/loc\\xFE/sub\\xFD/copy.txt"));
    const QString links = dupes->findChild<QLabel *>(QStringLiteral("pathControl"))->text();
    EXPECT_TRUE(links.contains(QStringLiteral("/loc%FE/sub%FD\"")) &&
                links.contains(QStringLiteral(">sub\\xFD<")))
        << links.toStdString();

    // Moved to the trash through the window's command, and put back, with the same bytes.
    ASSERT_TRUE(dupes->selectAndRevealInTopList(pathFromBytes(bad)));
    dupes->resultActions().files->moveToTrashAction()->trigger();
    EXPECT_TRUE(asked.isEmpty()) << asked.join(u'\n').toStdString();
    EXPECT_FALSE(pathExists(pathFromBytes(bad)));
    const QByteArray trash = pathBytes(home.trash());
    EXPECT_EQ(readBytes(trash + "/files/bad\xff.txt"), content);
    EXPECT_TRUE(readBytes(trash + "/info/bad\xff.txt.trashinfo").contains("/loc%FE/bad%FF.txt\n"));
    ASSERT_TRUE(dupes->resultActions().files->putBackAction()->isEnabled());
    dupes->resultActions().files->putBackAction()->trigger();
    EXPECT_EQ(readBytes(bad), content);
    EXPECT_FALSE(pathExists(pathFromBytes(trash + "/files/bad\xff.txt")));
    dupes->close();
}

TEST(ByteNameFiles, PicturesTextAndCachedThumbnailsComeFromTheRealFile)
{
    ByteTree temp;
    const TempTree &tree = temp.tree;
    const QByteArray &root = temp.root;
    const QByteArray oldCache = qgetenv("XDG_CACHE_HOME");
    qputenv("XDG_CACHE_HOME", tree.path(QStringLiteral("cache")).toUtf8());
    const auto restoreCache = qScopeGuard([&] { qputenv("XDG_CACHE_HOME", oldCache); });
    const QString picture = pathFromBytes(root + "/pic\xff.png");
    // The name Qt's own file classes would reach instead holds a picture of another colour.
    ASSERT_TRUE(writeBytes(QFile::encodeName(picture), pngOf(Qt::red, QSize(200, 100))));
    QImage blue(200, 100, QImage::Format_RGB32);
    blue.fill(Qt::blue);
    const QString plain = tree.path(QStringLiteral("plain.png"));
    ASSERT_TRUE(blue.save(plain));
    ASSERT_EQ(rename(plain.toUtf8().constData(), pathBytes(picture).constData()), 0);

    EXPECT_EQ(makeThumbnail(picture, 64).pixelColor(32, 16), QColor(Qt::blue));
    ResultItem item;
    item.path = picture;
    ItemIcons icons;
    icons.setSize(32);
    QSignalSpy changed(&icons, &ItemIcons::iconsChanged);
    icons.icon(item);
    ASSERT_TRUE(changed.wait(10000));
    EXPECT_EQ(icons.icon(item).size(), QSize(32, 16));
    EXPECT_EQ(icons.icon(item).toImage().pixelColor(16, 8), QColor(Qt::blue));

    PreviewPane pane;
    pane.show();
    const QList<QLabel *> labels = pane.findChildren<QLabel *>();
    ASSERT_EQ(labels.size(), 2);
    pane.showItem(&item);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !labels[0]->pixmap().isNull(); }, 10000));
    EXPECT_EQ(labels[0]->pixmap().toImage().pixelColor(10, 10), QColor(Qt::blue));
    EXPECT_TRUE(labels[1]->text().contains(QStringLiteral("pic\\xFF.png")));
    EXPECT_FALSE(showsRawBytes(labels[1]->text()));

    ResultItem notes;
    notes.path = pathFromBytes(root + "/notes\xff.txt");
    ASSERT_TRUE(writeBytes(pathBytes(notes.path), "the real notes\n"));
    ASSERT_TRUE(writeBytes(QFile::encodeName(notes.path), "a look-alike\n"));
    pane.showItem(&notes);
    EXPECT_EQ(pane.findChild<QPlainTextEdit *>()->toPlainText(), QStringLiteral("the real notes\n"));

    // The desktop's cache names a picture by the MD5 of the URI, as the desktop encodes it.
    const QString cached = pathFromBytes(root + "/pic\xff (1).png");
    ASSERT_TRUE(writeBytes(pathBytes(cached), pngOf(Qt::blue, QSize(300, 300))));
    struct stat status = {};
    ASSERT_EQ(stat(pathBytes(cached).constData(), &status), 0);
    QDir().mkpath(tree.path(QStringLiteral("cache/thumbnails/normal")));
    const QByteArray uri = "file://" + root.toPercentEncoding("/") + "/pic%FF%20(1).png";
    EXPECT_EQ(thumbnailUri(cached), uri);
    QImage green(128, 128, QImage::Format_RGB32);
    green.fill(Qt::green);
    green.setText(QStringLiteral("Thumb::MTime"), QString::number(status.st_mtim.tv_sec));
    green.save(tree.path(QStringLiteral("cache/thumbnails/normal/")) +
               QString::fromLatin1(QCryptographicHash::hash(uri, QCryptographicHash::Md5).toHex()) +
               QStringLiteral(".png"));
    EXPECT_EQ(makeThumbnail(cached, 64).pixelColor(10, 10), QColor(Qt::green));

    // Pipes and folders are not read.
    EXPECT_FALSE(openForReading(pathFromBytes(root)));
    ASSERT_EQ(mkfifo((root + "/pipe\xff").constData(), 0600), 0);
    EXPECT_FALSE(openForReading(pathFromBytes(root + "/pipe\xff")));
}

TEST(ByteNameLaunch, ArgumentsUrisHandOversAndSavedResultsCarryTheBytes)
{
    EXPECT_EQ(fileManagerUris({pathFromBytes(QByteArray("/tmp/a b/bad\xff.txt"))}),
              QStringList{QStringLiteral("file:///tmp/a%20b/bad%FF.txt")});
    EXPECT_EQ(enclosingFolderUrl(pathFromBytes(QByteArray("/tmp/dir\xfe/x.txt"))).toEncoded(),
              QByteArray("file:///tmp/dir%FE"));
    EXPECT_EQ(enclosingFolderUrl(QStringLiteral("/x")).toEncoded(), QByteArray("file:///"));

    const char *argv[] = {"selfsame", "--search", "bad\xff", "file:///tmp/x%FF/y", nullptr};
    const QStringList arguments = commandLineArguments(4, argv);
    ASSERT_EQ(arguments.size(), 4);
    EXPECT_EQ(pathBytes(arguments[2]), QByteArray("bad\xff"));
    const QStringList paths = absoluteLocalPaths(arguments.mid(2), pathFromBytes(QByteArray("/home/u\xfe")));
    ASSERT_EQ(paths.size(), 2);
    EXPECT_EQ(pathBytes(paths[0]), QByteArray("/home/u\xfe/bad\xff"));
    EXPECT_EQ(pathBytes(paths[1]), QByteArray("/tmp/x\xff/y"));

    ByteTree temp;
    const TempTree &tree = temp.tree;
    const QByteArray &root = temp.root;
    ASSERT_EQ(mkdir((root + "/cwd\xfe").constData(), 0755), 0);
    const QString before = QDir::currentPath();
    ASSERT_EQ(chdir((root + "/cwd\xfe").constData()), 0);
    const QString working = currentFolder();
    ASSERT_EQ(chdir(before.toUtf8().constData()), 0);
    EXPECT_EQ(pathBytes(working), root + "/cwd\xfe");

    const QString results = pathFromBytes(root + "/found\xff.selfsame");
    EXPECT_FALSE(isResultsFile(results));
    ResultModel model;
    model.setResults({}, SearchRequest{});
    const QString plain = tree.path(QStringLiteral("plain.selfsame"));
    ASSERT_TRUE(ResultsFile::save(model, plain).isEmpty());
    ASSERT_EQ(rename(plain.toUtf8().constData(), pathBytes(results).constData()), 0);
    EXPECT_TRUE(isResultsFile(results));
    const ResultsFile::Loaded loaded = ResultsFile::load(results);
    EXPECT_TRUE(loaded.model) << loaded.error.toStdString();
    const ResultsFile::Loaded missing = ResultsFile::load(pathFromBytes(root + "/gone\xff.selfsame"));
    EXPECT_FALSE(missing.model);
    EXPECT_TRUE(missing.error.contains(QStringLiteral("/gone\\xFF.selfsame"))) << missing.error.toStdString();
    EXPECT_FALSE(showsRawBytes(missing.error));

    SingleInstance first(tree.path(QStringLiteral("instance")));
    ASSERT_TRUE(first.listen());
    QSignalSpy received(&first, &SingleInstance::received);
    const LaunchRequest launch{false, {results}};
    SingleInstance second(tree.path(QStringLiteral("instance")));
    ASSERT_TRUE(second.handOver(launch.toMessage()));
    ASSERT_TRUE(received.wait(5000));
    const LaunchRequest handed = LaunchRequest::fromMessage(received[0][0].toStringList());
    ASSERT_EQ(handed.paths.size(), 1);
    EXPECT_EQ(pathBytes(handed.paths[0]), root + "/found\xff.selfsame");
}

TEST(ByteNameLocations, DroppedFoldersAreShownEscapedAndSurviveARestart)
{
    ByteTree temp;
    const TempTree &tree = temp.tree;
    const QByteArray &root = temp.root;
    ASSERT_EQ(mkdir((root + "/loc\xfe").constData(), 0755), 0);
    const QStringList dropped =
        localPaths({QUrl::fromEncoded("file://" + root.toPercentEncoding("/") + "/loc%FE/"),
                    QUrl(QStringLiteral("https://x.org/"))});
    ASSERT_EQ(dropped.size(), 1);
    EXPECT_EQ(pathBytes(dropped[0]), root + "/loc\xfe");
    EXPECT_TRUE(isFolder(dropped[0]));
    EXPECT_FALSE(isRegularLocation(dropped[0])) << "read as the folder it is";

    const QString ini = tree.path(QStringLiteral("Selfsame.conf"));
    {
        Settings settings(ini);
        LocationsModel model(settings, [] { return NestingRule{true, std::nullopt, deviceOf}; });
        model.addPaths(dropped, true, true);
        ASSERT_EQ(model.rowCount(), 1);
        EXPECT_EQ(model.data(model.index(0, LocationsModel::NameColumn), Qt::DisplayRole).toString(),
                  QStringLiteral("loc\\xFE"));
        EXPECT_EQ(model.data(model.index(0, LocationsModel::NameColumn), Qt::ToolTipRole).toString(),
                  QString::fromUtf8(root) + QStringLiteral("/loc\\xFE"));
        settings.sync();
    }
    // A copy of the file is read from disk, not from what this process keeps of it.
    const QString copy = tree.path(QStringLiteral("Copy.conf"));
    ASSERT_TRUE(QFile::copy(ini, copy));
    const QList<Location> loaded = loadLocations(Settings(copy));
    ASSERT_EQ(loaded.size(), 1);
    EXPECT_EQ(pathBytes(loaded[0].path), root + "/loc\xfe");
}

TEST(ByteNameAutoSelect, TheFolderRuleShowsItsFolderEscapedAndSelectsInsideIt)
{
    ByteTree temp;
    const QByteArray &root = temp.root;
    ASSERT_EQ(mkdir((root + "/keep").constData(), 0755), 0);
    ASSERT_EQ(mkdir((root + "/old\xfe").constData(), 0755), 0);
    QList<ResultItem> items;
    for (const QByteArray &path : {root + "/keep/a.txt", root + "/old\xfe/a.txt"}) {
        ASSERT_TRUE(writeBytes(path, "x"));
        ResultItem item;
        item.path = pathFromBytes(path);
        item.digest.fill(1);
        item.set(HasDigest);
        items.append(item);
    }
    SearchRequest request;
    request.searchInFolderURLs = {pathFromBytes(root)};
    ResultModel model;
    model.setResults(items, request);
    Settings settings(temp.tree.path(QStringLiteral("settings.ini")));
    QWidget window;
    AutoSelectSheet sheet(&window, model, settings);

    ResultItem *old = nullptr;
    for (ResultItem *item : model.mainItems())
        if (pathBytes(item->path).contains("/old\xfe/")) old = item;
    ASSERT_TRUE(old);
    QMenu submenu;
    sheet.buildFolderSubmenu(&submenu, {old});
    ASSERT_FALSE(submenu.isEmpty());
    EXPECT_EQ(submenu.actions()[0]->text(), QStringLiteral("old\\xFE"));
    ASSERT_TRUE(submenu.actions()[0]->isEnabled()) << "the folder is there";
    submenu.actions()[0]->trigger();
    EXPECT_EQ(sheet.folderField()->text(), QString::fromUtf8(root) + QStringLiteral("/old\\xFE"));
    EXPECT_EQ(pathBytes(sheet.choices().folder), root + "/old\xfe");
    sheet.accept();
    EXPECT_EQ(model.selectedItems(ResultList::Top), QList<ResultItem *>{old});
}
