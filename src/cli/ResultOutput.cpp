#include "ResultOutput.h"

#include "CliPaths.h"
#include "CliText.h"
#include "format/IsoDate.h"
#include "names/FileNames.h"
#include "results/JsonWriter.h"
#include "results/ResultsFile.h"

#include <QJsonObject>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

namespace selfsame::cli {

namespace {

QByteArray csvField(const QString &text)
{
    QByteArray field = displayPath(text).toUtf8();
    if (field.contains(',') || field.contains('"') || field.contains('\n') || field.contains('\r'))
        field = '"' + field.replace("\"", "\"\"") + '"';
    return field;
}

// "selected", "kept" or nothing: what the selection rule decided for the item.
const char *autoSelectMark(const AutoSelection &selection, const ResultItem &item)
{
    if (selection.isSelected(&item))
        return "selected";
    return selection.isSkipped(&item) ? "kept" : nullptr;
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
        // A group of similar files keeps its anchor first: the others are alike to it only.
        // A contained folder comes before its container.
        if (std::isnan(members.first()->similarity()))
            std::sort(members.begin(), members.end(), [](const ResultItem *a, const ResultItem *b) {
                return std::pair(!a->has(ContainedFolder), a->path) < std::pair(!b->has(ContainedFolder), b->path);
            });
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
        if (std::isnan(group.first()->similarity())) {
            summary.reclaimableBytes += (storages - 1) * group.first()->size;
            continue;
        }
        // Similar files differ in size: all but the anchor could go.
        std::set<std::pair<quint64, quint64>> others;
        for (const ResultItem *item : group.mid(1))
            if (!(item->device == group.first()->device && item->inode == group.first()->inode) &&
                others.insert({item->device, item->inode}).second)
                summary.reclaimableBytes += item->size;
    }
    return summary;
}

QByteArray formatResults(const QList<ResultItem> &items, const SearchRequest &request, OutputFormat format,
                         const SearchStatistics &statistics, const AutoSelection *selection)
{
    QByteArray all;
    writeResults(items, request, format, statistics, [&](const QByteArray &bytes) { all += bytes; }, selection);
    return all;
}

void writeResults(const QList<ResultItem> &items, const SearchRequest &request, OutputFormat format,
                  const SearchStatistics &statistics, const std::function<void(const QByteArray &)> &sink,
                  const AutoSelection *selection)
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
    case OutputFormat::NulTerminated: {
        // A blank line between groups, or a NUL ending each: an empty record either way.
        const bool nul = format == OutputFormat::NulTerminated;
        for (qsizetype g = 0; g < groups.size(); ++g) {
            if (g > 0 && !nul)
                out += '\n';
            for (const ResultItem *item : groups[g]) {
                if (selection) {
                    const char *mark = autoSelectMark(*selection, *item);
                    out += mark == nullptr ? "  " : selection->isSelected(item) ? "select " : "keep ";
                }
                out += nul ? nulTerminatedPath(item->path) : escapedText(item->path).toUtf8() + '\n';
            }
            if (nul)
                out += '\0';
            flushLarge();
        }
        break;
    }
    case OutputFormat::Csv:
        // pathBytes: the exact bytes, base64, of a path that is not UTF-8 (shown with \xFF escapes).
        out += selection ? "group,dupes,size,physicalSize,modified,isFolder,autoSelect,path,pathBytes\n"
                         : "group,dupes,size,physicalSize,modified,isFolder,path,pathBytes\n";
        for (const QList<const ResultItem *> &group : groups)
            for (const ResultItem *item : group) {
                out += QByteArray::number(item->group) + ',' + QByteArray::number(item->dupes) + ',' +
                       QByteArray::number(item->size) + ',' + QByteArray::number(item->physicalSize) + ',' +
                       isoDate(item->modified) + ',' + (item->has(IsFolder) ? "1" : "0") + ',';
                if (selection)
                    out += QByteArray(autoSelectMark(*selection, *item)) + ',';
                out += csvField(item->path) + ',' +
                       (hasInvalidBytes(item->path) ? pathBytes(item->path).toBase64() : QByteArray()) + '\n';
                flushLarge();
            }
        break;
    case OutputFormat::Json: {
        // The results file format, which the desktop application opens.
        ResultsFile::Content content;
        content.request = &request;
        content.groups = groups;
        content.partial = statistics.stopped;
        if (selection)
            content.writeItemExtras = [selection](JsonWriter &json, const ResultItem &item) {
                json.key("autoSelect");
                if (const char *mark = autoSelectMark(*selection, item))
                    json.value(mark);
                else
                    json.null();
            };
        content.writeFileExtras = [&](JsonWriter &json) {
            json.key("summary");
            json.begin('{');
            const QJsonObject summary = summaryObject(items, statistics);
            for (auto it = summary.begin(); it != summary.end(); ++it)
                json.field(it.key().toLatin1().constData(), qint64(it.value().toInteger()));
            json.end('}');
        };
        ResultsFile::write(content, sink);
        return;
    }
    }
    sink(out);
}

QByteArray summaryText(const QList<ResultItem> &items, const SearchStatistics &statistics)
{
    const QJsonObject summary = summaryObject(items, statistics);
    // The counts stay plain digits, for scripts that read them.
    static const std::pair<const char *, const char *> kLines[] = {
        {"filesEnumerated", QT_TRANSLATE_NOOP("SelfsameCli", "files enumerated: %1")},
        {"filesHashed", QT_TRANSLATE_NOOP("SelfsameCli", "files hashed: %1")},
        {"filesToldApartBySample", QT_TRANSLATE_NOOP("SelfsameCli", "files told apart by their first and last bytes: %1")},
        {"bytesRead", QT_TRANSLATE_NOOP("SelfsameCli", "bytes read: %1")},
        {"filesFromCache", QT_TRANSLATE_NOOP("SelfsameCli", "files known from the digest cache: %1")},
        {"unreadableFolders", QT_TRANSLATE_NOOP("SelfsameCli", "unreadable folders: %1")},
        {"unreadableFiles", QT_TRANSLATE_NOOP("SelfsameCli", "unreadable files: %1")},
        {"groups", QT_TRANSLATE_NOOP("SelfsameCli", "groups: %1")},
        {"duplicates", QT_TRANSLATE_NOOP("SelfsameCli", "duplicates: %1")},
        {"reclaimableBytes", QT_TRANSLATE_NOOP("SelfsameCli", "reclaimable bytes: %1")}};
    QByteArray out;
    for (const auto &[key, line] : kLines)
        out += (CliText::tr(line).arg(summary.value(QLatin1String(key)).toInteger()) + u'\n').toUtf8();
    return out;
}

} // namespace selfsame::cli
