#pragma once

#include <QString>
#include <QVariant>
#include <limits>

namespace selfsame
{

// The metadata values an item carries into the result in the duration and attribute modes.
struct ItemMetadata {
    double duration = 0.0;
    double latitude = std::numeric_limits<double>::quiet_NaN();
    double longitude = std::numeric_limits<double>::quiet_NaN();
    QVariant spotlight; // the compared attribute's value
    QString pixelSize;  // "W × H" or empty
    QString codecs;
    double bitrate = 0.0;
};

} // namespace selfsame
