#include "results/ResultsFile.h"

#include "results/ChangedItems.h"
#include "results/Gzip.h"
#include "results/JsonWriter.h"
#include "results/SavedItem.h"
#include "results/SavedRequest.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>
#include <QSaveFile>

#include <map>

namespace selfsame {

namespace ResultsFile {

namespace {

QString tr(const char *text) { return QCoreApplication::translate("ResultsFile", text); }

// The reasons a file is refused, each naming the file.
QString notResults(const QString &name)
{
    return tr("“%1” is not a Selfsame results file.").arg(name);
}
QString incomplete(const QString &name)
{
    return tr("“%1” is incomplete: it ends before its end. It may have been cut short while it was saved or copied.")
        .arg(name);
}
QString damaged(const QString &name, const QString &why)
{
    return tr("“%1” is damaged: %2.").arg(name, why);
}
QString newer(const QString &name, qint64 version)
{
    return tr("“%1” was saved by a newer version of Selfsame (results format %2); this version reads format %3 "
              "and older.")
        .arg(name)
        .arg(version)
        .arg(kFormatVersion);
}

} // namespace

Content contentOf(const ResultModel &model)
{
    Content content;
    content.request = &model.request();
    std::map<int, QList<const ResultItem *>> byGroup;
    for (const ResultItem *item : model.mainItems() + model.mainItemsHidden())
        byGroup[item->group].append(item);
    for (auto &[group, members] : byGroup)
        content.groups.append(std::move(members));
    content.topList.emplace(model.mainItems().begin(), model.mainItems().end());
    content.topSort = model.sortDescriptor(ResultList::Top);
    content.hiddenByAutomaticSelection = model.hiddenBecauseOfAutomaticallySelect();
    return content;
}

void write(const Content &content, const std::function<void(const QByteArray &)> &sink)
{
    QHash<const ResultItem *, qsizetype> rows;
    if (content.topList) {
        rows.reserve(content.topList->size());
        for (qsizetype row = 0; row < content.topList->size(); ++row)
            rows.insert(content.topList->at(row), row);
    }
    QByteArray out;
    JsonWriter json(out);
    json.begin('{');
    json.field("format", QByteArray(kFormatName.data(), kFormatName.size()));
    json.field("version", kFormatVersion);
    json.newline();
    json.key("request");
    writeRequest(json, *content.request);
    json.newline();
    if (content.topList) {
        json.key("topList");
        json.begin('{');
        json.key("sort");
        if (content.topSort) {
            json.begin('{');
            json.field("key", content.topSort->key);
            json.field("ascending", content.topSort->ascending);
            json.end('}');
        } else {
            json.null();
        }
        json.field("hiddenByAutomaticSelection", content.hiddenByAutomaticSelection);
        json.end('}');
        json.newline();
    }
    json.key("groups");
    json.begin('[');
    for (const QList<const ResultItem *> &group : content.groups) {
        json.newline();
        json.begin('{');
        json.field("group", group.first()->group);
        json.field("dupes", group.first()->dupes);
        json.field("size", group.first()->size);
        json.key("items");
        json.begin('[');
        for (const ResultItem *item : group) {
            json.begin('{');
            writeItem(json, *item);
            if (content.topList) {
                if (const auto row = rows.constFind(item); row != rows.cend())
                    json.field("row", *row);
                else
                    json.field("hidden", true);
            }
            if (content.writeItemExtras) content.writeItemExtras(json, *item);
            json.end('}');
        }
        json.end(']');
        json.end('}');
        if (out.size() >= (1 << 20)) { // handed on a piece at a time rather than held whole
            sink(out);
            out.clear();
        }
    }
    json.end(']');
    if (content.writeFileExtras) content.writeFileExtras(json);
    json.end('}');
    json.newline();
    sink(out);
}

QString save(const ResultModel &model, const QString &path)
{
    QByteArray text;
    write(contentOf(model), [&](const QByteArray &piece) { text += piece; });
    if (text.size() > kCompressAbove) text = gzipCompress(text);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        return tr("The results could not be saved to “%1”: %2").arg(path, file.errorString());
    return {};
}

Loaded load(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {std::nullopt, tr("“%1” could not be opened: %2").arg(path, file.errorString())};
    return fromBytes(file.readAll(), QFileInfo(path).fileName());
}

Loaded fromBytes(QByteArray bytes, const QString &name)
{
    if (isGzip(bytes)) {
        std::optional<QByteArray> plain = gzipDecompress(bytes);
        if (!plain) return {std::nullopt, incomplete(name)};
        bytes = std::move(*plain);
    }
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(bytes, &parseError);
    if (parseError.error != QJsonParseError::NoError) {
        // A parse that fails at the very end is a file cut short; anywhere else, not ours.
        const bool atEnd = bytes.trimmed().size() <= parseError.offset + 1 && bytes.trimmed().startsWith('{');
        const bool ours = bytes.left(100).contains(QByteArray("\"format\":\"") + kFormatName.data());
        return {std::nullopt, atEnd && ours ? incomplete(name) : notResults(name)};
    }
    const QJsonObject root = document.object();
    if (root.value(QLatin1String("format")).toString() != kFormatName) return {std::nullopt, notResults(name)};
    const QJsonValue version = root.value(QLatin1String("version"));
    if (!version.isDouble() || version.toInteger() < 1)
        return {std::nullopt, damaged(name, tr("it has no valid format version"))};
    if (version.toInteger() > kFormatVersion) return {std::nullopt, newer(name, version.toInteger())};

    QString why;
    std::optional<SearchRequest> request = readRequest(root.value(QLatin1String("request")).toObject(), &why);
    if (!request) return {std::nullopt, damaged(name, why)};
    const QJsonValue groups = root.value(QLatin1String("groups"));
    if (!groups.isArray()) return {std::nullopt, damaged(name, tr("it holds no list of groups"))};

    const QJsonValue topList = root.value(QLatin1String("topList"));
    QList<ResultItem> items;
    QList<qsizetype> topRows; // item index at each row, -1 until filled
    for (const QJsonValue &groupValue : groups.toArray()) {
        const QJsonObject group = groupValue.toObject();
        const QJsonValue number = group.value(QLatin1String("group")), dupes = group.value(QLatin1String("dupes"));
        const QJsonValue members = group.value(QLatin1String("items"));
        if (!number.isDouble() || !dupes.isDouble() || !members.isArray())
            return {std::nullopt, damaged(name, tr("a group has no number, count or items"))};
        for (const QJsonValue &member : members.toArray()) {
            const QJsonObject object = member.toObject();
            ResultItem item;
            if (!readItem(object, item, &why)) return {std::nullopt, damaged(name, why)};
            item.group = int(number.toInteger());
            item.dupes = int(dupes.toInteger());
            if (const QJsonValue row = object.value(QLatin1String("row")); row.isDouble()) {
                const qsizetype at = row.toInteger();
                if (at < 0 || at >= (1 << 30)) return {std::nullopt, damaged(name, tr("an item's row is not valid"))};
                if (topRows.size() <= at) topRows.resize(at + 1, -1);
                if (topRows[at] != -1) return {std::nullopt, damaged(name, tr("two items share one row"))};
                topRows[at] = items.size();
            } else if (topList.isObject() && !object.value(QLatin1String("hidden")).toBool()) {
                return {std::nullopt, damaged(name, tr("an item is neither in the top list nor hidden"))};
            }
            items.append(std::move(item));
        }
    }
    if (topRows.contains(-1)) return {std::nullopt, damaged(name, tr("the top list has gaps"))};

    markChangedItems(items);
    Loaded loaded;
    ResultModel &model = loaded.model.emplace();
    if (topList.isObject()) {
        const QJsonObject list = topList.toObject();
        std::optional<SortDescriptor> sort;
        if (const QJsonObject s = list.value(QLatin1String("sort")).toObject(); !s.isEmpty())
            sort = SortDescriptor{s.value(QLatin1String("key")).toString(), s.value(QLatin1String("ascending")).toBool()};
        model.restoreResults(std::move(items), *request, topRows, sort,
                             list.value(QLatin1String("hiddenByAutomaticSelection")).toBool());
    } else {
        model.setResults(std::move(items), *request);
    }
    return loaded;
}

} // namespace ResultsFile

} // namespace selfsame
