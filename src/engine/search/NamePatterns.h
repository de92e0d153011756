#pragma once

#include <QLatin1String>
#include <QList>
#include <QRegularExpression>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

namespace selfsame {

// Suffix templates used when the user leaves the field empty. The leading blanks belong
// to the suffixes; "#" stands for a number from 1 to 99, "##" for any number.
inline constexpr QLatin1String kDefaultCommonSuffixes(" copy, copy #, #,-#, (#)");

// The regular expression for one skip line: "/regex/" with optional literal text before
// and after the slashes, else a glob with at most one significant "*".
QString skipPatternToRegex(const QString &line);

struct PatternError {
    QString pattern; // the generated expression, not the line as typed
    QString message;
};

// Compiles every non-empty line, case-insensitively. When any fails, returns nullopt and
// reports the last failure in *lastError (which may be null).
std::optional<QList<QRegularExpression>> compileSkipPatterns(const QStringList &lines,
                                                             PatternError *lastError);

// The title of the alert shown for a skip pattern that does not compile.
QString invalidRegexMessage(const QString &pattern);

// The expression for one suffix template, matched at the end of a lower-cased name. The
// template is lower-cased but not trimmed.
QString commonSuffixToRegex(const QString &piece);

// One case-sensitive expression per comma-separated template. An empty text stands for
// kDefaultCommonSuffixes.
QList<QRegularExpression> compileCommonSuffixes(const QString &commaSeparated);

// Extensions as typed: dots removed, lower case, separated by white space only.
QSet<QString> normalizedExtensions(const QString &text);

// The extensions sorted and joined with one blank, as shown back in the field.
QString joinedExtensions(const QSet<QString> &extensions);

} // namespace selfsame
