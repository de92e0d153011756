#pragma once

#include <QDir>

namespace selfsame {
class Settings;

// Draws results windows after searches for similar pictures and for the same recording, over
// pictures and melodies made in `scratch` with ImageMagick and FFmpeg: scaled, recompressed,
// cropped and converted copies, and recordings in several formats and bit rates.
void drawSimilarResultWindows(Settings &settings, const QString &scratch, const QDir &output);

} // namespace selfsame
