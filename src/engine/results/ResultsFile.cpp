#include "results/ResultsFile.h"

#include "names/FileNames.h"
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
#include <QSet>

#include <algorithm>
#include <charconv>
#include <climits>
#include <limits>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <map>
#include <unistd.h>
#include <string_view>
#include <vector>

namespace selfsame {

namespace ResultsFile {

namespace {

struct ResultsFileText {
    Q_DECLARE_TR_FUNCTIONS(ResultsFile)
};

// The reasons a file is refused, each naming the file.
QString notResults(const QString &name)
{
    return ResultsFileText::tr("“%1” is not a Selfsame results file.").arg(name);
}
QString incomplete(const QString &name)
{
    return ResultsFileText::tr("“%1” is incomplete: it ends before its end. It may have been cut short while "
                               "it was saved or copied.")
        .arg(name);
}
QString damaged(const QString &name, const QString &why)
{
    return ResultsFileText::tr("“%1” is damaged: %2.").arg(name, why);
}
QString newer(const QString &name, qint64 version)
{
    return ResultsFileText::
        tr("“%1” was saved by a newer version of Selfsame (results format %2); this version reads format %3 "
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

bool isSpace(char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }

bool isDigit(char c) { return c >= '0' && c <= '9'; }

bool isNumberCharacter(char c)
{
    return isDigit(c) || c == '-' || c == '+' || c == '.' || c == 'e' || c == 'E';
}

// Whether the text begins as this format's files do, `{"format":"selfsame-results"`, with any
// white space between the tokens: files re-written by other JSON tools space them out.
bool looksLikeOurs(QByteArrayView text)
{
    qsizetype at = 0;
    const auto next = [&](QByteArrayView token) {
        while (at < text.size() && isSpace(text[at]))
            ++at;
        if (!text.sliced(at).startsWith(token)) return false;
        at += token.size();
        return true;
    };
    const QByteArray name = '"' + QByteArray(kFormatName.data(), kFormatName.size()) + '"';
    return next("{") && next("\"format\"") && next(":") && next(name);
}

enum class NumberFault { None, OutOfRange, NotANumber };

// Whether the parser can read a number as written: JSON's form, an integer within 64 bits
// (signed when negative), a real number within a double's range (smaller ones read as 0).
NumberFault numberFault(std::string_view s)
{
    std::size_t i = s.starts_with('-') ? 1 : 0;
    const std::size_t intBegin = i;
    while (i < s.size() && isDigit(s[i])) ++i;
    const std::size_t intEnd = i;
    if (intEnd == intBegin || (s[intBegin] == '0' && intEnd - intBegin > 1)) return NumberFault::NotANumber;
    std::size_t fracBegin = i, fracEnd = i;
    if (i < s.size() && s[i] == '.') {
        fracBegin = ++i;
        while (i < s.size() && isDigit(s[i])) ++i;
        fracEnd = i;
        if (fracEnd == fracBegin) return NumberFault::NotANumber;
    }
    qint64 exponent = 0;
    const bool hasExponent = i < s.size() && (s[i] == 'e' || s[i] == 'E');
    if (hasExponent) {
        const bool negative = ++i < s.size() && s[i] == '-';
        if (i < s.size() && (s[i] == '-' || s[i] == '+')) ++i;
        const std::size_t digits = i;
        for (; i < s.size() && isDigit(s[i]); ++i)
            exponent = std::min<qint64>(exponent * 10 + (s[i] - '0'), 1'000'000'000);
        if (i == digits) return NumberFault::NotANumber;
        if (negative) exponent = -exponent;
    }
    if (i != s.size()) return NumberFault::NotANumber;

    const char *const begin = s.data(), *const end = s.data() + s.size();
    if (fracBegin == fracEnd && !hasExponent) {
        std::int64_t signedValue;
        std::uint64_t unsignedValue;
        const bool fits = s.starts_with('-') ? std::from_chars(begin, end, signedValue).ec == std::errc()
                                             : std::from_chars(begin, end, unsignedValue).ec == std::errc();
        return fits ? NumberFault::None : NumberFault::OutOfRange;
    }
    // The power of ten of the first significant digit tells a value too large from one too small.
    const std::string_view digits = s.substr(intBegin, intEnd - intBegin);
    const std::string_view fraction = s.substr(fracBegin, fracEnd - fracBegin);
    qint64 magnitude = exponent;
    if (const std::size_t first = digits.find_first_not_of('0'); first != std::string_view::npos)
        magnitude += qint64(digits.size() - first) - 1;
    else if (const std::size_t first = fraction.find_first_not_of('0'); first != std::string_view::npos)
        magnitude -= qint64(first) + 1;
    else
        return NumberFault::None; // zero
    double value;
    const bool tooLarge =
        std::from_chars(begin, end, value).ec == std::errc::result_out_of_range && magnitude > 0;
    return tooLarge ? NumberFault::OutOfRange : NumberFault::None;
}

// The parser refuses a whole file for one number it cannot read, without saying where. Finds
// the first such number and the key whose value holds it (empty at the top level).
std::optional<std::pair<NumberFault, std::string_view>> firstBadNumber(std::string_view text)
{
    std::vector<std::string_view> keys; // for each open object or array, the key being read
    std::size_t i = 0;
    while (i < text.size()) {
        const char c = text[i];
        if (c == '"') {
            std::size_t end = i + 1;
            while (end < text.size() && text[end] != '"')
                end += text[end] == '\\' ? 2 : 1;
            end = std::min(end, text.size());
            const std::string_view string = text.substr(i + 1, end - i - 1);
            i = end + 1;
            std::size_t after = i;
            while (after < text.size() && isSpace(text[after]))
                ++after;
            if (after < text.size() && text[after] == ':' && !keys.empty()) keys.back() = string;
            continue;
        }
        if (c == '-' || isDigit(c)) {
            std::size_t end = i;
            while (end < text.size() && isNumberCharacter(text[end]))
                ++end;
            const NumberFault fault = numberFault(text.substr(i, end - i));
            if (fault != NumberFault::None)
                return std::pair(fault, keys.empty() ? std::string_view() : keys.back());
            i = end;
            continue;
        }
        if (c == '{') keys.emplace_back();
        if (c == '[') // an array's members are values of the array's key
            keys.push_back(keys.empty() ? std::string_view() : keys.back());
        if ((c == '}' || c == ']') && !keys.empty()) keys.pop_back();
        ++i;
    }
    return std::nullopt;
}

// Why text that is not JSON was refused, when it was meant to be a results file.
QString notJson(const QByteArray &bytes, const QString &name)
{
    if (endsOpen(bytes)) return incomplete(name);
    const auto bad = firstBadNumber(std::string_view(bytes.constData(), std::size_t(bytes.size())));
    if (!bad) return damaged(name, ResultsFileText::tr("it is not valid JSON"));
    const auto &[fault, key] = *bad;
    if (key.empty())
        return damaged(name, fault == NumberFault::OutOfRange
                                 ? ResultsFileText::tr("it holds a number out of range")
                                 : ResultsFileText::tr("it holds a number that is not valid"));
    return damaged(name,
                   fault == NumberFault::OutOfRange
                       ? json::refusal(json::kOutOfRange, key)
                       : ResultsFileText::tr("the value of “%1” is not a valid number").arg(json::text(key)));
}

} // namespace

Content contentOf(const ResultModel &model)
{
    Content content;
    content.request = &model.request();
    std::map<int, QList<const ResultItem *>> byGroup;
    for (const ResultItem *item : model.mainItems() + model.mainItemsHidden())
        byGroup[item->group].append(item);
    for (auto &[group, members] : byGroup) {
        // A contained folder comes before its container, whatever the list's order.
        std::stable_partition(members.begin(), members.end(),
                              [](const ResultItem *item) { return item->has(ContainedFolder); });
        content.groups.append(std::move(members));
    }
    content.topList.emplace(model.mainItems().begin(), model.mainItems().end());
    content.topSort = model.sortDescriptor(ResultList::Top);
    content.hiddenByAutomaticSelection = model.hiddenBecauseOfAutomaticallySelect();
    content.partial = model.partial();
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
    if (content.partial)
        json.field("partial", true);
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
        if (group.first()->has(ContainedFolder))
            json.field("kind", QByteArrayLiteral("contained"));
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
        return ResultsFileText::tr("The results could not be saved to “%1”: %2")
            .arg(path, file.errorString());
    return {};
}

Loaded load(const QString &path)
{
    // Opened by its bytes: results may be saved under a name that is not UTF-8.
    const int fd = open(pathBytes(path).constData(), O_RDONLY | O_CLOEXEC);
    QFile file;
    if (fd < 0 || !file.open(fd, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        const QString why = QString::fromLocal8Bit(std::strerror(errno));
        if (fd >= 0) close(fd);
        return {std::nullopt,
                ResultsFileText::tr("“%1” could not be opened: %2").arg(displayPath(path), why)};
    }
    return fromBytes(file.readAll(), displayPath(QFileInfo(path).fileName()));
}

Loaded fromBytes(QByteArray bytes, const QString &name)
{
    if (isGzip(bytes)) {
        std::optional<QByteArray> plain = gzipDecompress(bytes);
        if (!plain) return {std::nullopt, incomplete(name)};
        bytes = std::move(*plain);
    }
    simdjson::dom::parser parser;
    json::Element root;
    if (parser.parse(bytes.constData(), std::size_t(bytes.size())).get(root))
        return {std::nullopt, looksLikeOurs(bytes) ? notJson(bytes, name) : notResults(name)};
    const std::optional<json::Element> format = json::member(root, "format");
    if (!format || json::string(*format) != kFormatName) return {std::nullopt, notResults(name)};
    const std::optional<json::Element> versionValue = json::member(root, "version");
    const qint64 version = versionValue ? json::integer(*versionValue).value_or(0) : 0;
    if (version < 1)
        return {std::nullopt, damaged(name, ResultsFileText::tr("it has no valid format version"))};
    if (version > kFormatVersion) return {std::nullopt, newer(name, version)};

    QString why;
    const std::optional<json::Element> requestValue = json::member(root, "request");
    if (!requestValue)
        return {std::nullopt, damaged(name, ResultsFileText::tr("it holds no search request"))};
    std::optional<SearchRequest> request = readRequest(*requestValue, &why);
    if (!request) return {std::nullopt, damaged(name, why)};
    bool partial = false; // files written before searches could stop part-way are complete
    if (const std::optional<json::Element> partialValue = json::member(root, "partial")) {
        const std::optional<bool> flag = json::flag(*partialValue);
        if (!flag) return {std::nullopt, damaged(name, json::refusal(json::kNotValid, "partial"))};
        partial = *flag;
    }
    simdjson::dom::array groups;
    if (root["groups"].get(groups))
        return {std::nullopt, damaged(name, ResultsFileText::tr("it holds no list of groups"))};
    constexpr qint64 kLargest = std::numeric_limits<qint64>::max();
    const auto refused = [&](json::Why fault, std::string_view key) {
        return Loaded{std::nullopt, damaged(name, json::refusal(fault, key))};
    };

    const std::optional<json::Element> topList = json::member(root, "topList");
    std::optional<SortDescriptor> sort;
    bool byAutomaticSelection = false;
    if (topList) {
        if (!topList->is_object()) return refused(json::kNotValid, "topList");
        if (const std::optional<json::Element> s = json::member(*topList, "sort"); s && !s->is_null()) {
            const std::optional<json::Element> key = json::member(*s, "key");
            const std::optional<json::Element> ascending = json::member(*s, "ascending");
            const std::optional<QString> keyText = key ? json::string(*key) : std::nullopt;
            const std::optional<bool> ascendingFlag = ascending ? json::flag(*ascending) : std::nullopt;
            if (!keyText || !ascendingFlag) return refused(json::kNotValid, "sort");
            sort = SortDescriptor{*keyText, *ascendingFlag};
        }
        if (const std::optional<json::Element> h = json::member(*topList, "hiddenByAutomaticSelection")) {
            const std::optional<bool> hidden = json::flag(*h);
            if (!hidden) return refused(json::kNotValid, "hiddenByAutomaticSelection");
            byAutomaticSelection = *hidden;
        }
    }

    QList<ResultItem> items;
    QList<qsizetype> rowOf; // each item's row in the top list, -1 for a hidden one
    QSet<qint64> numbers;
    for (json::Element group : groups) {
        const std::optional<json::Element> numberValue = json::member(group, "group");
        const std::optional<json::Element> dupesValue = json::member(group, "dupes");
        const std::optional<json::Element> membersValue = json::member(group, "items");
        if (!numberValue || !dupesValue || !membersValue)
            return {std::nullopt,
                    damaged(name, ResultsFileText::tr("a group has no number, count or items"))};
        qint64 number = 0, dupes = 0, size = 0;
        if (const json::Why fault = json::wholeNumber(*numberValue, 0, INT_MAX, number))
            return refused(fault, "group");
        if (const json::Why fault = json::wholeNumber(*dupesValue, 0, INT_MAX, dupes))
            return refused(fault, "dupes");
        if (const std::optional<json::Element> sizeValue = json::member(group, "size")) {
            if (const json::Why fault = json::wholeNumber(*sizeValue, 0, kLargest, size))
                return refused(fault, "size");
        }
        simdjson::dom::array members;
        if (membersValue->get(members)) return refused(json::kNotValid, "items");
        // A folder and the container of its files' copies, in that order; kinds that this
        // version does not know read as plain groups.
        bool contained = false;
        if (const std::optional<json::Element> kindValue = json::member(group, "kind")) {
            const std::optional<QString> kind = json::string(*kindValue);
            if (!kind) return refused(json::kNotValid, "kind");
            contained = *kind == QLatin1String("contained");
            if (contained && members.size() != 2) return refused(json::kNotValid, "kind");
        }
        if (numbers.contains(number))
            return {std::nullopt,
                    damaged(name, ResultsFileText::tr("two groups share the number %1").arg(number))};
        numbers.insert(number);
        ItemFlag role = ContainedFolder;
        for (json::Element member : members) {
            simdjson::dom::object object;
            ResultItem item;
            if (member.get(object) || !readItem(object, item, &why)) return {std::nullopt, damaged(name, why)};
            item.group = int(number);
            item.dupes = int(dupes);
            if (contained) {
                item.set(role);
                role = ContainingFolder;
            }
            qint64 row = -1;
            const std::optional<json::Element> rowValue = json::member(member, "row");
            if (rowValue) {
                if (const json::Why fault = json::wholeNumber(*rowValue, 0, kLargest, row))
                    return refused(fault, "row");
            }
            bool hidden = false;
            if (const std::optional<json::Element> hiddenValue = json::member(member, "hidden")) {
                const std::optional<bool> flag = json::flag(*hiddenValue);
                if (!flag) return refused(json::kNotValid, "hidden");
                hidden = *flag;
            }
            if (topList && !rowValue && !hidden)
                return {std::nullopt,
                        damaged(name, ResultsFileText::tr("an item is neither in the top list nor hidden"))};
            rowOf.append(row);
            items.append(std::move(item));
        }
    }
    // The rows are a permutation of 0 … n − 1 for the n items that have one.
    const qsizetype shown = std::count_if(rowOf.cbegin(), rowOf.cend(), [](qsizetype r) { return r >= 0; });
    QList<qsizetype> topRows(shown, -1);
    for (qsizetype i = 0; i < rowOf.size(); ++i) {
        const qsizetype row = rowOf[i];
        if (row < 0) continue;
        if (row >= topRows.size())
            return {std::nullopt, damaged(name, ResultsFileText::tr("the top list has gaps"))};
        if (topRows[row] != -1)
            return {std::nullopt, damaged(name, ResultsFileText::tr("two items share one row"))};
        topRows[row] = i;
    }

    markChangedItems(items);
    Loaded loaded;
    ResultModel &model = loaded.model.emplace();
    if (topList)
        model.restoreResults(std::move(items), *request, topRows, sort, byAutomaticSelection);
    else
        model.setResults(std::move(items), *request);
    model.setPartial(partial);
    return loaded;
}

} // namespace ResultsFile

} // namespace selfsame
