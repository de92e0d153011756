#pragma once

#include <QDir>

namespace selfsame {
class Settings;

// Draws results windows after a search of `corpus` (and of sample pictures and sounds made
// in `scratch`) in each detection mode, and one with the filter bar in use.
void drawResultWindows(Settings &settings, const QString &corpus, const QString &scratch, const QDir &output);

} // namespace selfsame
