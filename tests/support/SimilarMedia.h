#pragma once

#include <QString>
#include <QStringList>

// The test set of the similar modes, made at test time with ImageMagick and ffmpeg. Every
// file's name starts with the number of the picture or melody it was made from and a dash,
// so that a test can tell which files belong together.

// For each of `originals` different pictures: the original JPEG and its variants — scaled to
// half, recompressed at quality 40, converted to PNG and to WebP, cropped by 3 %, made grey,
// rotated with an EXIF orientation that turns it back, and as HEIC when ImageMagick can write
// it. Returns the names written, empty when a tool failed.
QStringList makePictureSet(const QString &folder, int originals);

// For each of `melodies` different pieces of the same length: WAV, FLAC, MP3 at 48 kbit/s,
// Ogg Vorbis, Opus and M4A encodings.
QStringList makeMelodySet(const QString &folder, int melodies, double seconds);

// The reason to skip a test that needs these tools, or an empty string.
QString missingSimilarMediaTools();

// The number a file of the test set was made from: "3-small.jpg" gives 3.
int originalOf(const QString &path);
