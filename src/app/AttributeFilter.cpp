#include "AttributeFilter.h"

#include "attributes/SpotlightAttributesManager.h"

#include <algorithm>

namespace selfsame {

namespace {

QString folded(const QString &text)
{
    QString plain;
    const QString decomposed = text.normalized(QString::NormalizationForm_D);
    plain.reserve(decomposed.size());
    for (const QChar c : decomposed) {
        if (c.category() != QChar::Mark_NonSpacing)
            plain.append(c);
    }
    return plain.toCaseFolded();
}

bool rowBefore(const AttributeRow &a, const AttributeRow &b)
{
    const bool aNamed = !a.record.name.isEmpty();
    const bool bNamed = !b.record.name.isEmpty();
    if (aNamed != bNamed)
        return aNamed;
    if (const int byName = a.record.name.compare(b.record.name, Qt::CaseInsensitive))
        return byName < 0;
    return a.key.compare(b.key, Qt::CaseInsensitive) < 0;
}

} // namespace

bool foldedContains(const QString &text, const QString &part)
{
    return folded(text).contains(folded(part));
}

QList<AttributeRow> filterAttributes(const QString &searchText, bool showKeys)
{
    QStringList candidates;
    for (const QString &word : searchText.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (const auto records =
                SpotlightAttributesManager::GetSpotlightAttributesForFilenameExtension(word, !showKeys))
            candidates += records->keys();
    }
    const auto catalogue = SpotlightAttributesManager::GetAllSpotlightAttributes();
    // Extensions list their attributes as they are; any other text searches the catalogue.
    const bool byText = candidates.isEmpty();
    if (byText)
        candidates = catalogue->keys();
    candidates.removeDuplicates();

    QList<AttributeRow> rows;
    for (const QString &key : candidates) {
        const AttributeRecord record = catalogue->value(key);
        if (!showKeys && record.name.isEmpty())
            continue;
        if (byText && !searchText.isEmpty() && !(showKeys && foldedContains(key, searchText)) &&
            !foldedContains(record.name, searchText) && !foldedContains(record.description, searchText))
            continue;
        rows.append({key, record});
    }
    std::sort(rows.begin(), rows.end(), rowBefore);
    return rows;
}

} // namespace selfsame
