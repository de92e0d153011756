#include "ResultPictures.h"

#include "ContainedPictures.h"
#include "Dupes.h"
#include "GlancePictures.h"
#include "FilterBar.h"
#include "ResultTableModel.h"
#include "SearchedWindow.h"
#include "SimilarPictures.h"
#include "Settings.h"
#include "results/ResultsFile.h"

#include <QApplication>
#include <QComboBox>
#include <QDataStream>
#include <QFile>
#include <QLineEdit>
#include <QPainter>

#include <cstring>
#include <sys/xattr.h>

namespace selfsame {

namespace {

constexpr QSize kWindowSize(1180, 640);

// A photo-like picture: a gradient with a few shapes, different for every seed.
void writePicture(const QString &path, int seed, int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    QPainter painter(&image);
    QLinearGradient sky(0, 0, 0, height);
    sky.setColorAt(0, QColor::fromHsv((seed * 47) % 360, 120, 230));
    sky.setColorAt(1, QColor::fromHsv((seed * 47 + 40) % 360, 160, 120));
    painter.fillRect(image.rect(), sky);
    painter.setBrush(QColor::fromHsv((seed * 91) % 360, 200, 250));
    painter.setPen(Qt::NoPen);
    painter.drawEllipse(QPoint(width / 3 + seed * 13 % (width / 3), height / 3), height / 6, height / 6);
    painter.setBrush(QColor(40, 70, 40));
    painter.drawRect(0, height * 3 / 4, width, height / 4);
    painter.end();
    image.save(path, "JPG", 85);
}

// A silent sound of the given length: 8 kHz, 8 bits, one channel.
void writeSound(const QString &path, double seconds, char fill)
{
    const quint32 samples = quint32(seconds * 8000);
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) return;
    QDataStream out(&file);
    out.setByteOrder(QDataStream::LittleEndian);
    out.writeRawData("RIFF", 4);
    out << quint32(36 + samples);
    out.writeRawData("WAVEfmt ", 8);
    out << quint32(16) << quint16(1) << quint16(1) << quint32(8000) << quint32(8000) << quint16(1) << quint16(8);
    out.writeRawData("data", 4);
    out << samples;
    file.write(QByteArray(samples, fill));
}

void tag(const QString &path, const char *tags)
{
    ::setxattr(QFile::encodeName(path).constData(), "user.xdg.tags", tags, std::strlen(tags), 0);
}

QString makeSamples(const QString &scratch)
{
    QDir root(scratch);
    for (const char *folder : {"Photos/2023 Holiday", "Photos/Backup", "Photos/Phone", "Sounds/Recordings", "Sounds/Copies"})
        root.mkpath(QLatin1String(folder));
    const struct {
        const char *name;
        int seed, width, height;
    } pictures[] = {{"Beach", 1, 640, 480}, {"Sunset", 2, 640, 480}, {"Harbour", 3, 800, 600}, {"Market", 4, 480, 360}};
    for (const auto &picture : pictures) {
        const QString original = root.filePath(QStringLiteral("Photos/2023 Holiday/%1.jpg").arg(QLatin1String(picture.name)));
        writePicture(original, picture.seed, picture.width, picture.height);
        QFile::copy(original, root.filePath(QStringLiteral("Photos/Backup/%1 copy.jpg").arg(QLatin1String(picture.name))));
        if (picture.seed % 2)
            QFile::copy(original, root.filePath(QStringLiteral("Photos/Phone/IMG_%1.jpg").arg(1000 + picture.seed)));
    }
    tag(root.filePath(QStringLiteral("Photos/2023 Holiday/Beach.jpg")), "Blue,Holiday");
    tag(root.filePath(QStringLiteral("Photos/Backup/Sunset copy.jpg")), "Red");
    writeSound(root.filePath(QStringLiteral("Sounds/Recordings/Interview.wav")), 4, 1);
    writeSound(root.filePath(QStringLiteral("Sounds/Copies/Interview (edited).wav")), 4, 2);
    writeSound(root.filePath(QStringLiteral("Sounds/Recordings/Birds.wav")), 6.5, 3);
    writeSound(root.filePath(QStringLiteral("Sounds/Copies/Birds.wav")), 6.5, 3);
    writeSound(root.filePath(QStringLiteral("Sounds/Recordings/Rain.wav")), 9, 4);
    return scratch;
}

} // namespace

void drawResultWindows(Settings &settings, const QString &corpus, const QString &scratch, const QDir &output)
{
    const QString samples = makeSamples(scratch);
    const QString photos = samples + QStringLiteral("/Photos");
    const QString sounds = samples + QStringLiteral("/Sounds");

    Dupes *content = searchedWindow(settings, DetectionMode::Content, {photos, corpus}, {}, kWindowSize);
    content->changeListSize(32);
    selectRow(content, 0);
    save(content, output, QStringLiteral("results-content.png"));

    Dupes *duration = searchedWindow(settings, DetectionMode::Duration, {sounds}, {}, kWindowSize);
    duration->changeListSize(16);
    selectRow(duration, 0);
    save(duration, output, QStringLiteral("results-duration.png"));

    Dupes *filename = searchedWindow(settings, DetectionMode::FileName, {corpus}, {}, kWindowSize);
    selectRow(filename, 2);
    save(filename, output, QStringLiteral("results-filename.png"));

    Dupes *attribute = searchedWindow(settings, DetectionMode::Attribute, {photos}, QStringLiteral("kMDItemPixelHeight"), kWindowSize);
    attribute->changeListSize(32);
    // Room for the attribute's own column and the tags.
    const QStringList narrower{QStringLiteral("folder"), QStringLiteral("extension"), QStringLiteral("modified"),
                               QStringLiteral("created"), QStringLiteral("lastUsed"), QStringLiteral("addedDate"),
                               QStringLiteral("attributes"), QStringLiteral("duration"), QStringLiteral("codecs"),
                               QStringLiteral("bitrate"), QStringLiteral("path")};
    for (const QString &column : narrower)
        attribute->changeListColumn(column, false);
    selectRow(attribute, 1);
    attribute->togglePreview();
    save(attribute, output, QStringLiteral("results-attribute.png"));
    settings.remove(QStringLiteral("hidden columns"));

    drawSimilarResultWindows(settings, scratch, output);
    drawContainedFolders(settings, scratch, output);

    Dupes *filtered = searchedWindow(settings, DetectionMode::Content, {photos, corpus}, {}, kWindowSize);
    auto *criterion = filtered->filterBar()->findChild<QComboBox *>(QStringLiteral("filterStringCriterion"));
    criterion->setCurrentIndex(criterion->findData(QStringLiteral("URL.path.lastPathComponent")));
    auto *op = filtered->filterBar()->findChild<QComboBox *>(QStringLiteral("filterStringOperator"));
    op->setCurrentIndex(op->findData(0));
    filtered->filterBar()->textField()->setText(QStringLiteral("jpg"));
    filtered->applyFilter();
    selectRow(filtered, 0);
    save(filtered, output, QStringLiteral("results-filter.png"));

    // Saved results opened again after one of the photos was removed: it shows as missing.
    Dupes *saved = searchedWindow(settings, DetectionMode::Content, {photos, corpus}, {}, kWindowSize);
    const QString file = scratch + QStringLiteral("/Photos.selfsame");
    saved->saveResults(file);
    const QString removed = saved->resultModel().mainItems().first()->path;
    delete saved;
    QFile::remove(removed);
    ResultsFile::Loaded loaded = ResultsFile::load(file);
    auto *reopened = new Dupes(settings);
    reopened->resize(1180, 640);
    reopened->show();
    reopened->showSavedResults(std::move(*loaded.model), file);
    reopened->changeListSize(32);
    selectRow(reopened, 1);
    save(reopened, output, QStringLiteral("results-reopened.png"));

    // Copies made for the pictures of a move to the trash: the samples above stay as they are.
    const QString copies = scratch + QStringLiteral("/Glance");
    QDir(photos).mkpath(copies);
    for (const QString &name : QDir(photos + QStringLiteral("/2023 Holiday")).entryList(QDir::Files)) {
        QFile::copy(photos + QStringLiteral("/2023 Holiday/") + name, copies + QLatin1Char('/') + name);
        QFile::copy(photos + QStringLiteral("/2023 Holiday/") + name, copies + QStringLiteral("/Copy of ") + name);
    }
    drawGlancePictures(settings, {copies, corpus}, scratch, output);
}

} // namespace selfsame
