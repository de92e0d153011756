#include "results/SavedItem.h"

#include "format/IsoDate.h"
#include "results/JsonWriter.h"
#include "search/Digest.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QHash>
#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace selfsame {

namespace {

constexpr std::pair<const char *, ItemFlag> kFlags[] = {
    {"read-only", ReadOnly}, {"other owner", OtherOwner}, {"isSymlink", IsSymlink},
    {"isFolder", IsFolder},  {"isPackage", IsPackage},    {"deleted", Deleted}};

// The attribute mode's value keeps its kind: a date is {"date": …} so that it does not read
// back as text.
void writeSpotlight(JsonWriter &json, const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::QDateTime:
        json.key("spotlight");
        json.begin('{');
        json.field("date", value.toDateTime().toUTC().toString(Qt::ISODateWithMs));
        json.end('}');
        break;
    case QMetaType::Bool:
        json.field("spotlight", value.toBool());
        break;
    case QMetaType::QString:
        json.field("spotlight", value.toString());
        break;
    default:
        if (value.canConvert<double>() && value.isValid()) json.field("spotlight", value.toDouble());
    }
}

QVariant readSpotlight(const QJsonValue &value)
{
    if (value.isObject()) {
        const QDateTime date =
            QDateTime::fromString(value.toObject().value(QLatin1String("date")).toString(), Qt::ISODateWithMs);
        return date.isValid() ? QVariant(date) : QVariant();
    }
    if (value.isBool()) return value.toBool();
    if (value.isString()) return value.toString();
    if (value.isDouble()) return value.toDouble();
    return {};
}

bool isAsciiHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

template <std::size_t N> bool readHex(const QJsonValue &value, std::array<std::uint8_t, N> &into)
{
    const QByteArray hex = value.toString().toLatin1();
    if (hex.size() != qsizetype(2 * N) || !std::all_of(hex.begin(), hex.end(), isAsciiHexDigit)) return false;
    const QByteArray bytes = QByteArray::fromHex(hex);
    std::copy(bytes.begin(), bytes.end(), into.begin());
    return true;
}

enum class Key {
    Path, Size, PhysicalSize, Modified, LastUsed, Attributes, Created, AddedDate, Device, Inode,
    TagList, Duration, Latitude, Longitude, Spotlight, PixelSize, Codecs, Bitrate, ItemCount,
    Digest, AllocDigest, TrashedURL, Replaced, Flag,
};

const QHash<QString, Key> &keys()
{
    static const QHash<QString, Key> table = [] {
        QHash<QString, Key> t{
            {QStringLiteral("path"), Key::Path},           {QStringLiteral("size"), Key::Size},
            {QStringLiteral("physicalSize"), Key::PhysicalSize}, {QStringLiteral("modified"), Key::Modified},
            {QStringLiteral("lastUsed"), Key::LastUsed},   {QStringLiteral("attributes"), Key::Attributes},
            {QStringLiteral("created"), Key::Created},     {QStringLiteral("addedDate"), Key::AddedDate},
            {QStringLiteral("device"), Key::Device},       {QStringLiteral("inode"), Key::Inode},
            {QStringLiteral("tagList"), Key::TagList},     {QStringLiteral("duration"), Key::Duration},
            {QStringLiteral("latitude"), Key::Latitude},   {QStringLiteral("longitude"), Key::Longitude},
            {QStringLiteral("spotlight"), Key::Spotlight}, {QStringLiteral("pixelSize"), Key::PixelSize},
            {QStringLiteral("codecs"), Key::Codecs},       {QStringLiteral("bitrate"), Key::Bitrate},
            {QStringLiteral("itemCount"), Key::ItemCount}, {QStringLiteral("digest"), Key::Digest},
            {QStringLiteral("allocDigest"), Key::AllocDigest}, {QStringLiteral("trashedURL"), Key::TrashedURL},
            {QStringLiteral("replaced"), Key::Replaced}};
        for (const auto &[name, flag] : kFlags)
            t.insert(QLatin1String(name), Key::Flag);
        return t;
    }();
    return table;
}

bool readDate(const QJsonValue &value, qint64 &into)
{
    const std::optional<qint64> date = parseIsoDate(value.toString());
    if (date) into = *date;
    return date.has_value();
}

} // namespace

void writeItem(JsonWriter &json, const ResultItem &item)
{
    json.field("path", item.path);
    json.field("size", item.size);
    json.field("physicalSize", item.physicalSize);
    json.field("modified", isoDate(item.modified));
    if (item.lastUsed != kNoDate) json.field("lastUsed", isoDate(item.lastUsed));
    json.field("attributes", isoDate(item.attributes));
    if (item.created != kNoDate) json.field("created", isoDate(item.created));
    if (item.addedDate() != kNoDate) json.field("addedDate", isoDate(item.addedDate()));
    json.field("device", item.device);
    json.field("inode", item.inode);
    for (const auto &[name, flag] : kFlags)
        if (item.has(flag)) json.field(name, true);
    if (item.itemCount() != 0) json.field("itemCount", item.itemCount());
    if (!item.tagList().isEmpty()) {
        json.key("tagList");
        json.begin('[');
        for (const QString &tag : item.tagList())
            json.value(tag);
        json.end(']');
    }
    if (item.has(HasDigest)) json.field("digest", digestToHex(item.digest));
    if (item.has(HasAllocDigest))
        json.field("allocDigest", QByteArray(reinterpret_cast<const char *>(item.allocDigest.data()),
                                             qsizetype(item.allocDigest.size()))
                                      .toHex());
    if (item.duration() != 0.0) json.field("duration", item.duration());
    if (!std::isnan(item.latitude())) json.field("latitude", item.latitude());
    if (!std::isnan(item.longitude())) json.field("longitude", item.longitude());
    writeSpotlight(json, item.spotlight());
    if (!item.pixelSize().isEmpty()) json.field("pixelSize", item.pixelSize());
    if (!item.codecs().isEmpty()) json.field("codecs", item.codecs());
    if (item.bitrate() != 0.0) json.field("bitrate", item.bitrate());
    if (!item.trashedURL().isEmpty()) json.field("trashedURL", item.trashedURL());
    if (const QString replaced = replacedStatus(item); !replaced.isEmpty()) json.field("replaced", replaced);
}

bool readItem(const QJsonObject &object, ResultItem &item, QString *error)
{
    bool hasPath = false;
    for (auto it = object.begin(); it != object.end(); ++it) {
        const auto key = keys().constFind(it.key());
        if (key == keys().cend()) continue;
        const QJsonValue value = it.value();
        bool ok = true;
        switch (*key) {
        case Key::Path:
            item.path = value.toString();
            ok = hasPath = item.path.startsWith(u'/');
            break;
        case Key::Size: ok = value.isDouble(); item.size = value.toInteger(); break;
        case Key::PhysicalSize: ok = value.isDouble(); item.physicalSize = value.toInteger(); break;
        case Key::Modified: ok = readDate(value, item.modified); break;
        case Key::LastUsed: ok = readDate(value, item.lastUsed); break;
        case Key::Attributes: ok = readDate(value, item.attributes); break;
        case Key::Created: ok = readDate(value, item.created); break;
        case Key::AddedDate: {
            qint64 date = kNoDate;
            ok = readDate(value, date);
            item.setAddedDate(date);
            break;
        }
        case Key::Device: ok = value.isDouble(); item.device = quint64(value.toInteger()); break;
        case Key::Inode: ok = value.isDouble(); item.inode = quint64(value.toInteger()); break;
        case Key::TagList: {
            QStringList tags;
            for (const QJsonValue &tag : value.toArray())
                tags.append(tag.toString());
            ok = value.isArray();
            item.setTagList(tags);
            break;
        }
        case Key::Duration: ok = value.isDouble(); item.setDuration(value.toDouble()); break;
        case Key::Latitude: ok = value.isDouble(); item.setLatitude(value.toDouble()); break;
        case Key::Longitude: ok = value.isDouble(); item.setLongitude(value.toDouble()); break;
        case Key::Spotlight:
            item.setSpotlight(readSpotlight(value));
            ok = item.spotlight().isValid();
            break;
        case Key::PixelSize: ok = value.isString(); item.setPixelSize(value.toString()); break;
        case Key::Codecs: ok = value.isString(); item.setCodecs(value.toString()); break;
        case Key::Bitrate: ok = value.isDouble(); item.setBitrate(value.toDouble()); break;
        case Key::ItemCount: ok = value.isDouble(); item.setItemCount(value.toInteger()); break;
        case Key::Digest: ok = readHex(value, item.digest); item.set(HasDigest, ok); break;
        case Key::AllocDigest: ok = readHex(value, item.allocDigest); item.set(HasAllocDigest, ok); break;
        case Key::TrashedURL: ok = value.isString(); item.setTrashedURL(value.toString()); break;
        case Key::Replaced: ok = setReplacedStatus(item, value.toString()); break;
        case Key::Flag:
            for (const auto &[name, flag] : kFlags)
                if (it.key() == QLatin1String(name)) item.set(flag, value.toBool());
            ok = value.isBool();
            break;
        }
        if (!ok) {
            *error = QCoreApplication::translate("ResultsFile", "the value of “%1” is not valid").arg(it.key());
            return false;
        }
    }
    if (!hasPath) *error = QCoreApplication::translate("ResultsFile", "an item has no path");
    return hasPath;
}

} // namespace selfsame
