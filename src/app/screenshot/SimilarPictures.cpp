#include "SimilarPictures.h"

#include "Dupes.h"
#include "ResultListView.h"
#include "ResultTableModel.h"
#include "SearchedWindow.h"
#include "Settings.h"

#include <QProcess>
#include <cstdio>

namespace selfsame {

namespace {

// Taller than the other results windows: the bottom list shows a whole group.
constexpr QSize kWindowSize(1180, 760);

bool run(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    if (process.waitForFinished(120'000) && process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return true;
    std::fprintf(stderr, "%s %s failed\n", qPrintable(program), qPrintable(arguments.join(u' ')));
    return false;
}

// A photo-like original (fractal noise, softened) and the copies a collection gathers: a
// smaller one, a worse JPEG, a PNG, a slight crop and a grey one.
void makePictures(const QDir &folder, const QString &name, int seed, bool grey)
{
    const QString original = folder.filePath(name + QStringLiteral(".jpg"));
    run(QStringLiteral("convert"), {QStringLiteral("-seed"), QString::number(seed), QStringLiteral("-size"),
                                    QStringLiteral("1600x1200"), QStringLiteral("plasma:"), QStringLiteral("-blur"),
                                    QStringLiteral("0x3"), QStringLiteral("-quality"), QStringLiteral("92"), original});
    auto variant = [&](const QString &suffix, const QStringList &operations) {
        run(QStringLiteral("convert"), QStringList{original} + operations + QStringList{folder.filePath(name + suffix)});
    };
    variant(QStringLiteral(" (small).jpg"), {QStringLiteral("-resize"), QStringLiteral("800x600")});
    variant(QStringLiteral(" (email).jpg"),
            {QStringLiteral("-resize"), QStringLiteral("1024x768"), QStringLiteral("-quality"), QStringLiteral("35")});
    variant(QStringLiteral(".png"), {QStringLiteral("-resize"), QStringLiteral("1200x900")});
    variant(QStringLiteral(" (cropped).jpg"),
            {QStringLiteral("-gravity"), QStringLiteral("center"), QStringLiteral("-crop"), QStringLiteral("94%x94%+0+0"),
             QStringLiteral("+repage")});
    if (grey) variant(QStringLiteral(" (grey).jpg"), {QStringLiteral("-colorspace"), QStringLiteral("Gray")});
}

// A melody of 24 seconds: a tone with an overtone that moves through the scale in steps of
// `step` semitones, a note every quarter second.
QString melody(int step, int offset)
{
    // Commas inside a filter's arguments are escaped: bare ones would separate filters.
    const QString frequency = QStringLiteral("220*pow(2\\,mod(floor(t*4)*%1+%2\\,12)/12)").arg(step).arg(offset);
    return QStringLiteral("aevalsrc=0.4*sin(2*PI*%1*t)+0.2*sin(4*PI*%1*t):s=44100:d=24").arg(frequency);
}

void encode(const QDir &folder, const QString &source, const QString &name, const QStringList &codec)
{
    run(QStringLiteral("ffmpeg"), QStringList{QStringLiteral("-v"), QStringLiteral("error"), QStringLiteral("-y"),
                                              QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"), source,
                                              QStringLiteral("-ac"), QStringLiteral("2")} +
                                      codec + QStringList{folder.filePath(name)});
}

void makeRecordings(const QDir &folder)
{
    const QString theme = melody(7, 0);
    encode(folder, theme, QStringLiteral("Theme.flac"), {});
    encode(folder, theme, QStringLiteral("Theme.mp3"), {QStringLiteral("-b:a"), QStringLiteral("320k")});
    encode(folder, theme, QStringLiteral("Theme (phone).m4a"),
           {QStringLiteral("-af"), QStringLiteral("highpass=f=300,lowpass=f=3400"), QStringLiteral("-b:a"),
            QStringLiteral("48k")});
    encode(folder, theme, QStringLiteral("Theme.opus"), {QStringLiteral("-b:a"), QStringLiteral("64k")});
    const QString waltz = melody(5, 3);
    encode(folder, waltz, QStringLiteral("Waltz.ogg"), {QStringLiteral("-q:a"), QStringLiteral("6")});
    encode(folder, waltz, QStringLiteral("Waltz.mp3"), {QStringLiteral("-b:a"), QStringLiteral("128k")});
    encode(folder, waltz, QStringLiteral("Waltz.wav"), {});
    encode(folder, waltz, QStringLiteral("Waltz (hall).mp3"),
           {QStringLiteral("-af"), QStringLiteral("aecho=0.8:0.6:60:0.4"), QStringLiteral("-b:a"), QStringLiteral("160k")});
    encode(folder, melody(3, 8), QStringLiteral("Etude.mp3"), {QStringLiteral("-b:a"), QStringLiteral("192k")});
}

// Selects a copy in the top list and lists its group by likeness to it, itself first.
void selectCopy(Dupes *dupes, int row)
{
    selectRow(dupes, row);
    ResultTableModel *bottom = dupes->cloneList()->resultModel();
    bottom->sort(bottom->columnOf(QStringLiteral("similarity")), Qt::DescendingOrder);
}

} // namespace

void drawSimilarResultWindows(Settings &settings, const QString &scratch, const QDir &output)
{
    QDir pictures(scratch + QStringLiteral("/Similar/Pictures"));
    QDir recordings(scratch + QStringLiteral("/Similar/Recordings"));
    pictures.mkpath(QStringLiteral("."));
    recordings.mkpath(QStringLiteral("."));
    makePictures(pictures, QStringLiteral("Lake"), 3, true);
    makePictures(pictures, QStringLiteral("Forest"), 8, false);
    run(QStringLiteral("convert"), {QStringLiteral("-seed"), QStringLiteral("11"), QStringLiteral("-size"),
                                    QStringLiteral("1200x900"), QStringLiteral("plasma:"), pictures.filePath(QStringLiteral("Dunes.jpg"))});
    makeRecordings(recordings);

    // Room for the pixel sizes, codecs and bit rates.
    const QStringList narrower{QStringLiteral("folder"), QStringLiteral("created"), QStringLiteral("lastUsed"),
                               QStringLiteral("addedDate"), QStringLiteral("attributes"), QStringLiteral("path")};
    Dupes *images = searchedWindow(settings, DetectionMode::SimilarImages, {pictures.path()}, {}, kWindowSize);
    for (const QString &column : narrower)
        images->changeListColumn(column, false);
    images->changeListSize(32);
    selectCopy(images, 2); // a copy: the bottom list measures the others against it
    save(images, output, QStringLiteral("results-similar-images.png"));

    Dupes *audio = searchedWindow(settings, DetectionMode::SimilarAudio, {recordings.path()}, {}, kWindowSize);
    selectCopy(audio, 2);
    save(audio, output, QStringLiteral("results-similar-audio.png"));
    settings.remove(QStringLiteral("hidden columns"));
}

} // namespace selfsame
