#include "ResultOutput.h"

#include "search/Digest.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <map>
#include <set>

namespace selfsame::cli {

namespace {

QString isoDate(qint64 seconds)
{
    return QDateTime::fromSecsSinceEpoch(seconds, Qt::UTC).toString(Qt::ISODate);
}

QByteArray csvField(const QString &text)
{
    QByteArray field = text.toUtf8();
    if (field.contains(',') || field.contains('"') || field.contains('\n') || field.contains('\r'))
        field = '"' + field.replace("\"", "\"\"") + '"';
    return field;
}

QJsonObject itemObject(const ResultItem &item)
{
    QJsonObject object{{"path", item.path},
                       {"size", item.size},
                       {"physicalSize", item.physicalSize},
                       {"modified", isoDate(item.modified)}};
    if (item.created != kNoDate)
        object.insert("created", isoDate(item.created));
    if (item.lastUsed != kNoDate)
        object.insert("lastUsed", isoDate(item.lastUsed));
    if (item.has(IsFolder)) {
        object.insert("isFolder", true);
        object.insert("itemCount", item.itemCount);
    }
    if (item.has(ReadOnly))
        object.insert("readOnly", true);
    if (item.has(OtherOwner))
        object.insert("otherOwner", true);
    if (!item.tagList.isEmpty())
        object.insert("tags", QJsonArray::fromStringList(item.tagList));
    if (item.has(HasDigest))
        object.insert("digest", QString::fromLatin1(digestToHex(item.digest)));
    return object;
}

QJsonObject summaryObject(const QList<ResultItem> &items, const SearchStatistics &statistics)
{
    const ResultSummary summary = summarize(items);
    return {{"filesEnumerated", statistics.enumerated},
            {"itemsKept", statistics.kept},
            {"filesHashed", statistics.filesHashed},
            {"filesToldApartBySample", statistics.filesSampled},
            {"bytesRead", statistics.bytesRead},
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
        std::set<Digest> allocations;
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

QByteArray formatResults(const QList<ResultItem> &items, OutputFormat format, const SearchStatistics &statistics)
{
    const QList<QList<const ResultItem *>> groups = groupsOf(items);
    QByteArray out;
    switch (format) {
    case OutputFormat::Text:
        for (qsizetype g = 0; g < groups.size(); ++g) {
            if (g > 0)
                out += '\n';
            for (const ResultItem *item : groups[g])
                out += item->path.toUtf8() + '\n';
        }
        break;
    case OutputFormat::Csv:
        out += "group,dupes,size,physicalSize,modified,isFolder,path\n";
        for (const QList<const ResultItem *> &group : groups)
            for (const ResultItem *item : group)
                out += QByteArray::number(item->group) + ',' + QByteArray::number(item->dupes) + ',' +
                       QByteArray::number(item->size) + ',' + QByteArray::number(item->physicalSize) + ',' +
                       isoDate(item->modified).toLatin1() + ',' + (item->has(IsFolder) ? "1" : "0") + ',' +
                       csvField(item->path) + '\n';
        break;
    case OutputFormat::Json: {
        QJsonArray groupArray;
        for (const QList<const ResultItem *> &group : groups) {
            QJsonArray members;
            for (const ResultItem *item : group)
                members.append(itemObject(*item));
            groupArray.append(QJsonObject{{"group", group.first()->group},
                                          {"dupes", group.first()->dupes},
                                          {"size", group.first()->size},
                                          {"items", members}});
        }
        QJsonObject root{{"groups", groupArray}, {"summary", summaryObject(items, statistics)}};
        out = QJsonDocument(root).toJson(QJsonDocument::Indented);
        break;
    }
    }
    return out;
}

QByteArray summaryText(const QList<ResultItem> &items, const SearchStatistics &statistics)
{
    const QJsonObject summary = summaryObject(items, statistics);
    static const std::pair<const char *, const char *> kLines[] = {
        {"filesEnumerated", "files enumerated"},     {"filesHashed", "files hashed"},
        {"filesToldApartBySample", "files told apart by their first and last bytes"},
        {"bytesRead", "bytes read"},                  {"unreadableFolders", "unreadable folders"},
        {"unreadableFiles", "unreadable files"},      {"groups", "groups"},
        {"duplicates", "duplicates"},                 {"reclaimableBytes", "reclaimable bytes"}};
    QByteArray out;
    for (const auto &[key, label] : kLines)
        out += QByteArray(label) + ": " + QByteArray::number(summary.value(QLatin1String(key)).toInteger()) + '\n';
    return out;
}

} // namespace selfsame::cli
