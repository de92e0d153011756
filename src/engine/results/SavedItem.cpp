#include "results/SavedItem.h"

#include "format/IsoDate.h"
#include "results/JsonRead.h"
#include "results/JsonWriter.h"
#include "search/Digest.h"

#include <QCoreApplication>
#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <unordered_map>

namespace selfsame {

namespace {

constexpr std::pair<std::string_view, ItemFlag> kFlags[] = {
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

QVariant readSpotlight(json::Element value)
{
    if (const std::optional<json::Element> date = json::member(value, "date")) {
        const QDateTime parsed = QDateTime::fromString(json::string(*date).value_or(QString()), Qt::ISODateWithMs);
        return parsed.isValid() ? QVariant(parsed) : QVariant();
    }
    if (const std::optional<bool> flag = json::flag(value)) return *flag;
    if (const std::optional<QString> text = json::string(value)) return *text;
    if (const std::optional<double> number = json::number(value)) return *number;
    return {};
}

bool isAsciiHexDigit(char c)
{
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

int hexValue(char c)
{
    return c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10;
}

template <std::size_t N> bool readHex(json::Element value, std::array<std::uint8_t, N> &into)
{
    std::string_view hex;
    if (value.get_string().get(hex) || hex.size() != 2 * N || !std::all_of(hex.begin(), hex.end(), isAsciiHexDigit))
        return false;
    for (std::size_t i = 0; i < N; ++i)
        into[i] = std::uint8_t(hexValue(hex[2 * i]) << 4 | hexValue(hex[2 * i + 1]));
    return true;
}

enum class Key {
    Path, Size, PhysicalSize, Modified, LastUsed, Attributes, Created, AddedDate, Device, Inode,
    TagList, Duration, Latitude, Longitude, Spotlight, PixelSize, Codecs, Bitrate, ItemCount,
    Digest, AllocDigest, TrashedURL, StatusImage, Flag,
};

std::optional<Key> keyNamed(std::string_view name)
{
    static const std::unordered_map<std::string_view, Key> table = [] {
        std::unordered_map<std::string_view, Key> t{
            {"path", Key::Path},           {"size", Key::Size},         {"physicalSize", Key::PhysicalSize},
            {"modified", Key::Modified},   {"lastUsed", Key::LastUsed}, {"attributes", Key::Attributes},
            {"created", Key::Created},     {"addedDate", Key::AddedDate}, {"device", Key::Device},
            {"inode", Key::Inode},         {"tagList", Key::TagList},   {"duration", Key::Duration},
            {"latitude", Key::Latitude},   {"longitude", Key::Longitude}, {"spotlight", Key::Spotlight},
            {"pixelSize", Key::PixelSize}, {"codecs", Key::Codecs},     {"bitrate", Key::Bitrate},
            {"itemCount", Key::ItemCount}, {"digest", Key::Digest},     {"allocDigest", Key::AllocDigest},
            {"trashedURL", Key::TrashedURL}, {"statusImage", Key::StatusImage}};
        for (const auto &[name, flag] : kFlags)
            t.emplace(name, Key::Flag);
        return t;
    }();
    const auto found = table.find(name);
    return found == table.end() ? std::nullopt : std::optional<Key>(found->second);
}

bool readDate(json::Element value, qint64 &into)
{
    std::string_view text;
    if (value.get_string().get(text)) return false;
    const std::optional<qint64> date = parseIsoDate(text);
    if (date) into = *date;
    return date.has_value();
}

// Stores a value read as `T` when it has that kind.
template <typename T, typename Store> bool store(const std::optional<T> &value, Store storing)
{
    if (value) storing(*value);
    return value.has_value();
}

} // namespace

void writeItem(JsonWriter &json, const ResultItem &item)
{
    json.field("path", item.path);
    json.field("size", item.size);
    json.field("physicalSize", item.physicalSize);
    json.field("modified", isoDateText(item.modified).view());
    if (item.lastUsed != kNoDate) json.field("lastUsed", isoDateText(item.lastUsed).view());
    json.field("attributes", isoDateText(item.attributes).view());
    if (item.created != kNoDate) json.field("created", isoDateText(item.created).view());
    if (item.addedDate() != kNoDate) json.field("addedDate", isoDateText(item.addedDate()).view());
    json.field("device", item.device);
    json.field("inode", item.inode);
    for (const auto &[name, flag] : kFlags)
        if (item.has(flag)) json.field(name.data(), true);
    if (item.itemCount() != 0) json.field("itemCount", item.itemCount());
    if (!item.tagList().isEmpty()) {
        json.key("tagList");
        json.begin('[');
        for (const QString &tag : item.tagList())
            json.value(tag);
        json.end(']');
    }
    if (item.has(HasDigest)) json.field("digest", HexText(item.digest).view());
    if (item.has(HasAllocDigest)) json.field("allocDigest", HexText(item.allocDigest).view());
    if (item.duration() != 0.0) json.field("duration", item.duration());
    if (!std::isnan(item.latitude())) json.field("latitude", item.latitude());
    if (!std::isnan(item.longitude())) json.field("longitude", item.longitude());
    writeSpotlight(json, item.spotlight());
    if (!item.pixelSize().isEmpty()) json.field("pixelSize", item.pixelSize());
    if (!item.codecs().isEmpty()) json.field("codecs", item.codecs());
    if (item.bitrate() != 0.0) json.field("bitrate", item.bitrate());
    if (!item.trashedURL().isEmpty()) json.field("trashedURL", item.trashedURL());
    if (!item.statusImage().isEmpty()) json.field("statusImage", item.statusImage());
}

bool readItem(const simdjson::dom::object &object, ResultItem &item, QString *error)
{
    bool hasPath = false;
    for (const auto [name, value] : object) {
        const std::optional<Key> key = keyNamed(name);
        if (!key) continue;
        bool ok = true;
        switch (*key) {
        case Key::Path:
            ok = hasPath = store(json::string(value), [&](const QString &p) { item.path = p; }) &&
                           item.path.startsWith(u'/');
            break;
        case Key::Size: ok = store(json::integer(value), [&](qint64 n) { item.size = n; }); break;
        case Key::PhysicalSize: ok = store(json::integer(value), [&](qint64 n) { item.physicalSize = n; }); break;
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
        case Key::Device: ok = store(json::integer(value), [&](qint64 n) { item.device = quint64(n); }); break;
        case Key::Inode: ok = store(json::integer(value), [&](qint64 n) { item.inode = quint64(n); }); break;
        case Key::TagList: {
            simdjson::dom::array array;
            ok = !value.get_array().get(array);
            QStringList tags;
            for (json::Element tag : array)
                ok = ok && store(json::string(tag), [&](const QString &t) { tags.append(t); });
            item.setTagList(tags);
            break;
        }
        case Key::Duration: ok = store(json::number(value), [&](double d) { item.setDuration(d); }); break;
        case Key::Latitude: ok = store(json::number(value), [&](double d) { item.setLatitude(d); }); break;
        case Key::Longitude: ok = store(json::number(value), [&](double d) { item.setLongitude(d); }); break;
        case Key::Spotlight:
            item.setSpotlight(readSpotlight(value));
            ok = item.spotlight().isValid();
            break;
        case Key::PixelSize: ok = store(json::string(value), [&](const QString &t) { item.setPixelSize(t); }); break;
        case Key::Codecs: ok = store(json::string(value), [&](const QString &t) { item.setCodecs(t); }); break;
        case Key::Bitrate: ok = store(json::number(value), [&](double d) { item.setBitrate(d); }); break;
        case Key::ItemCount: ok = store(json::integer(value), [&](qint64 n) { item.setItemCount(n); }); break;
        case Key::Digest: ok = readHex(value, item.digest); item.set(HasDigest, ok); break;
        case Key::AllocDigest: ok = readHex(value, item.allocDigest); item.set(HasAllocDigest, ok); break;
        case Key::TrashedURL: ok = store(json::string(value), [&](const QString &t) { item.setTrashedURL(t); }); break;
        case Key::StatusImage: ok = store(json::string(value), [&](const QString &t) { item.setStatusImage(t); }); break;
        case Key::Flag:
            for (const auto &[flagName, flag] : kFlags)
                if (name == flagName) ok = store(json::flag(value), [&](bool on) { item.set(flag, on); });
            break;
        }
        if (!ok) {
            *error = QCoreApplication::translate("ResultsFile", "the value of “%1” is not valid").arg(json::text(name));
            return false;
        }
    }
    if (!hasPath) *error = QCoreApplication::translate("ResultsFile", "an item has no path");
    return hasPath;
}

} // namespace selfsame
