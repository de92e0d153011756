// Draws the file commands' windows of a results window: the automatic-selection sheet and
// the confirmation before replacing duplicates by clones, and saves the pictures.
#include "Alert.h"
#include "AutoSelectSheet.h"
#include "Settings.h"
#include "fileops/CloneAlerts.h"

#include "language/EnglishPlurals.h"

#include <QApplication>
#include <QButtonGroup>
#include <QDir>
#include <QFile>
#include <QIcon>
#include <QMessageBox>
#include <QTemporaryDir>
#include <cstdio>

namespace {

void settle()
{
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

// A few groups of photos in two folders, as a content search would list them.
selfsame::ResultModel sampleModel(const QDir &root)
{
    QList<selfsame::ResultItem> items;
    const QStringList paths{QStringLiteral("Pictures/2023/beach.jpg"), QStringLiteral("Backup/beach.jpg"),
                            QStringLiteral("Pictures/2023/beach copy.jpg"), QStringLiteral("Pictures/dog.jpg"),
                            QStringLiteral("Backup/dog.jpg")};
    for (qsizetype i = 0; i < paths.size(); ++i) {
        const QString path = root.filePath(paths[i]);
        root.mkpath(QFileInfo(path).path());
        QFile(path).open(QIODevice::WriteOnly);
        selfsame::ResultItem item;
        item.path = path;
        item.group = i < 3 ? 0 : 1;
        item.digest.fill(std::uint8_t(item.group));
        item.set(selfsame::HasDigest);
        items.append(item);
    }
    selfsame::SearchRequest request;
    request.searchInFolderURLs = {root.path()};
    selfsame::ResultModel model;
    model.setResults(items, request);
    return model;
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Selfsame"));
    selfsame::EnglishPlurals plurals;
    QApplication::installTranslator(&plurals);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/selfsame.svg")));
    if (QApplication::arguments().size() != 2) {
        std::fprintf(stderr, "usage: selfsame-screenshot-actions OUTPUT_FOLDER\n");
        return 2;
    }
    const QDir output(QApplication::arguments()[1]);
    QTemporaryDir sample;
    selfsame::Settings settings(sample.filePath(QStringLiteral("Selfsame.conf")));
    selfsame::ResultModel model = sampleModel(QDir(sample.path()));

    QWidget window;
    window.setWindowTitle(QStringLiteral("Duplicates"));
    window.resize(900, 560);
    window.show();
    selfsame::AutoSelectSheet sheet(&window, model, settings);
    sheet.automaticallySelectInFolder(QDir(sample.path()).filePath(QStringLiteral("Backup")));
    settle();
    sheet.grab().save(output.filePath(QStringLiteral("auto-select-sheet.png")));
    sheet.reject();

    selfsame::CloneCounts counts;
    counts.onAllFoundFiles = false;
    counts.replaceDuplicates = 1284;
    counts.ofPhysicalSize = 18'734'120'960;
    counts.byClones = 611;
    selfsame::showAlert(&window, QMessageBox::Warning, selfsame::cloneConfirmationAlert(counts));
    settle();
    if (auto *box = window.findChild<QMessageBox *>())
        box->grab().save(output.filePath(QStringLiteral("clone-confirmation.png")));
    return 0;
}
