#include "ResultOutput.h"

#include "search/Digest.h"

#include <QDateTime>
#include <QJsonObject>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace selfsame::cli {

namespace {

// ISO 8601 in UTC, written directly: a result may hold many thousands of dates.
QByteArray isoDate(qint64 seconds)
{
    const time_t t = time_t(seconds);
    struct tm utc;
    char text[32];
    if (!gmtime_r(&t, &utc))
        return "1970-01-01T00:00:00Z";
    const std::size_t n = strftime(text, sizeof(text), "%Y-%m-%dT%H:%M:%SZ", &utc);
    return QByteArray(text, qsizetype(n));
}

QByteArray csvField(const QString &text)
{
    QByteArray field = text.toUtf8();
    if (field.contains(',') || field.contains('"') || field.contains('\n') || field.contains('\r'))
        field = '"' + field.replace("\"", "\"\"") + '"';
    return field;
}

// JSON is written as it goes rather than built as a document: a result may hold many
// thousands of items.
class JsonWriter {
public:
    explicit JsonWriter(QByteArray &out) : m_out(out) {}
    void begin(char bracket) { separate(); m_out += bracket; m_first = true; }
    void end(char bracket) { m_out += bracket; m_first = false; }
    void key(const char *name) { separate(); string(QByteArray(name)); m_out += ':'; m_first = true; }
    void value(qint64 number) { separate(); m_out += QByteArray::number(number); }
    void value(bool flag) { separate(); m_out += flag ? "true" : "false"; }
    void value(double number) { separate(); m_out += QByteArray::number(number, 'g', QLocale::FloatingPointShortest); }
    void value(const QString &text) { separate(); string(text.toUtf8()); }
    void value(const QByteArray &utf8) { separate(); string(utf8); }
    void null() { separate(); m_out += "null"; }
    template <typename T> void field(const char *name, const T &v) { key(name); value(v); }

private:
    void separate()
    {
        if (!m_first)
            m_out += ',';
        m_first = false;
    }
    void string(const QByteArray &utf8)
    {
        m_out += '"';
        qsizetype plain = 0; // start of the run of characters that need no escape
        for (qsizetype i = 0; i < utf8.size(); ++i) {
            const auto c = static_cast<unsigned char>(utf8[i]);
            if (c != '"' && c != '\\' && c >= 0x20)
                continue;
            m_out.append(utf8.constData() + plain, i - plain);
            if (c < 0x20)
                m_out += "\\u00" + QByteArray::number(c, 16).rightJustified(2, '0');
            else
                m_out += QByteArray("\\") + char(c);
            plain = i + 1;
        }
        m_out.append(utf8.constData() + plain, utf8.size() - plain);
        m_out += '"';
    }
    QByteArray &m_out;
    bool m_first = true;
};

// The values read in the duration and attribute modes, where the item has them.
void writeMetadata(JsonWriter &json, const ResultItem &item)
{
    if (item.duration() > 0)
        json.field("duration", item.duration());
    if (!std::isnan(item.latitude()))
        json.field("latitude", item.latitude());
    if (!std::isnan(item.longitude()))
        json.field("longitude", item.longitude());
    switch (item.spotlight().typeId()) {
    case QMetaType::QDateTime:
        json.field("spotlight", isoDate(item.spotlight().toDateTime().toSecsSinceEpoch()));
        break;
    case QMetaType::Bool:
        json.field("spotlight", item.spotlight().toBool());
        break;
    case QMetaType::Double:
        json.field("spotlight", item.spotlight().toDouble());
        break;
    case QMetaType::QString:
        json.field("spotlight", item.spotlight().toString());
        break;
    }
    if (!item.pixelSize().isEmpty())
        json.field("pixelSize", item.pixelSize());
    if (!item.codecs().isEmpty())
        json.field("codecs", item.codecs());
    if (item.bitrate() > 0)
        json.field("bitrate", item.bitrate());
}

// "selected", "kept" or nothing: what the selection rule decided for the item.
const char *autoSelectMark(const AutoSelection &selection, const ResultItem &item)
{
    if (selection.isSelected(&item))
        return "selected";
    return selection.isSkipped(&item) ? "kept" : nullptr;
}

void writeItem(JsonWriter &json, const ResultItem &item, const AutoSelection *selection)
{
    json.begin('{');
    json.field("path", item.path);
    json.field("size", item.size);
    json.field("physicalSize", item.physicalSize);
    json.field("modified", isoDate(item.modified));
    if (item.created != kNoDate)
        json.field("created", isoDate(item.created));
    if (item.lastUsed != kNoDate)
        json.field("lastUsed", isoDate(item.lastUsed));
    if (item.has(IsFolder)) {
        json.field("isFolder", true);
        json.field("itemCount", item.itemCount());
    }
    if (item.has(ReadOnly))
        json.field("readOnly", true);
    if (item.has(OtherOwner))
        json.field("otherOwner", true);
    if (!item.tagList().isEmpty()) {
        json.key("tags");
        json.begin('[');
        for (const QString &tag : item.tagList())
            json.value(tag);
        json.end(']');
    }
    if (item.has(HasDigest))
        json.field("digest", digestToHex(item.digest));
    writeMetadata(json, item);
    if (selection) {
        json.key("autoSelect");
        if (const char *mark = autoSelectMark(*selection, item))
            json.value(QByteArray(mark));
        else
            json.null();
    }
    json.end('}');
}

QJsonObject summaryObject(const QList<ResultItem> &items, const SearchStatistics &statistics)
{
    const ResultSummary summary = summarize(items);
    return {{"filesEnumerated", statistics.enumerated},
            {"itemsKept", statistics.kept},
            {"filesHashed", statistics.filesHashed},
            {"filesToldApartBySample", statistics.filesSampled},
            {"bytesRead", statistics.bytesRead},
            {"filesFromCache", statistics.filesFromCache},
            {"unreadableFolders", statistics.unreadableFolders},
            {"unreadableFiles", statistics.unreadableFiles},
            {"groups", summary.groups},
            {"duplicates", summary.duplicates},
            {"reclaimableBytes", summary.reclaimableBytes}};
}

} // namespace

QList<QList<const ResultItem *>> groupsOf(const QList<ResultItem> &items)
{
    std::map<int, QList<const ResultItem *>> byGroup;
    for (const ResultItem &item : items)
        byGroup[item.group].append(&item);
    QList<QList<const ResultItem *>> groups;
    for (auto &[number, members] : byGroup) {
        std::sort(members.begin(), members.end(),
                  [](const ResultItem *a, const ResultItem *b) { return a->path < b->path; });
        groups.append(members);
    }
    return groups;
}

ResultSummary summarize(const QList<ResultItem> &items)
{
    ResultSummary summary;
    for (const QList<const ResultItem *> &group : groupsOf(items)) {
        ++summary.groups;
        summary.duplicates += group.size() - 1;
        // Hard links and clones already share their storage: only distinct storage is freed.
        std::set<std::pair<quint64, quint64>> inodes;
        std::set<AllocationKey> allocations;
        qint64 storages = 0;
        for (const ResultItem *item : group) {
            const bool newInode = inodes.insert({item->device, item->inode}).second;
            const bool newAllocation = !item->has(HasAllocDigest) || allocations.insert(item->allocDigest).second;
            if (newInode && newAllocation)
                ++storages;
        }
        summary.reclaimableBytes += (storages - 1) * group.first()->size;
    }
    return summary;
}

QByteArray formatResults(const QList<ResultItem> &items, OutputFormat format, const SearchStatistics &statistics,
                         const AutoSelection *selection)
{
    QByteArray all;
    writeResults(items, format, statistics, [&](const QByteArray &bytes) { all += bytes; }, selection);
    return all;
}

void writeResults(const QList<ResultItem> &items, OutputFormat format, const SearchStatistics &statistics,
                  const std::function<void(const QByteArray &)> &sink, const AutoSelection *selection)
{
    const QList<QList<const ResultItem *>> groups = groupsOf(items);
    QByteArray out;
    // Written out a piece at a time rather than held whole in memory.
    auto flushLarge = [&] {
        if (out.size() >= (1 << 20)) {
            sink(out);
            out.clear();
        }
    };
    switch (format) {
    case OutputFormat::Text:
        for (qsizetype g = 0; g < groups.size(); ++g) {
            if (g > 0)
                out += '\n';
            for (const ResultItem *item : groups[g]) {
                if (selection) {
                    const char *mark = autoSelectMark(*selection, *item);
                    out += mark == nullptr ? "  " : selection->isSelected(item) ? "select " : "keep ";
                }
                out += item->path.toUtf8() + '\n';
            }
            flushLarge();
        }
        break;
    case OutputFormat::Csv:
        out += selection ? "group,dupes,size,physicalSize,modified,isFolder,autoSelect,path\n"
                         : "group,dupes,size,physicalSize,modified,isFolder,path\n";
        for (const QList<const ResultItem *> &group : groups)
            for (const ResultItem *item : group) {
                out += QByteArray::number(item->group) + ',' + QByteArray::number(item->dupes) + ',' +
                       QByteArray::number(item->size) + ',' + QByteArray::number(item->physicalSize) + ',' +
                       isoDate(item->modified) + ',' + (item->has(IsFolder) ? "1" : "0") + ',';
                if (selection)
                    out += QByteArray(autoSelectMark(*selection, *item)) + ',';
                out += csvField(item->path) + '\n';
                flushLarge();
            }
        break;
    case OutputFormat::Json: {
        JsonWriter json(out);
        json.begin('{');
        json.key("groups");
        json.begin('[');
        for (const QList<const ResultItem *> &group : groups) {
            json.begin('{');
            json.field("group", qint64(group.first()->group));
            json.field("dupes", qint64(group.first()->dupes));
            json.field("size", group.first()->size);
            json.key("items");
            json.begin('[');
            for (const ResultItem *item : group)
                writeItem(json, *item, selection);
            json.end(']');
            json.end('}');
            out += '\n';
            flushLarge();
        }
        json.end(']');
        json.key("summary");
        json.begin('{');
        const QJsonObject summary = summaryObject(items, statistics);
        for (auto it = summary.begin(); it != summary.end(); ++it)
            json.field(it.key().toLatin1().constData(), qint64(it.value().toInteger()));
        json.end('}');
        json.end('}');
        out += '\n';
        break;
    }
    }
    sink(out);
}

QByteArray summaryText(const QList<ResultItem> &items, const SearchStatistics &statistics)
{
    const QJsonObject summary = summaryObject(items, statistics);
    static const std::pair<const char *, const char *> kLines[] = {
        {"filesEnumerated", "files enumerated"},     {"filesHashed", "files hashed"},
        {"filesToldApartBySample", "files told apart by their first and last bytes"},
        {"bytesRead", "bytes read"},
        {"filesFromCache", "files known from the digest cache"},
        {"unreadableFolders", "unreadable folders"},
        {"unreadableFiles", "unreadable files"},      {"groups", "groups"},
        {"duplicates", "duplicates"},                 {"reclaimableBytes", "reclaimable bytes"}};
    QByteArray out;
    for (const auto &[key, label] : kLines)
        out += QByteArray(label) + ": " + QByteArray::number(summary.value(QLatin1String(key)).toInteger()) + '\n';
    return out;
}

} // namespace selfsame::cli
