#pragma once

#include "search/SearchRequest.h"

#include <QString>
#include <QStringList>

namespace selfsame {

// The title of a results window: what was searched (or the saved results file it shows) and
// how, then the application, for example "Photos — by duration — Selfsame".
// `attributeName` is the display name of the compared attribute in the attribute mode.
QString resultsWindowTitle(const QStringList &locations, DetectionMode mode, const QString &attributeName,
                           const QString &resultsFile = {});

} // namespace selfsame
