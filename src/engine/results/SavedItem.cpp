#include "results/SavedItem.h"

#include "format/IsoDate.h"
#include "names/FileNames.h"
#include "results/JsonRead.h"
#include "results/JsonWriter.h"
#include "search/Digest.h"

#include <QCoreApplication>
#include <QDateTime>

#include <algorithm>
#include <cmath>
#include <limits>
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
    Path, Size, PhysicalSize, Modified, ModifiedNsec, LastUsed, Attributes, AttributesNsec, Created,
    AddedDate, Device, Inode, TagList, Duration, Latitude, Longitude, Spotlight, PixelSize, Codecs, Bitrate,
    ItemCount, Digest, AllocDigest, TrashedURL, StatusImage, Flag, PathBytes, TrashedURLBytes, Similarity,
    MediaPrint,
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
            {"trashedURL", Key::TrashedURL}, {"statusImage", Key::StatusImage},
            {"pathBytes", Key::PathBytes}, {"trashedURLBytes", Key::TrashedURLBytes},
            {"modifiedNanoseconds", Key::ModifiedNsec}, {"attributesNanoseconds", Key::AttributesNsec},
            {"similarity", Key::Similarity}, {"mediaPrint", Key::MediaPrint}};
        for (const auto &[name, flag] : kFlags)
            t.emplace(name, Key::Flag);
        return t;
    }();
    const auto found = table.find(name);
    return found == table.end() ? std::nullopt : std::optional<Key>(found->second);
}

constexpr json::Why kNotDigest =
    QT_TRANSLATE_NOOP("ResultsFile", "the value of “%1” is not 128 hexadecimal digits");
constexpr json::Why kNotAllocDigest =
    QT_TRANSLATE_NOOP("ResultsFile", "the value of “%1” is not 32 hexadecimal digits");
constexpr json::Why kNotStatus = QT_TRANSLATE_NOOP("ResultsFile", "the value of “%1” is not a known status");

// What file operations leave on an item; anything else would show no icon and confuse the
// check for a link or clone standing at the path.
constexpr std::string_view kStatusImages[] = {"trashed", "deleted", "aliased", "hard linked", "cloned"};

json::Why readDate(json::Element value, qint64 &into)
{
    std::string_view text;
    if (value.get_string().get(text)) return json::kNotValid;
    const std::optional<qint64> date = parseIsoDate(text);
    if (!date) return json::kNotValid;
    into = *date;
    return nullptr;
}

json::Why readNanoseconds(json::Element value, qint32 &into)
{
    qint64 n = 0;
    const json::Why why = json::wholeNumber(value, 0, 999'999'999, n);
    if (!why) into = qint32(n);
    return why;
}

template <typename Store> json::Why readText(json::Element value, Store storing)
{
    const std::optional<QString> text = json::string(value);
    if (!text) return json::kNotValid;
    storing(*text);
    return nullptr;
}

// Sizes and counts: from 0 to what a qint64 holds.
template <typename Store> json::Why readCount(json::Element value, Store storing)
{
    qint64 n = 0;
    const json::Why why = json::wholeNumber(value, 0, std::numeric_limits<qint64>::max(), n);
    if (!why) storing(n);
    return why;
}

template <typename Store> json::Why readReal(json::Element value, double min, double max, Store storing)
{
    double d = 0;
    const json::Why why = json::realNumber(value, min, max, d);
    if (!why) storing(d);
    return why;
}

json::Why readTags(json::Element value, ResultItem &item)
{
    simdjson::dom::array array;
    if (value.get_array().get(array)) return json::kNotValid;
    QStringList tags;
    for (json::Element tag : array) {
        const std::optional<QString> text = json::string(tag);
        if (!text) return json::kNotValid;
        tags.append(*text);
    }
    item.setTagList(tags);
    return nullptr;
}

json::Why readStatusImage(json::Element value, ResultItem &item)
{
    std::string_view name;
    if (value.get_string().get(name)) return json::kNotValid;
    if (std::find(std::begin(kStatusImages), std::end(kStatusImages), name) == std::end(kStatusImages))
        return kNotStatus;
    item.setStatusImage(json::text(name));
    return nullptr;
}

constexpr json::Why kNotBase64 = QT_TRANSLATE_NOOP("ResultsFile", "the value of “%1” is not base64");

// A print of the similar modes, in base64.
json::Why readMediaPrint(json::Element value, ResultItem &item)
{
    std::string_view text;
    if (value.get_string().get(text)) return json::kNotValid;
    const auto decoded = QByteArray::fromBase64Encoding(QByteArray(text.data(), qsizetype(text.size())),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded) return kNotBase64;
    item.setMediaPrint(decoded.decoded);
    return nullptr;
}

// The exact bytes of a path that is not UTF-8, in base64; they take the place of its text.
json::Why readPathBytes(json::Element value, std::optional<QString> &into)
{
    std::string_view text;
    if (value.get_string().get(text)) return json::kNotValid;
    const auto decoded = QByteArray::fromBase64Encoding(QByteArray(text.data(), qsizetype(text.size())),
                                                        QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded) return kNotBase64;
    const QByteArray &bytes = decoded.decoded;
    if (const json::Why why = json::pathFault(std::string_view(bytes.constData(), std::size_t(bytes.size()))))
        return why;
    into = pathFromBytes(bytes);
    return nullptr;
}

// Stores the value of one known key, or says why it cannot be.
json::Why readValue(Key key, std::string_view name, json::Element value, ResultItem &item)
{
    constexpr double kUnbounded = std::numeric_limits<double>::max();
    switch (key) {
    case Key::Path: return json::path(value, item.path);
    case Key::Size: return readCount(value, [&](qint64 n) { item.size = n; });
    case Key::PhysicalSize: return readCount(value, [&](qint64 n) { item.physicalSize = n; });
    case Key::ItemCount: return readCount(value, [&](qint64 n) { item.setItemCount(n); });
    case Key::Modified: return readDate(value, item.modified);
    case Key::ModifiedNsec: return readNanoseconds(value, item.modifiedNsec);
    case Key::LastUsed: return readDate(value, item.lastUsed);
    case Key::Attributes: return readDate(value, item.attributes);
    case Key::AttributesNsec: return readNanoseconds(value, item.changedNsec);
    case Key::Created: return readDate(value, item.created);
    case Key::AddedDate: {
        qint64 date = kNoDate;
        const json::Why why = readDate(value, date);
        item.setAddedDate(date);
        return why;
    }
    case Key::Device: return json::unsignedNumber(value, item.device);
    case Key::Inode: return json::unsignedNumber(value, item.inode);
    case Key::TagList: return readTags(value, item);
    case Key::Duration: return readReal(value, 0, kUnbounded, [&](double d) { item.setDuration(d); });
    case Key::Latitude: return readReal(value, -90, 90, [&](double d) { item.setLatitude(d); });
    case Key::Longitude: return readReal(value, -180, 180, [&](double d) { item.setLongitude(d); });
    case Key::Bitrate: return readReal(value, 0, kUnbounded, [&](double d) { item.setBitrate(d); });
    case Key::Similarity: return readReal(value, 0, 100, [&](double d) { item.setSimilarity(d); });
    case Key::MediaPrint: return readMediaPrint(value, item);
    case Key::Spotlight:
        item.setSpotlight(readSpotlight(value));
        return item.spotlight().isValid() ? nullptr : json::kNotValid;
    case Key::PixelSize: return readText(value, [&](const QString &t) { item.setPixelSize(t); });
    case Key::Codecs: return readText(value, [&](const QString &t) { item.setCodecs(t); });
    case Key::Digest: {
        const bool ok = readHex(value, item.digest);
        item.set(HasDigest, ok);
        return ok ? nullptr : kNotDigest;
    }
    case Key::AllocDigest: {
        const bool ok = readHex(value, item.allocDigest);
        item.set(HasAllocDigest, ok);
        return ok ? nullptr : kNotAllocDigest;
    }
    case Key::TrashedURL: {
        QString trashed;
        const json::Why why = json::path(value, trashed);
        item.setTrashedURL(trashed);
        return why;
    }
    case Key::StatusImage: return readStatusImage(value, item);
    case Key::PathBytes:
    case Key::TrashedURLBytes: return nullptr; // read by readItem, which lets them win
    case Key::Flag:
        for (const auto &[flagName, flag] : kFlags)
            if (name == flagName) {
                const std::optional<bool> on = json::flag(value);
                if (!on) return json::kNotValid;
                item.set(flag, *on);
            }
        return nullptr;
    }
    return nullptr;
}

} // namespace

void writeItem(JsonWriter &json, const ResultItem &item)
{
    // A path that is not UTF-8 is shown as text with \xFF escapes; its bytes follow.
    json.field("path", displayPath(item.path));
    if (hasInvalidBytes(item.path)) json.field("pathBytes", pathBytes(item.path).toBase64());
    json.field("size", item.size);
    json.field("physicalSize", item.physicalSize);
    json.field("modified", isoDateText(item.modified).view());
    if (item.modifiedNsec >= 0) json.field("modifiedNanoseconds", item.modifiedNsec);
    if (item.lastUsed != kNoDate) json.field("lastUsed", isoDateText(item.lastUsed).view());
    json.field("attributes", isoDateText(item.attributes).view());
    if (item.changedNsec >= 0) json.field("attributesNanoseconds", item.changedNsec);
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
    if (!std::isnan(item.similarity())) json.field("similarity", item.similarity());
    if (!item.mediaPrint().isEmpty()) json.field("mediaPrint", item.mediaPrint().toBase64());
    if (!item.trashedURL().isEmpty()) json.field("trashedURL", displayPath(item.trashedURL()));
    if (hasInvalidBytes(item.trashedURL())) json.field("trashedURLBytes", pathBytes(item.trashedURL()).toBase64());
    if (!item.statusImage().isEmpty()) json.field("statusImage", item.statusImage());
}

bool readItem(const simdjson::dom::object &object, ResultItem &item, QString *error)
{
    bool hasPath = false;
    std::optional<QString> exactPath, exactTrashedPath;
    for (const auto [name, value] : object) {
        const std::optional<Key> key = keyNamed(name);
        if (!key) continue;
        json::Why why = nullptr;
        if (*key == Key::PathBytes) why = readPathBytes(value, exactPath);
        else if (*key == Key::TrashedURLBytes) why = readPathBytes(value, exactTrashedPath);
        else why = readValue(*key, name, value, item);
        if (why) {
            *error = json::refusal(why, name);
            return false;
        }
        hasPath = hasPath || *key == Key::Path || *key == Key::PathBytes;
    }
    if (exactPath) item.path = *exactPath;
    if (exactTrashedPath) item.setTrashedURL(*exactTrashedPath);
    if (!hasPath) *error = QCoreApplication::translate("ResultsFile", "an item has no path");
    return hasPath;
}

} // namespace selfsame
