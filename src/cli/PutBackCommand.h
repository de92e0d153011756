#pragma once

#include <QByteArray>
#include <QStringList>
#include <functional>

namespace selfsame::cli
{

// `selfsame-cli put-back FILE…`: moves files from the trash back to the paths recorded when
// they were trashed, never over an existing file. Prints one line per file and a summary;
// returns 0 when every file went back, 1 when any failed, 2 for bad usage.
int runPutBack(const QStringList &files, const std::function<void(const QByteArray &)> &out,
               const std::function<void(const QByteArray &)> &err);

} // namespace selfsame::cli
