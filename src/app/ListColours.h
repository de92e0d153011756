#pragma once

#include <QColor>
#include <QPalette>
#include <QString>

namespace selfsame {

// The named colours of the result lists: group backgrounds, status cells and tag chips.
// Group bands: every other group is tinted, the rest show the list's base; both keep the text of
// the palette readable, light or dark.
QColor groupColour(bool alternate, const QPalette &palette);
bool isDarkPalette(const QPalette &palette);
QColor cloneStatusColour(int status); // invalid for statuses drawn without a background
QColor tagColour(const QString &tagName); // invalid for a tag that names no colour

} // namespace selfsame
