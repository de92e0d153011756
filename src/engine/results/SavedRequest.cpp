#include "results/SavedRequest.h"

#include "results/JsonWriter.h"

#include "results/JsonRead.h"

#include <QCoreApplication>

#include <algorithm>
#include <limits>
#include <utility>

namespace selfsame {

namespace {

void writeExpressions(JsonWriter &json, const QList<QRegularExpression> &expressions)
{
    json.begin('[');
    for (const QRegularExpression &expression : expressions) {
        json.begin('{');
        json.field("pattern", expression.pattern());
        json.field("caseInsensitive",
                   expression.patternOptions().testFlag(QRegularExpression::CaseInsensitiveOption));
        json.end('}');
    }
    json.end(']');
}

// Tolerances are seconds or degrees; beyond this they would overflow when turned into
// milliseconds or moved dates.
constexpr double kLargestTolerance = 1e12;

// Reads the parameters one by one and remembers the first that is not as it should be.
class RequestReader {
public:
    explicit RequestReader(json::Element object) : m_object(object) {}

    bool flag(const char *name, bool &into) { return read(name, json::flag, into); }
    bool integer(const char *name, qint64 &into) { return read(name, json::integer, into); }
    bool text(const char *name, QString &into) { return read(name, json::string, into); }
    // A whole number from `min` to `max`.
    bool wholeNumber(const char *name, qint64 min, qint64 max, qint64 &into)
    {
        const std::optional<json::Element> element = value(name);
        return element ? check(name, json::wholeNumber(*element, min, max, into)) : fail(name);
    }
    bool tolerance(const char *name, double &into)
    {
        const std::optional<json::Element> element = value(name);
        return element ? check(name, json::realNumber(*element, 0, kLargestTolerance, into)) : fail(name);
    }
    bool texts(const char *name, QStringList &into)
    {
        simdjson::dom::array array;
        if (!value(name) || value(name)->get_array().get(array)) return fail(name);
        for (json::Element element : array) {
            const std::optional<QString> text = json::string(element);
            if (!text) return fail(name);
            into.append(*text);
        }
        return true;
    }
    bool paths(const char *name, QStringList &into)
    {
        if (!texts(name, into)) return false;
        for (const QString &path : std::as_const(into)) {
            if (!path.startsWith(u'/')) return fail(name, kRelativePath);
            if (path.contains(QChar(0))) return fail(name, kPathWithNul);
        }
        return true;
    }
    bool expressions(const char *name, QList<QRegularExpression> &into)
    {
        simdjson::dom::array array;
        if (!value(name) || value(name)->get_array().get(array)) return fail(name);
        for (json::Element element : array) {
            const std::optional<json::Element> pattern = json::member(element, "pattern");
            const std::optional<QString> text = pattern ? json::string(*pattern) : std::nullopt;
            if (!text) return fail(name);
            QRegularExpression::PatternOptions options = QRegularExpression::UseUnicodePropertiesOption;
            if (const std::optional<json::Element> caseless = json::member(element, "caseInsensitive")) {
                const std::optional<bool> on = json::flag(*caseless);
                if (!on) return fail(name);
                if (*on) options |= QRegularExpression::CaseInsensitiveOption;
            }
            into.append(QRegularExpression(*text, options));
            if (!into.last().isValid()) return fail(name, kBadExpression);
        }
        return true;
    }
    bool has(const char *name) const { return value(name) && !value(name)->is_null(); }
    bool contains(const char *name) const { return value(name).has_value(); }
    const QString &error() const { return m_error; }

private:
    static constexpr json::Why kRelativePath =
        QT_TRANSLATE_NOOP("ResultsFile", "the search parameter “%1” holds a path that is not absolute");
    static constexpr json::Why kPathWithNul =
        QT_TRANSLATE_NOOP("ResultsFile", "the search parameter “%1” holds a path with a NUL character");
    static constexpr json::Why kBadExpression =
        QT_TRANSLATE_NOOP("ResultsFile", "the search parameter “%1” holds an expression that is not valid");

    // A value of the wrong kind reads as a missing one; one out of range says so.
    bool fail(const char *name, json::Why why = nullptr)
    {
        if (!m_error.isEmpty()) return false;
        if (why && qstrcmp(why, json::kNotValid) != 0) // by text: one literal may lie at two addresses
            m_error = json::refusal(why, name);
        else
            m_error = QCoreApplication::translate("ResultsFile", "the search parameter “%1” is missing or not valid")
                          .arg(QLatin1String(name));
        return false;
    }
    bool check(const char *name, json::Why why) { return why ? fail(name, why) : true; }
    std::optional<json::Element> value(const char *name) const { return json::member(m_object, name); }
    template <typename Read, typename T> bool read(const char *name, Read reading, T &into)
    {
        const std::optional<json::Element> element = value(name);
        const auto got = element ? reading(*element) : std::nullopt;
        if (!got) return fail(name);
        into = *got;
        return true;
    }
    json::Element m_object;
    QString m_error;
};

} // namespace

void writeRequest(JsonWriter &json, const SearchRequest &request)
{
    json.begin('{');
    json.key("searchInFolderURLs");
    json.begin('[');
    for (const QString &path : request.searchInFolderURLs)
        json.value(path);
    json.end(']');
    json.field("findAllDupesForSingleFiles", request.findAllDupesForSingleFiles);
    json.field("skipHiddenFiles", request.skipHiddenFiles);
    json.field("ignoreMp4Header", request.ignoreMp4Header);
    json.field("ignoreClones", request.ignoreClones);
    json.field("limitFolderDepth", request.limitFolderDepth);
    json.key("skipFilenameRegexes");
    writeExpressions(json, request.skipFilenameRegexes);
    json.field("extensionsMode", int(request.extensionsMode));
    QStringList extensions(request.extensions.begin(), request.extensions.end());
    std::sort(extensions.begin(), extensions.end());
    json.key("extensions");
    json.begin('[');
    for (const QString &extension : extensions)
        json.value(extension);
    json.end(']');
    json.field("filterFileSize", request.filterFileSize);
    json.field("compareFolders", request.compareFolders);
    json.field("minFileSize", request.minFileSize);
    json.field("maxFileSize", request.maxFileSize);
    json.field("ignoreNonWritable", request.ignoreNonWritable);
    json.field("ignoreOtherOwner", request.ignoreOtherOwner);
    json.field("detectionMode", int(request.detectionMode));
    json.field("durationTolerance", request.durationTolerance);
    json.field("spotlightAttribute", request.spotlightAttribute);
    json.field("spotlightTolerance", request.spotlightTolerance);
    json.field("filenameIgnoreExtension", request.filenameIgnoreExtension);
    json.field("similarity", qint64(request.similarity));
    json.field("distinguishGreyscale", request.distinguishGreyscale);
    json.field("containedFolders", request.containedFolders);
    json.key("filenameIgnoreCommonSuffixRegexes");
    if (request.filenameIgnoreCommonSuffixRegexes)
        writeExpressions(json, *request.filenameIgnoreCommonSuffixRegexes);
    else
        json.null();
    json.end('}');
}

std::optional<SearchRequest> readRequest(json::Element object, QString *error)
{
    SearchRequest request;
    RequestReader r(object);
    constexpr qint64 kLargest = std::numeric_limits<qint64>::max();
    qint64 extensionsMode = 0, detectionMode = 0;
    QStringList extensions;
    bool ok = r.paths("searchInFolderURLs", request.searchInFolderURLs) &&
              r.flag("findAllDupesForSingleFiles", request.findAllDupesForSingleFiles) &&
              r.flag("skipHiddenFiles", request.skipHiddenFiles) && r.flag("ignoreMp4Header", request.ignoreMp4Header) &&
              r.flag("ignoreClones", request.ignoreClones) && r.integer("limitFolderDepth", request.limitFolderDepth) &&
              r.expressions("skipFilenameRegexes", request.skipFilenameRegexes) &&
              r.wholeNumber("extensionsMode", 0, int(ExtensionsMode::AllBut), extensionsMode) &&
              r.texts("extensions", extensions) && r.flag("filterFileSize", request.filterFileSize) &&
              r.flag("compareFolders", request.compareFolders) &&
              r.wholeNumber("minFileSize", 0, kLargest, request.minFileSize) &&
              r.wholeNumber("maxFileSize", 0, kLargest, request.maxFileSize) &&
              r.flag("ignoreNonWritable", request.ignoreNonWritable) &&
              r.flag("ignoreOtherOwner", request.ignoreOtherOwner) &&
              r.wholeNumber("detectionMode", 0, int(kLastDetectionMode), detectionMode) &&
              r.tolerance("durationTolerance", request.durationTolerance) &&
              r.text("spotlightAttribute", request.spotlightAttribute) &&
              r.tolerance("spotlightTolerance", request.spotlightTolerance) &&
              r.flag("filenameIgnoreExtension", request.filenameIgnoreExtension);
    // Results saved before the similar modes existed have no similarity.
    qint64 similarity = kDefaultSimilarity;
    if (ok && r.contains("similarity")) ok = r.wholeNumber("similarity", 0, 100, similarity);
    request.similarity = int(similarity);
    if (ok && r.contains("distinguishGreyscale")) ok = r.flag("distinguishGreyscale", request.distinguishGreyscale);
    if (ok && r.contains("containedFolders")) ok = r.flag("containedFolders", request.containedFolders);
    if (ok && r.has("filenameIgnoreCommonSuffixRegexes"))
        ok = r.expressions("filenameIgnoreCommonSuffixRegexes", request.filenameIgnoreCommonSuffixRegexes.emplace());
    if (!ok) {
        *error = r.error();
        return std::nullopt;
    }
    request.extensionsMode = ExtensionsMode(extensionsMode);
    request.detectionMode = DetectionMode(detectionMode);
    request.extensions = QSet<QString>(extensions.begin(), extensions.end());
    return request;
}

} // namespace selfsame
