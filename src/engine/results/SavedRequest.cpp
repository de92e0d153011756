#include "results/SavedRequest.h"

#include "results/JsonWriter.h"

#include "results/JsonRead.h"

#include <QCoreApplication>

#include <algorithm>

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

// Reads the parameters one by one and remembers the first that is not as it should be.
class RequestReader {
public:
    explicit RequestReader(json::Element object) : m_object(object) {}

    bool flag(const char *name, bool &into) { return read(name, json::flag, into); }
    bool number(const char *name, double &into) { return read(name, json::number, into); }
    bool integer(const char *name, qint64 &into) { return read(name, json::integer, into); }
    bool text(const char *name, QString &into) { return read(name, json::string, into); }
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
    bool expressions(const char *name, QList<QRegularExpression> &into)
    {
        simdjson::dom::array array;
        if (!value(name) || value(name)->get_array().get(array)) return fail(name);
        for (json::Element element : array) {
            const std::optional<json::Element> pattern = json::member(element, "pattern");
            const std::optional<QString> text = pattern ? json::string(*pattern) : std::nullopt;
            if (!text) return fail(name);
            QRegularExpression::PatternOptions options = QRegularExpression::UseUnicodePropertiesOption;
            const std::optional<json::Element> caseInsensitive = json::member(element, "caseInsensitive");
            if (caseInsensitive && json::flag(*caseInsensitive).value_or(false))
                options |= QRegularExpression::CaseInsensitiveOption;
            into.append(QRegularExpression(*text, options));
        }
        return true;
    }
    bool has(const char *name) const { return value(name) && !value(name)->is_null(); }
    const QString &error() const { return m_error; }

    bool fail(const char *name)
    {
        if (m_error.isEmpty())
            m_error = QCoreApplication::translate("ResultsFile", "the search parameter “%1” is missing or not valid")
                          .arg(QLatin1String(name));
        return false;
    }

private:
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
    qint64 extensionsMode = 0, detectionMode = 0;
    QStringList extensions;
    bool ok = r.texts("searchInFolderURLs", request.searchInFolderURLs) &&
              r.flag("findAllDupesForSingleFiles", request.findAllDupesForSingleFiles) &&
              r.flag("skipHiddenFiles", request.skipHiddenFiles) && r.flag("ignoreMp4Header", request.ignoreMp4Header) &&
              r.flag("ignoreClones", request.ignoreClones) && r.integer("limitFolderDepth", request.limitFolderDepth) &&
              r.expressions("skipFilenameRegexes", request.skipFilenameRegexes) &&
              r.integer("extensionsMode", extensionsMode) && r.texts("extensions", extensions) &&
              r.flag("filterFileSize", request.filterFileSize) && r.flag("compareFolders", request.compareFolders) &&
              r.integer("minFileSize", request.minFileSize) && r.integer("maxFileSize", request.maxFileSize) &&
              r.flag("ignoreNonWritable", request.ignoreNonWritable) &&
              r.flag("ignoreOtherOwner", request.ignoreOtherOwner) && r.integer("detectionMode", detectionMode) &&
              r.number("durationTolerance", request.durationTolerance) &&
              r.text("spotlightAttribute", request.spotlightAttribute) &&
              r.number("spotlightTolerance", request.spotlightTolerance) &&
              r.flag("filenameIgnoreExtension", request.filenameIgnoreExtension);
    if (ok && r.has("filenameIgnoreCommonSuffixRegexes"))
        ok = r.expressions("filenameIgnoreCommonSuffixRegexes", request.filenameIgnoreCommonSuffixRegexes.emplace());
    if (ok && (extensionsMode < 0 || extensionsMode > int(ExtensionsMode::AllBut))) ok = r.fail("extensionsMode");
    if (ok && (detectionMode < 0 || detectionMode > int(DetectionMode::Attribute))) ok = r.fail("detectionMode");
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
