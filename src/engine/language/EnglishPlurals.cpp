#include "language/EnglishPlurals.h"

#include <QRegularExpression>

namespace selfsame {

QString englishPluralForm(const QString &text, int n)
{
    static const QRegularExpression choice(QStringLiteral(R"(\(([^()|]*)\|([^()|]*)\))"));
    QString form = text;
    form.replace(QLatin1String("(s)"), n == 1 ? QString() : QStringLiteral("s"));
    return form.replace(choice, n == 1 ? QStringLiteral("\\1") : QStringLiteral("\\2"));
}

QString EnglishPlurals::translate(const char *, const char *sourceText, const char *, int n) const
{
    if (n < 0 || !sourceText) return {};
    const QString source = QString::fromUtf8(sourceText);
    const QString form = englishPluralForm(source, n);
    return form == source ? QString() : form;
}

} // namespace selfsame
