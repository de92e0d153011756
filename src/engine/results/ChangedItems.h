#pragma once

#include "results/ResultItem.h"

#include <QList>

namespace selfsame {

// Marks Missing the items of saved results whose file has vanished or changed since: for a
// file, another inode, size or modification time than recorded; for a compared folder,
// another inode or no folder at all. A file the results say was replaced only has to exist,
// and one moved to the trash or deleted is not looked for. Returns how many were marked.
qsizetype markChangedItems(QList<ResultItem> &items);

} // namespace selfsame
