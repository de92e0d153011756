#include "results/SavedRequest.h"

#include "results/JsonWriter.h"

#include <QCoreApplication>
#include <QJsonArray>

#include <algorithm>
#include <type_traits>

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
    explicit RequestReader(const QJsonObject &object) : m_object(object) {}

    bool flag(const char *name, bool &into) { return read(name, QJsonValue::Bool, [&](const QJsonValue &v) { into = v.toBool(); }); }
    bool number(const char *name, double &into) { return read(name, QJsonValue::Double, [&](const QJsonValue &v) { into = v.toDouble(); }); }
    bool integer(const char *name, qint64 &into) { return read(name, QJsonValue::Double, [&](const QJsonValue &v) { into = v.toInteger(); }); }
    bool text(const char *name, QString &into) { return read(name, QJsonValue::String, [&](const QJsonValue &v) { into = v.toString(); }); }
    bool texts(const char *name, QStringList &into)
    {
        return read(name, QJsonValue::Array, [&](const QJsonValue &v) {
            for (const QJsonValue &element : v.toArray()) {
                if (!element.isString()) return fail(name);
                into.append(element.toString());
            }
            return true;
        });
    }
    bool expressions(const char *name, QList<QRegularExpression> &into)
    {
        return read(name, QJsonValue::Array, [&](const QJsonValue &v) {
            for (const QJsonValue &element : v.toArray()) {
                const QJsonObject e = element.toObject();
                if (!e.value(QLatin1String("pattern")).isString()) return fail(name);
                QRegularExpression::PatternOptions options = QRegularExpression::UseUnicodePropertiesOption;
                if (e.value(QLatin1String("caseInsensitive")).toBool())
                    options |= QRegularExpression::CaseInsensitiveOption;
                into.append(QRegularExpression(e.value(QLatin1String("pattern")).toString(), options));
            }
            return true;
        });
    }
    bool has(const char *name) const { return !m_object.value(QLatin1String(name)).isNull(); }
    const QString &error() const { return m_error; }

    bool fail(const char *name)
    {
        if (m_error.isEmpty())
            m_error = QCoreApplication::translate("ResultsFile", "the search parameter “%1” is missing or not valid")
                          .arg(QLatin1String(name));
        return false;
    }

private:
    template <typename Read> bool read(const char *name, QJsonValue::Type type, Read reading)
    {
        const QJsonValue value = m_object.value(QLatin1String(name));
        if (value.type() != type) return fail(name);
        if constexpr (std::is_same_v<decltype(reading(value)), bool>)
            return reading(value);
        else
            reading(value);
        return true;
    }
    const QJsonObject &m_object;
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

std::optional<SearchRequest> readRequest(const QJsonObject &object, QString *error)
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
