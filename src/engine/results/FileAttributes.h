#pragma once

#include <QStringList>

namespace selfsame {

// The user's tags of a file: the comma-separated extended attribute "user.xdg.tags" that
// desktop file managers write. Empty when there are none or the attribute cannot be read.
QStringList readUserTags(const char *path);
QStringList readUserTags(int fd);

} // namespace selfsame
