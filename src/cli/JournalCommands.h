#pragma once

#include <QByteArray>
#include <QStringList>
#include <functional>

namespace selfsame::cli
{

// `selfsame-cli journal`: the actions the operations journal remembers, newest first, with
// what each did and whether it can be undone.
int runJournalListing(const std::function<void(const QByteArray &)> &out,
                      const std::function<void(const QByteArray &)> &err);

// `selfsame-cli undo [ACTION]`: undoes the newest action that can be undone, or the one
// named by its number in the listing. Returns 0 when every file was given back, 1 when some
// were refused (each with its reason), 2 on a usage error.
int runUndo(const QStringList &arguments, const std::function<void(const QByteArray &)> &out,
            const std::function<void(const QByteArray &)> &err);

} // namespace selfsame::cli
