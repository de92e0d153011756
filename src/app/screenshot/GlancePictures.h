#pragma once

#include <QDir>

namespace selfsame {
class Settings;

// Draws, in the light and the dark palette, a results window as it is met first (groups, the
// focused bottom list, the status line), the overview of where the duplicates are, and the
// window after a copy went to the trash, with the line that sums it up. Files go to a trash
// under `scratch`, never the user's.
void drawGlancePictures(Settings &settings, const QStringList &locations, const QString &scratch, const QDir &output);

} // namespace selfsame
