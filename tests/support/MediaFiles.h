#pragma once

#include <QString>
#include <QStringList>

// Real media made at test time with the command-line tools the suite installs.

// Whether the tool is on the PATH.
bool haveTool(const QString &program);
// Runs the tool; false (with its output printed) when it fails.
bool runTool(const QString &program, const QStringList &arguments);

// ffmpeg: `seconds` of a tone (a WAV, FLAC, M4A … by the output's extension) with tags given
// as "key=value" pairs.
bool makeAudio(const QString &path, double seconds, const QStringList &tags = {});
// ffmpeg: an MPEG-4 video with sound of `seconds`, `width` × `height`, with tags.
bool makeVideo(const QString &path, double seconds, int width, int height, const QStringList &tags = {});
// ffmpeg: a small JPEG; then exiv2 applies each "set KEY VALUE" command.
bool makeJpeg(const QString &path, const QStringList &exivCommands = {});

// The reason to skip a test that needs media tools, or an empty string when they are present.
QString missingMediaTools();
