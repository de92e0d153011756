#pragma once

#include "SearchDefaults.h"

#include <QString>

// The settings of a results window's lists, shared by the files that make up the window.
namespace selfsame::dupeskey {

inline const QString hiddenColumns = QStringLiteral("hidden columns");
inline const QString resultListSize = QStringLiteral("result list size");
inline const QString listFontSize = QStringLiteral("list font size");
inline const QString mainListLayout = key::mainListColumns;
inline const QString cloneListLayout = key::cloneListColumns;

} // namespace selfsame::dupeskey
