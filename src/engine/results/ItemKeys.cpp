#include "results/ItemKeys.h"

#include "results/NameCompare.h"
#include "search/Digest.h"

#include <QDateTime>

#include <array>
#include <cmath>

namespace selfsame {

namespace {

template <typename T> int order(const T &a, const T &b) { return a < b ? -1 : (b < a ? 1 : 0); }

QVariant date(qint64 seconds)
{
    return seconds == kNoDate ? QVariant() : QVariant(QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC));
}
QVariant optionalNumber(double value) { return std::isnan(value) ? QVariant() : QVariant(value); }
int compareOptional(double a, double b)
{
    if (std::isnan(a) || std::isnan(b))
        return order(!std::isnan(a), !std::isnan(b));
    return order(a, b);
}
template <std::size_t N> QVariant bytes(const std::array<std::uint8_t, N> &d, bool present)
{
    return present ? QVariant(QByteArray(reinterpret_cast<const char *>(d.data()), qsizetype(d.size())))
                   : QVariant();
}
int compareDigest(const Digest &a, bool hasA, const Digest &b, bool hasB)
{
    if (!hasA || !hasB)
        return order(hasA, hasB);
    return compareDigests(a, b);
}
int compareAllocation(const AllocationKey &a, bool hasA, const AllocationKey &b, bool hasB)
{
    if (!hasA || !hasB)
        return order(hasA, hasB);
    return order(a, b);
}
// Values without a natural order compare equal when equal, else by their text.
int compareVariants(const QVariant &a, const QVariant &b)
{
    const QPartialOrdering o = QVariant::compare(a, b);
    if (o == QPartialOrdering::Less)
        return -1;
    if (o == QPartialOrdering::Greater)
        return 1;
    if (o == QPartialOrdering::Equivalent)
        return 0;
    return order(a.toString(), b.toString());
}

#define NUMBER_KEY(key, field)                                                                                \
    ItemKey { key, [](const ResultItem &i) { return QVariant(i.field); },                                     \
              [](const ResultItem &a, const ResultItem &b) { return order(a.field, b.field); } }
#define INTEGER_KEY(key, field)                                                                               \
    ItemKey { key, [](const ResultItem &i) { return QVariant(i.field); },                                     \
              [](const ResultItem &a, const ResultItem &b) { return order(a.field, b.field); }, nullptr, nullptr, \
              [](const ResultItem &i) { return qint64(i.field); } }
#define DATE_KEY(key, field)                                                                                  \
    ItemKey { key, [](const ResultItem &i) { return date(i.field); },                                         \
              [](const ResultItem &a, const ResultItem &b) { return order(a.field, b.field); }, nullptr, nullptr, \
              [](const ResultItem &i) { return qint64(i.field); } }
#define STRING_KEY(key, field)                                                                                \
    ItemKey { key, [](const ResultItem &i) { return QVariant(i.field); },                                     \
              [](const ResultItem &a, const ResultItem &b) { return order(a.field, b.field); } }
// Texts derived from the path, ordered plainly or naturally.
#define PATH_KEY(key, text, plain)                                                                            \
    ItemKey { key, [](const ResultItem &i) { return QVariant(text(i).toString()); },                            \
              [](const ResultItem &a, const ResultItem &b) { return plain(text(a), text(b)); },                \
              [](const ResultItem &a, const ResultItem &b) { return naturalCompare(text(a), text(b)); }, text }

QStringView wholePath(const ResultItem &i) { return i.path; }
QStringView name(const ResultItem &i) { return i.nameView(); }
QStringView baseName(const ResultItem &i) { return deletingPathExtension(i.nameView()); }
QStringView folderOf(const ResultItem &i)
{
    const qsizetype slash = i.path.lastIndexOf(QLatin1Char('/'));
    return slash > 0 ? QStringView(i.path).left(slash) : QStringView(u"/");
}
int plainOrder(QStringView a, QStringView b)
{
    const int c = a.compare(b);
    return c < 0 ? -1 : (c > 0 ? 1 : 0);
}

#define FLAG_KEY(key, flag)                                                                                   \
    ItemKey { key, [](const ResultItem &i) { return i.has(flag) ? QVariant(true) : QVariant(); },             \
              [](const ResultItem &a, const ResultItem &b) { return order(a.has(flag), b.has(flag)); } }

const std::array kKeys = {
    STRING_KEY("URL", path),
    PATH_KEY("URL.path", wholePath, plainOrder),
    PATH_KEY("URL.path.lastPathComponent", name, plainOrder),
    ItemKey{"URL.path.lastPathComponent.lowercaseString", [](const ResultItem &i) { return QVariant(i.name().toLower()); },
            [](const ResultItem &a, const ResultItem &b) { return compareLowercase(name(a), name(b)); },
            [](const ResultItem &a, const ResultItem &b) { return naturalCompare(name(a), name(b)); }, name},
    ItemKey{"URL.path.lastPathComponent.stringByDeletingPathExtension.lowercaseString",
            [](const ResultItem &i) { return QVariant(baseName(i).toString().toLower()); },
            [](const ResultItem &a, const ResultItem &b) { return compareLowercase(baseName(a), baseName(b)); },
            [](const ResultItem &a, const ResultItem &b) { return naturalCompare(baseName(a), baseName(b)); },
            baseName},
    PATH_KEY("URL.path.stringByDeletingLastPathComponent", folderOf, plainOrder),
    ItemKey{"extension", [](const ResultItem &i) { return QVariant(pathExtension(i.nameView()).toString().toLower()); },
            [](const ResultItem &a, const ResultItem &b) {
                return compareLowercase(pathExtension(a.nameView()), pathExtension(b.nameView()));
            }},
    INTEGER_KEY("size", size),
    INTEGER_KEY("physicalSize", physicalSize),
    DATE_KEY("modified", modified),
    DATE_KEY("lastUsed", lastUsed),
    DATE_KEY("addedDate", addedDate()),
    DATE_KEY("attributes", attributes),
    DATE_KEY("created", created),
    ItemKey{"tagList", [](const ResultItem &i) { return i.tagList().isEmpty() ? QVariant() : QVariant(i.tagList()); },
            [](const ResultItem &a, const ResultItem &b) { return order(a.tagList().join(u','), b.tagList().join(u',')); }},
    ItemKey{"tags", [](const ResultItem &i) { return QVariant(i.tagList().join(u' ')); },
            [](const ResultItem &a, const ResultItem &b) { return order(a.tagList().join(u' '), b.tagList().join(u' ')); }},
    NUMBER_KEY("duration", duration()),
    ItemKey{"latitude", [](const ResultItem &i) { return optionalNumber(i.latitude()); },
            [](const ResultItem &a, const ResultItem &b) { return compareOptional(a.latitude(), b.latitude()); }},
    ItemKey{"longitude", [](const ResultItem &i) { return optionalNumber(i.longitude()); },
            [](const ResultItem &a, const ResultItem &b) { return compareOptional(a.longitude(), b.longitude()); }},
    ItemKey{"spotlight", [](const ResultItem &i) { return i.spotlight(); },
            [](const ResultItem &a, const ResultItem &b) { return compareVariants(a.spotlight(), b.spotlight()); }},
    STRING_KEY("pixelSize", pixelSize()),
    STRING_KEY("codecs", codecs()),
    NUMBER_KEY("bitrate", bitrate()),
    ItemKey{"similarity", [](const ResultItem &i) { return optionalNumber(i.similarity()); },
            [](const ResultItem &a, const ResultItem &b) { return compareOptional(a.similarity(), b.similarity()); }},
    FLAG_KEY("read-only", ReadOnly),
    FLAG_KEY("other owner", OtherOwner),
    FLAG_KEY("isSymlink", IsSymlink),
    FLAG_KEY("isFolder", IsFolder),
    FLAG_KEY("isPackage", IsPackage),
    ItemKey{"digest", [](const ResultItem &i) { return bytes(i.digest, i.has(HasDigest)); },
            [](const ResultItem &a, const ResultItem &b) {
                return compareDigest(a.digest, a.has(HasDigest), b.digest, b.has(HasDigest));
            }},
    ItemKey{"allocDigest", [](const ResultItem &i) { return bytes(i.allocDigest, i.has(HasAllocDigest)); },
            [](const ResultItem &a, const ResultItem &b) {
                return compareAllocation(a.allocDigest, a.has(HasAllocDigest), b.allocDigest, b.has(HasAllocDigest));
            }},
    ItemKey{"itemCount", [](const ResultItem &i) { return QVariant(i.itemCount()); },
            [](const ResultItem &a, const ResultItem &b) { return order(a.itemCount(), b.itemCount()); }},
    INTEGER_KEY("group", group),
    INTEGER_KEY("dupes", dupes),
    ItemKey{"parentPath", [](const ResultItem &i) { return QVariant(i.parentPath()); },
            [](const ResultItem &a, const ResultItem &b) { return order(a.parentPath(), b.parentPath()); },
            [](const ResultItem &a, const ResultItem &b) { return naturalCompare(a.parentPath(), b.parentPath()); }},
    INTEGER_KEY("clone", clone),
    FLAG_KEY("alternateColor", AlternateColor),
    ItemKey{"trashedURL",
            [](const ResultItem &i) { return i.trashedURL().isEmpty() ? QVariant() : QVariant(i.trashedURL()); },
            [](const ResultItem &a, const ResultItem &b) { return order(a.trashedURL(), b.trashedURL()); }},
    FLAG_KEY("deleted", Deleted),
    ItemKey{"icon",
            [](const ResultItem &i) { return i.statusImage().isEmpty() ? QVariant() : QVariant(i.statusImage()); },
            [](const ResultItem &a, const ResultItem &b) { return order(a.statusImage(), b.statusImage()); }},
    FLAG_KEY("missing", Missing),
};

#undef NUMBER_KEY
#undef INTEGER_KEY
#undef DATE_KEY
#undef STRING_KEY
#undef FLAG_KEY
#undef PATH_KEY

} // namespace

const ItemKey *findItemKey(QStringView name)
{
    for (const ItemKey &key : kKeys)
        if (name == QLatin1StringView(key.name))
            return &key;
    return nullptr;
}

QVariant itemValue(const ResultItem &item, QStringView key)
{
    const ItemKey *k = findItemKey(key);
    return k ? k->value(item) : QVariant();
}

int compareItems(const ResultItem &a, const ResultItem &b, QStringView key)
{
    const ItemKey *k = findItemKey(key);
    return k ? k->compare(a, b) : 0;
}

} // namespace selfsame
