#include "support/MediaFiles.h"

#include <QProcess>
#include <QStandardPaths>
#include <cstdio>

bool haveTool(const QString &program)
{
    return !QStandardPaths::findExecutable(program).isEmpty();
}

bool runTool(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.start(program, arguments);
    if (process.waitForFinished(60'000) && process.exitStatus() == QProcess::NormalExit &&
        process.exitCode() == 0)
        return true;
    std::fprintf(stderr, "%s %s failed:\n%s\n", qPrintable(program), qPrintable(arguments.join(u' ')),
                 process.readAll().constData());
    return false;
}

namespace
{

QStringList metadataArguments(const QStringList &tags)
{
    QStringList arguments;
    for (const QString &tag : tags)
        arguments << QStringLiteral("-metadata") << tag;
    return arguments;
}

} // namespace

bool makeAudio(const QString &path, double seconds, const QStringList &tags)
{
    return runTool(
        QStringLiteral("ffmpeg"),
        QStringList{"-v", "error", "-y", "-f", "lavfi", "-i",
                    QStringLiteral("sine=frequency=440:sample_rate=44100:duration=%1").arg(seconds)} +
            metadataArguments(tags) + QStringList{path});
}

bool makeVideo(const QString &path, double seconds, int width, int height, const QStringList &tags)
{
    return runTool(
        QStringLiteral("ffmpeg"),
        QStringList{
            "-v", "error", "-y", "-f", "lavfi", "-i",
            QStringLiteral("testsrc=duration=%1:size=%2x%3:rate=10").arg(seconds).arg(width).arg(height),
            "-f", "lavfi", "-i", QStringLiteral("sine=duration=%1").arg(seconds), "-c:v", "mpeg4", "-c:a",
            "aac", "-shortest"} +
            metadataArguments(tags) + QStringList{path});
}

bool makeJpeg(const QString &path, const QStringList &exivCommands)
{
    if (!runTool(QStringLiteral("ffmpeg"),
                 {"-v", "error", "-y", "-f", "lavfi", "-i", "color=blue:size=64x48", "-frames:v", "1", path}))
        return false;
    if (exivCommands.isEmpty()) return true;
    QStringList arguments;
    for (const QString &command : exivCommands)
        arguments << QStringLiteral("-M") << command;
    return runTool(QStringLiteral("exiv2"), arguments << path);
}

QString missingMediaTools()
{
    QStringList missing;
    for (const char *tool : {"ffmpeg", "exiv2"})
        if (!haveTool(QLatin1String(tool))) missing << QLatin1String(tool);
    return missing.isEmpty() ? QString()
                             : QStringLiteral("%1 not installed (scripts/install-deps installs it)")
                                   .arg(missing.join(u' '));
}
