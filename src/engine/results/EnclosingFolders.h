#pragma once

#include <QStringList>

namespace selfsame
{

// The folders that enclose `path`, innermost first, for the menus that offer them: the walk
// ends with the root of the volume that holds the path (or at "/").
QStringList enclosingFolders(const QString &path);

} // namespace selfsame
