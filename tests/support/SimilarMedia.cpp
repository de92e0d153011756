#include "support/SimilarMedia.h"

#include "support/MediaFiles.h"

#include <QDir>
#include <QFileInfo>

namespace
{

QString in(const QString &folder, int number, const QString &name)
{
    return QDir(folder).filePath(QStringLiteral("%1-%2").arg(number).arg(name));
}

} // namespace

QStringList makePictureSet(const QString &folder, int originals)
{
    QStringList made;
    const bool heic = runTool(QStringLiteral("convert"),
                              {"-size", "16x16", "xc:gray", QDir(folder).filePath("probe.heic")});
    QFile::remove(QDir(folder).filePath("probe.heic"));
    for (int n = 1; n <= originals; ++n) {
        const QString original = in(folder, n, "original.jpg");
        // Plasma fractals differ from seed to seed as photographs do: in their large shapes.
        if (!runTool("convert", {"-seed", QString::number(n), "-size", "640x480", "plasma:", "-blur", "0x2",
                                 "-quality", "92", original}))
            return {};
        const QList<QStringList> variants = {
            {"-resize", "50%", in(folder, n, "half.jpg")},
            {"-quality", "40", in(folder, n, "recompressed.jpg")},
            {in(folder, n, "converted.png")},
            {in(folder, n, "converted.webp")},
            {"-gravity", "center", "-crop", "97%x97%+0+0", "+repage", in(folder, n, "cropped.jpg")},
            {"-colorspace", "Gray", in(folder, n, "grey.jpg")},
            {"-rotate", "-90", in(folder, n, "rotated.jpg")},
        };
        for (const QStringList &variant : variants)
            if (!runTool("convert", QStringList{original} + variant)) return {};
        // Turned back to upright by its orientation: "rotate 90° clockwise to show".
        if (!runTool("exiv2", {"-M", "set Exif.Image.Orientation Short 6", in(folder, n, "rotated.jpg")}))
            return {};
        if (heic && !runTool("convert", {original, in(folder, n, "converted.heic")})) return {};
        made << original;
        for (const QStringList &variant : variants)
            made << variant.last();
        if (heic) made << in(folder, n, "converted.heic");
    }
    return made;
}

QStringList makeMelodySet(const QString &folder, int melodies, double seconds)
{
    QStringList made;
    for (int n = 1; n <= melodies; ++n) {
        // Notes of four harmonics that die away, over quiet noise: each note one of three octaves
        // of semitones, drawn by a hash of the note's number and the melody's, so that no two
        // melodies are related (not even one the other's mirror image).
        const int tempo = 3 + n % 4;
        const QString pitch =
            QStringLiteral("110*pow(2\\,floor(36*mod(abs(sin(floor(t*%1)*12.9898+%2)*43758.5453)\\,1))/12)")
                .arg(tempo)
                .arg(n * 78.233);
        const QString envelope = QStringLiteral("exp(-5*(t*%1-floor(t*%1)))").arg(tempo);
        const QString tone =
            QStringLiteral("0.3*%1*(sin(2*PI*t*%2)+0.5*sin(4*PI*t*%2)+0.3*sin(6*PI*t*%2)+0.2*sin(8*PI*t*%2))")
                .arg(envelope, pitch);
        const QString wav = in(folder, n, "melody.wav");
        if (!runTool("ffmpeg",
                     {"-v", "error", "-y", "-f", "lavfi", "-i",
                      QStringLiteral("aevalsrc=%1:s=44100:d=%2").arg(tone).arg(seconds), "-f", "lavfi", "-i",
                      QStringLiteral("anoisesrc=seed=%1:a=0.05:d=%2").arg(n).arg(seconds), "-filter_complex",
                      "amix=inputs=2", "-ac", "2", wav}))
            return {};
        made << wav;
        const QList<QStringList> encodings = {
            {in(folder, n, "melody.flac")},
            {"-b:a", "48k", in(folder, n, "melody.mp3")},
            {"-c:a", "libvorbis", "-q:a", "3", in(folder, n, "melody.ogg")},
            {"-c:a", "libopus", "-b:a", "64k", in(folder, n, "melody.opus")},
            {"-c:a", "aac", "-b:a", "128k", in(folder, n, "melody.m4a")},
        };
        for (const QStringList &encoding : encodings) {
            if (!runTool("ffmpeg", QStringList{"-v", "error", "-y", "-i", wav} + encoding)) return {};
            made << encoding.last();
        }
    }
    return made;
}

QString missingSimilarMediaTools()
{
    QStringList missing;
    for (const char *tool : {"ffmpeg", "exiv2", "convert"})
        if (!haveTool(QLatin1String(tool))) missing << QLatin1String(tool);
    return missing.isEmpty() ? QString()
                             : QStringLiteral("%1 not installed (scripts/install-deps installs it)")
                                   .arg(missing.join(u' '));
}

int originalOf(const QString &path)
{
    const QString name = QFileInfo(path).fileName();
    return name.left(name.indexOf(u'-')).toInt();
}
