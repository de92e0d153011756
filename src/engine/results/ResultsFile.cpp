#include "results/ResultsFile.h"

#include "results/ChangedItems.h"
#include "results/Gzip.h"
#include "results/JsonRead.h"
#include "results/JsonWriter.h"
#include "results/SavedItem.h"
#include "results/SavedRequest.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
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

// Whether JSON text ends inside a string or with objects or arrays still open: a file cut short.
bool endsOpen(const QByteArray &text)
{
    qsizetype depth = 0;
    bool inString = false, escaped = false;
    for (const char c : text) {
        if (inString) {
            if (escaped) escaped = false;
            else if (c == '\\') escaped = true;
            else if (c == '"') inString = false;
        } else if (c == '"') {
            inString = true;
        } else if (c == '{' || c == '[') {
            ++depth;
        } else if (c == '}' || c == ']') {
            --depth;
        }
    }
    return inString || depth > 0;
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
    const bool ours = bytes.left(100).contains(QByteArray("{\"format\":\"") + kFormatName.data() + '"');
    simdjson::dom::parser parser;
    json::Element root;
    if (parser.parse(bytes.constData(), std::size_t(bytes.size())).get(root)) {
        if (!ours) return {std::nullopt, notResults(name)};
        return {std::nullopt, endsOpen(bytes) ? incomplete(name) : damaged(name, tr("it is not valid JSON"))};
    }
    const std::optional<json::Element> format = json::member(root, "format");
    if (!format || json::string(*format) != kFormatName) return {std::nullopt, notResults(name)};
    const std::optional<json::Element> versionValue = json::member(root, "version");
    const qint64 version = versionValue ? json::integer(*versionValue).value_or(0) : 0;
    if (version < 1) return {std::nullopt, damaged(name, tr("it has no valid format version"))};
    if (version > kFormatVersion) return {std::nullopt, newer(name, version)};

    QString why;
    const std::optional<json::Element> requestValue = json::member(root, "request");
    if (!requestValue) return {std::nullopt, damaged(name, tr("it holds no search request"))};
    std::optional<SearchRequest> request = readRequest(*requestValue, &why);
    if (!request) return {std::nullopt, damaged(name, why)};
    simdjson::dom::array groups;
    if (root["groups"].get(groups)) return {std::nullopt, damaged(name, tr("it holds no list of groups"))};

    const std::optional<json::Element> topList = json::member(root, "topList");
    QList<ResultItem> items;
    QList<qsizetype> topRows; // item index at each row, -1 until filled
    for (json::Element group : groups) {
        const std::optional<json::Element> numberValue = json::member(group, "group");
        const std::optional<json::Element> dupesValue = json::member(group, "dupes");
        const std::optional<qint64> number = numberValue ? json::integer(*numberValue) : std::nullopt;
        const std::optional<qint64> dupes = dupesValue ? json::integer(*dupesValue) : std::nullopt;
        simdjson::dom::array members;
        if (!number || !dupes || group["items"].get(members))
            return {std::nullopt, damaged(name, tr("a group has no number, count or items"))};
        for (json::Element member : members) {
            simdjson::dom::object object;
            ResultItem item;
            if (member.get(object) || !readItem(object, item, &why)) return {std::nullopt, damaged(name, why)};
            item.group = int(*number);
            item.dupes = int(*dupes);
            if (const std::optional<json::Element> row = json::member(member, "row")) {
                const qint64 at = json::integer(*row).value_or(-1);
                if (at < 0 || at >= (1 << 30)) return {std::nullopt, damaged(name, tr("an item's row is not valid"))};
                if (topRows.size() <= at) topRows.resize(at + 1, -1);
                if (topRows[at] != -1) return {std::nullopt, damaged(name, tr("two items share one row"))};
                topRows[at] = items.size();
            } else if (topList) {
                const std::optional<json::Element> hidden = json::member(member, "hidden");
                if (!hidden || !json::flag(*hidden).value_or(false))
                    return {std::nullopt, damaged(name, tr("an item is neither in the top list nor hidden"))};
            }
            items.append(std::move(item));
        }
    }
    if (topRows.contains(-1)) return {std::nullopt, damaged(name, tr("the top list has gaps"))};

    markChangedItems(items);
    Loaded loaded;
    ResultModel &model = loaded.model.emplace();
    if (topList) {
        std::optional<SortDescriptor> sort;
        if (const std::optional<json::Element> s = json::member(*topList, "sort"); s && !s->is_null()) {
            const std::optional<json::Element> key = json::member(*s, "key");
            const std::optional<json::Element> ascending = json::member(*s, "ascending");
            sort = SortDescriptor{key ? json::string(*key).value_or(QString()) : QString(),
                                  ascending && json::flag(*ascending).value_or(true)};
        }
        const std::optional<json::Element> byAutomaticSelection = json::member(*topList, "hiddenByAutomaticSelection");
        model.restoreResults(std::move(items), *request, topRows, sort,
                             byAutomaticSelection && json::flag(*byAutomaticSelection).value_or(false));
    } else {
        model.setResults(std::move(items), *request);
    }
    return loaded;
}

} // namespace ResultsFile

} // namespace selfsame
