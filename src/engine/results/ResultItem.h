#pragma once

#include <QString>
#include <QStringList>
#include <QVariant>

#include <array>
#include <cstdint>
#include <limits>

namespace selfsame {

// A SHA-512 value: content digests, allocation digests and folder digests.
using Digest = std::array<std::uint8_t, 64>;

// Dates are whole seconds since 1970; this marks an absent date.
inline constexpr qint64 kNoDate = std::numeric_limits<qint64>::min();

enum ItemFlag : quint16 {
    ReadOnly = 1 << 0,       // failed the read/write/delete access test
    OtherOwner = 1 << 1,     // owned by another user than the effective one
    IsSymlink = 1 << 2,
    IsFolder = 1 << 3,
    IsPackage = 1 << 4,
    HasDigest = 1 << 5,
    HasAllocDigest = 1 << 6,
    AlternateColor = 1 << 7, // every other group, when the top list is shown grouped
    Deleted = 1 << 8,
};

// One found file or folder. A search may hold millions, so this is a plain struct of typed
// fields; keyed access by name goes through the accessor table of ItemKeys.h.
struct ResultItem {
    QString path;                    // "URL": absolute path
    qint64 size = 0;                 // "size": st_size; sum of children for a compared folder
    qint64 physicalSize = 0;         // "physicalSize": allocated bytes
    qint64 modified = 0;             // "modified": st_mtime
    qint64 lastUsed = kNoDate;       // "lastUsed": st_atime
    qint64 addedDate = kNoDate;      // "addedDate": unknown on Linux
    qint64 attributes = 0;           // "attributes": st_ctime
    qint64 created = kNoDate;        // "created": birth time when the file system keeps one
    QStringList tagList;             // "tagList": user tags
    double duration = 0.0;           // "duration"
    double latitude = std::numeric_limits<double>::quiet_NaN();  // "latitude", NaN when absent
    double longitude = std::numeric_limits<double>::quiet_NaN(); // "longitude", NaN when absent
    QVariant spotlight;              // "spotlight": the compared attribute's value
    QString pixelSize;               // "pixelSize": "W × H" or empty
    QString codecs;                  // "codecs"
    double bitrate = 0.0;            // "bitrate"
    Digest digest{};                 // "digest", valid with HasDigest
    Digest allocDigest{};            // "allocDigest", valid with HasAllocDigest
    qint64 itemCount = 0;            // "itemCount": files inside a compared folder
    int group = -1;                  // "group"
    int dupes = 0;                   // "dupes": members of the group when it was formed
    QString parentPath;              // "parentPath": displayed folder, common prefix removed
    qint8 clone = 0;                 // "clone": CloneStatus in the bottom list
    quint16 flags = 0;
    quint64 device = 0;              // st_dev and st_ino, to tell hard links apart
    quint64 inode = 0;
    QString trashedURL;              // "trashedURL": where the item went in the trash

    bool has(ItemFlag f) const { return (flags & f) != 0; }
    void set(ItemFlag f, bool on = true) { flags = on ? (flags | f) : (flags & ~f); }
    QString name() const { return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1); }
};

} // namespace selfsame
