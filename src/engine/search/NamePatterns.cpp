#include "search/NamePatterns.h"

#include <QCoreApplication>

#include <algorithm>

namespace selfsame {

namespace {

// \Q…\E keeps the user's text literal, so dots and brackets in names need no escaping.
QString quoted(const QString &text)
{
    return QStringLiteral("\\Q") + text + QStringLiteral("\\E");
}

QString rawRegexToPattern(const QString &line, qsizetype firstSlash, qsizetype lastSlash)
{
    const QString before = line.left(firstSlash);
    const QString middle = line.mid(firstSlash + 1, lastSlash - firstSlash - 1);
    const QString after = line.mid(lastSlash + 1);
    QString pattern = QStringLiteral("^");
    if (!before.isEmpty())
        pattern += quoted(before);
    pattern += middle;
    if (!after.isEmpty())
        pattern += quoted(after);
    return pattern + QLatin1Char('$');
}

QString globToPattern(const QString &p)
{
    const QLatin1Char star('*');
    const qsizetype n = p.size();
    if (p == QLatin1String("*"))
        return QStringLiteral("^.*$");
    if (p == QLatin1String("*.*"))
        return QStringLiteral("^.+\\.[^\\.]+$");
    if (n >= 3 && p.startsWith(star) && p.endsWith(star))
        return quoted(p.mid(1, n - 2));
    if (n >= 2 && p.startsWith(star))
        return quoted(p.mid(1)) + QLatin1Char('$');
    if (n >= 4 && p.endsWith(QLatin1String("*.*")))
        return QLatin1Char('^') + quoted(p.left(n - 3)) + QStringLiteral(".*\\.[^\\.]+$");
    if (n >= 2 && p.endsWith(star))
        return QLatin1Char('^') + quoted(p.left(n - 1));
    const qsizetype firstStar = p.indexOf(star);
    if (firstStar > 0) {
        // Only the first star is a wildcard; later ones stay literal.
        return QLatin1Char('^') + quoted(p.left(firstStar)) + QStringLiteral(".*") +
               quoted(p.mid(firstStar + 1)) + QLatin1Char('$');
    }
    return QLatin1Char('^') + quoted(p) + QLatin1Char('$');
}

} // namespace

QString skipPatternToRegex(const QString &line)
{
    const qsizetype firstSlash = line.indexOf(QLatin1Char('/'));
    const qsizetype lastSlash = line.lastIndexOf(QLatin1Char('/'));
    if (firstSlash >= 0 && lastSlash > firstSlash)
        return rawRegexToPattern(line, firstSlash, lastSlash);
    return globToPattern(line);
}

std::optional<QList<QRegularExpression>> compileSkipPatterns(const QStringList &lines,
                                                             PatternError *lastError)
{
    QList<QRegularExpression> expressions;
    bool failed = false;
    for (const QString &line : lines) {
        if (line.isEmpty())
            continue;
        QRegularExpression expression(skipPatternToRegex(line),
                                      QRegularExpression::CaseInsensitiveOption |
                                          QRegularExpression::UseUnicodePropertiesOption);
        // Every line is tried so that the reported error is the last one.
        if (!expression.isValid()) {
            failed = true;
            if (lastError)
                *lastError = {expression.pattern(), expression.errorString()};
            continue;
        }
        expressions.append(expression);
    }
    if (failed)
        return std::nullopt;
    return expressions;
}

QString invalidRegexMessage(const QString &pattern)
{
    return QCoreApplication::translate("NamePatterns", "Invalid regular expression:\n%1").arg(pattern);
}

QString commonSuffixToRegex(const QString &piece)
{
    const QString s = piece.toLower();
    QString placeholder;
    qsizetype at = s.indexOf(QLatin1String("##"));
    qsizetype length = 2;
    if (at >= 0) {
        placeholder = QStringLiteral("\\d+");
    } else {
        at = s.indexOf(QLatin1Char('#'));
        length = 1;
        if (at < 0)
            return quoted(s) + QLatin1Char('$');
        placeholder = QStringLiteral("[1-9]\\d?");
    }

    const QString before = s.left(at);
    const QString after = s.mid(at + length);
    QString pattern;
    if (!before.isEmpty())
        pattern += quoted(before);
    pattern += placeholder;
    if (!after.isEmpty())
        pattern += quoted(after);
    return pattern + QLatin1Char('$');
}

QList<QRegularExpression> compileCommonSuffixes(const QString &commaSeparated)
{
    const QString text = commaSeparated.isEmpty() ? QString(kDefaultCommonSuffixes) : commaSeparated;
    QList<QRegularExpression> expressions;
    for (const QString &piece : text.split(QLatin1Char(','))) {
        expressions.append(QRegularExpression(commonSuffixToRegex(piece),
                                              QRegularExpression::UseUnicodePropertiesOption));
    }
    return expressions;
}

QSet<QString> normalizedExtensions(const QString &text)
{
    QSet<QString> extensions;
    QString word;
    for (const QChar c : text) {
        if (c.isSpace()) {
            if (!word.isEmpty())
                extensions.insert(word.toLower());
            word.clear();
        } else if (c != QLatin1Char('.')) {
            word += c;
        }
    }
    if (!word.isEmpty())
        extensions.insert(word.toLower());
    return extensions;
}

QString joinedExtensions(const QSet<QString> &extensions)
{
    QStringList sorted(extensions.begin(), extensions.end());
    std::sort(sorted.begin(), sorted.end());
    return sorted.join(QLatin1Char(' '));
}

} // namespace selfsame
