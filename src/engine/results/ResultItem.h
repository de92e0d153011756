#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <memory>

namespace selfsame {

// A SHA-512 value: content digests, allocation digests and folder digests.
using Digest = std::array<std::uint8_t, 64>;
// What an item keeps of its allocation digest: only equality matters there, and 128 bits
// of a SHA-512 tell storages apart as surely while a million items save 48 MB.
using AllocationKey = std::array<std::uint8_t, 16>;
inline AllocationKey allocationKey(const Digest &allocDigest)
{
    AllocationKey key;
    std::copy_n(allocDigest.begin(), key.size(), key.begin());
    return key;
}
// The key where a whole digest is stored (the digest cache): zero past its 128 bits.
inline Digest paddedDigest(const AllocationKey &key)
{
    Digest digest{};
    std::copy(key.begin(), key.end(), digest.begin());
    return digest;
}

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
    // Gone or changed since the search, as found when saved results were opened again.
    Missing = 1 << 9,
    // The two members of a group of kind "contained": a folder whose files all have copies in
    // another searched folder, and that other folder.
    ContainedFolder = 1 << 10,
    ContainingFolder = 1 << 11,
};

// The status of a bottom-list row relative to the item selected in the top list.
enum CloneStatus : qint8 {
    PlainDuplicate = 0,
    SelectedItself = 1,
    HardLink = 2,
    AlreadyClone = 3,
    OtherVolume = 4,
    FileMissing = 5,
    ProvenDuplicate = 6, // same content found outside the content mode
};

// One found file or folder. A search may hold millions, so this is a plain struct of typed
// fields; keyed access by name goes through the accessor table of ItemKeys.h. Values that only
// some items carry (tags, media and attribute values, folder counts, Bin places) live out of
// line behind one pointer, and the displayed folder is a view into the path.
struct ResultItem {
    QString path;                    // "URL": absolute path
    qint64 size = 0;                 // "size": st_size; sum of children for a compared folder
    qint64 physicalSize = 0;         // "physicalSize": allocated bytes
    qint64 modified = 0;             // "modified": st_mtime
    qint64 lastUsed = kNoDate;       // "lastUsed": st_atime
    qint64 attributes = 0;           // "attributes": st_ctime
    qint64 created = kNoDate;        // "created": birth time when the file system keeps one
    quint64 device = 0;              // st_dev and st_ino, to tell hard links apart
    quint64 inode = 0;
    // The nanoseconds of "modified" and "attributes", -1 when unknown (results saved without
    // them): with the inode they tell whether the file is still the one the search saw.
    qint32 modifiedNsec = -1;
    qint32 changedNsec = -1;
    Digest digest{};                 // "digest", valid with HasDigest
    AllocationKey allocDigest{};     // "allocDigest", valid with HasAllocDigest
    int group = -1;                  // "group"
    int dupes = 0;                   // "dupes": members of the group when it was formed
    quint16 flags = 0;
    quint16 parentPathStart = 0;     // where "parentPath" begins in the path; 0: no common prefix
    qint8 clone = PlainDuplicate;    // "clone": CloneStatus in the bottom list

    bool has(ItemFlag f) const { return (flags & f) != 0; }
    void set(ItemFlag f, bool on = true) { flags = on ? (flags | f) : (flags & ~f); }
    QString name() const { return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1); }
    QStringView nameView() const { return QStringView(path).mid(path.lastIndexOf(QLatin1Char('/')) + 1); }
    // The folder as the path lists it ("/" for an item at the root).
    QString folder() const;
    // "parentPath": the folder without the searched locations' common prefix.
    QString parentPath() const;

    const QStringList &tagList() const; // "tagList": user tags
    const QVariant &spotlight() const;  // "spotlight": the compared attribute's value
    const QString &pixelSize() const;   // "pixelSize": "W × H" or empty
    const QString &codecs() const;      // "codecs"
    double duration() const { return m_extra ? m_extra->duration : 0.0; } // "duration"
    double latitude() const { return m_extra ? m_extra->latitude : kNaN; }   // "latitude", NaN when absent
    double longitude() const { return m_extra ? m_extra->longitude : kNaN; } // "longitude", NaN when absent
    double bitrate() const { return m_extra ? m_extra->bitrate : 0.0; }      // "bitrate"
    qint64 itemCount() const { return m_extra ? m_extra->itemCount : 0; }    // "itemCount": files in a folder
    qint64 addedDate() const { return m_extra ? m_extra->addedDate : kNoDate; } // "addedDate"
    // "similarity": 0–100, how alike the item is to its group's first item in the similar
    // modes; NaN elsewhere.
    double similarity() const { return m_extra ? m_extra->similarity : kNaN; }
    // "mediaPrint": the perceptual hash or acoustic fingerprint the similar modes compared.
    const QByteArray &mediaPrint() const;
    const QString &trashedURL() const;                                     // "trashedURL": path in the Bin
    // "icon": what a file operation made of the item ("trashed", "deleted", "aliased",
    // "hard linked", "cloned"); empty while the file is as found.
    const QString &statusImage() const;

    // Setting an absent value to an item without extras allocates nothing.
    void setTagList(const QStringList &tags);
    void setSpotlight(const QVariant &value);
    void setPixelSize(const QString &text);
    void setCodecs(const QString &text);
    void setDuration(double seconds);
    void setLatitude(double degrees);
    void setLongitude(double degrees);
    void setBitrate(double bitsPerSecond);
    void setItemCount(qint64 count);
    void setAddedDate(qint64 date);
    void setSimilarity(double percent);
    void setMediaPrint(const QByteArray &print);
    void setTrashedURL(const QString &path);
    void setStatusImage(const QString &name);

private:
    static constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    struct Extra {
        QStringList tagList;
        QVariant spotlight;
        QString pixelSize;
        QString codecs;
        QString trashedURL;
        QString statusImage;
        QByteArray mediaPrint;
        double duration = 0.0;
        double latitude = kNaN;
        double longitude = kNaN;
        double bitrate = 0.0;
        qint64 itemCount = 0;
        qint64 addedDate = kNoDate;
        double similarity = kNaN;
    };
    // A pointer that copies what it points to, so that items stay plain values.
    struct ExtraPtr : std::unique_ptr<Extra> {
        ExtraPtr() = default;
        ExtraPtr(const ExtraPtr &o) : std::unique_ptr<Extra>(o ? std::make_unique<Extra>(*o) : nullptr) {}
        ExtraPtr(ExtraPtr &&) noexcept = default;
        ExtraPtr &operator=(const ExtraPtr &o) { return *this = ExtraPtr(o); }
        ExtraPtr &operator=(ExtraPtr &&) noexcept = default;
    };
    Extra &extra();
    ExtraPtr m_extra;
};

} // namespace selfsame
