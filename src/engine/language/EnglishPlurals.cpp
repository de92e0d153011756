#include "language/EnglishPlurals.h"

namespace selfsame {

QString englishPluralForm(const QString &text, int n)
{
    QString form = text;
    return form.replace(QLatin1String("(s)"), n == 1 ? QString() : QStringLiteral("s"));
}

QString EnglishPlurals::translate(const char *, const char *sourceText, const char *, int n) const
{
    if (n < 0 || !sourceText) return {};
    const QString source = QString::fromUtf8(sourceText);
    if (!source.contains(QLatin1String("(s)"))) return {};
    return englishPluralForm(source, n);
}

} // namespace selfsame
