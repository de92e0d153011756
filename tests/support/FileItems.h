#pragma once

#include "results/ResultItem.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>
#include <optional>
#include <ostream>
#include <sys/stat.h>
#include <vector>

// Result items for files made by a test, filled from lstat as a search would, with their
// allocation digest where the file system reports extents; all of one group.
struct ItemGroup {
    std::vector<std::unique_ptr<selfsame::ResultItem>> items;
    selfsame::ResultItem *add(const QString &path, int group = 0);
    QList<selfsame::ResultItem *> all() const;
    // The items of the same group, the item itself included.
    QList<selfsame::ResultItem *> duplicatesFor(const selfsame::ResultItem &item) const;
};

void writeFile(const QString &path, const QByteArray &bytes);
QByteArray readFile(const QString &path);

struct stat statOf(const QString &path); // zeroed when lstat fails
QString readLinkText(const QString &path);
// The allocation digest of a file: equal for files that share their extents.
std::optional<selfsame::Digest> allocDigestOf(const QString &path);

int inodeFlagsOf(const QString &path); // FS_IOC_GETFLAGS, -1 when unreadable
// Sets or clears FS_IMMUTABLE_FL; false where the file system or the user may not.
bool setImmutable(const QString &path, bool on);

// Readable QStrings in failure messages.
inline void PrintTo(const QString &text, std::ostream *os)
{
    *os << '"' << text.toStdString() << '"';
}
