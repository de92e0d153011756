#include "search/FilenameSortKey.h"

namespace selfsame
{

namespace
{

// The position of the dot before the extension, or -1 when the name has none (a leading dot
// alone makes no extension).
qsizetype extensionDot(const QString &name)
{
    const qsizetype dot = name.lastIndexOf(u'.');
    return dot > 0 && dot + 1 < name.size() ? dot : -1;
}

QString lastPathComponent(const QString &path)
{
    return path.mid(path.lastIndexOf(u'/') + 1);
}

} // namespace

QString FilenameSortKey::keyValue(const QString &path) const
{
    QString name = lastPathComponent(path);
    if (keyPath.contains(QLatin1String("stringByDeletingPathExtension"))) {
        if (const qsizetype dot = extensionDot(name); dot >= 0) name.truncate(dot);
    }
    return name.toLower();
}

FilenameSortKey
getFilenameSortKey(bool filenameIgnoreExtension,
                   const std::optional<QList<QRegularExpression>> &filenameIgnoreCommonSuffixRegexes)
{
    if (filenameIgnoreCommonSuffixRegexes) {
        return {
            QStringLiteral("URL.path.lastPathComponent.lowercaseString"),
            [filenameIgnoreExtension, regexes = *filenameIgnoreCommonSuffixRegexes](const QString &value) {
                return removePathExtension(filenameIgnoreExtension, regexes, value);
            }};
    }
    const auto plain = [](const QString &value) { return value; };
    if (filenameIgnoreExtension)
        return {QStringLiteral("URL.path.lastPathComponent.stringByDeletingPathExtension.lowercaseString"),
                plain};
    return {kSortByNameKeyPath, plain};
}

QString removePathExtension(bool removeExtension, const QList<QRegularExpression> &suffixRegexes,
                            const QString &name)
{
    QString base = name;
    QString extension;
    if (const qsizetype dot = extensionDot(name); dot >= 0) {
        extension = name.mid(dot + 1);
        base.truncate(dot);
    }
    qsizetype longest = 0;
    for (const QRegularExpression &expression : suffixRegexes) {
        const QRegularExpressionMatch match = expression.match(base);
        if (match.hasMatch()) longest = std::max(longest, match.capturedLength());
    }
    base.chop(longest);
    if (removeExtension || extension.isEmpty()) return base;
    return base + u'.' + extension;
}

} // namespace selfsame
