#pragma once

#include <QColor>
#include <QString>

namespace selfsame {

// The named colours of the result lists: group backgrounds, status cells and tag chips.
QColor groupColour(bool alternate);
QColor cloneStatusColour(int status); // invalid for statuses drawn without a background
QColor tagColour(const QString &tagName); // invalid for a tag that names no colour

} // namespace selfsame
