#pragma once

#include <QDir>
#include <QString>

namespace selfsame {
class Settings;

// A results window after a search for folders contained in others: an old backup of photos
// whose files all lie, renamed and regrouped, in a newer library.
void drawContainedFolders(Settings &settings, const QString &scratch, const QDir &output);

} // namespace selfsame
