#include "results/ResultFilter.h"

#include "results/ItemKeys.h"

#include <QRegularExpression>
#include <optional>

namespace selfsame
{

namespace
{

const char kCriterion[] = "filterStringCriterion";
const char kOperator[] = "filterStringOperator";
const char kDateType[] = "filterDateType";
const char kDateOperator[] = "filterDateOperator";
const char kDateUnit[] = "filterDateUnit";

double secondsPerUnit(int unit)
{
    switch (unit) {
    case 0:
        return 86'400;
    case 1:
        return 604'800;
    case 2:
        return 2'629'800; // 30.4375 days
    case 3:
        return 31'557'600; // 365.25 days
    default:
        return 1;
    }
}

bool isWordCharacter(QChar c)
{
    return c.isLetterOrNumber();
}

// The text condition, compiled once for all items.
class TextCondition
{
public:
    explicit TextCondition(const FilterCriteria &criteria)
        : m_key(criteria.criterionKey), m_operator(criteria.stringOperator)
    {
        const bool tagRule = m_key == QLatin1String("tagList") && m_operator == Equals + kNegated;
        m_active = !criteria.text.isEmpty() || tagRule;
        if (isRegex()) {
            if (criteria.text.isEmpty()) return;
            QRegularExpression regex(criteria.text, QRegularExpression::CaseInsensitiveOption |
                                                        QRegularExpression::UseUnicodePropertiesOption);
            if (regex.isValid())
                m_regex = regex;
            else
                m_error = regex.errorString();
            return;
        }
        m_text = foldedForFilter(criteria.text);
        if (base() == ContainsAnyWord || base() == ContainsAnyWholeWord) {
            static const QRegularExpression separators(QStringLiteral("[^\\p{L}\\p{N}]+"));
            m_words = m_text.split(separators, Qt::SkipEmptyParts);
        }
    }

    const QString &error() const { return m_error; }

    bool passes(const ResultItem &item) const
    {
        if (!m_active) return true;
        const QVariant value = itemValue(item, m_key);
        QStringList values;
        if (value.typeId() == QMetaType::QString)
            values = {value.toString()};
        else if (value.typeId() == QMetaType::QStringList)
            values = value.toStringList();
        const bool negated = m_operator >= kNegated;
        for (QString v : values) {
            if (m_key == QLatin1String("tagList"))
                v.truncate(v.indexOf(QLatin1Char('\n')) < 0 ? v.size() : v.indexOf(QLatin1Char('\n')));
            const std::optional<bool> result = test(isRegex() ? v : foldedForFilter(v));
            if (!result) {
                if (negated) return true;
                continue;
            }
            if (*result != negated) return true;
        }
        return false;
    }

private:
    int base() const { return m_operator >= kNegated ? m_operator - kNegated : m_operator; }
    bool isRegex() const { return base() == MatchesRegex; }

    std::optional<bool> test(const QString &v) const
    {
        switch (base()) {
        case Contains:
            return v.contains(m_text);
        case ContainsWholeWord:
            return containsFullWordString(v, m_text);
        case BeginsWith:
            return v.startsWith(m_text);
        case EndsWith:
            return v.endsWith(m_text);
        case Equals:
            return v == m_text;
        case ContainsAnyWord:
            return std::any_of(m_words.begin(), m_words.end(),
                               [&](const QString &w) { return v.contains(w); });
        case ContainsAnyWholeWord:
            return std::any_of(m_words.begin(), m_words.end(),
                               [&](const QString &w) { return containsFullWordString(v, w); });
        case MatchesRegex:
            if (!m_regex) return std::nullopt;
            return m_regex->match(v).hasMatch();
        }
        return false;
    }

    QString m_key;
    int m_operator;
    bool m_active = false;
    QString m_text;
    QStringList m_words;
    std::optional<QRegularExpression> m_regex;
    QString m_error;
};

} // namespace

QVariantMap filterSettings(const FilterCriteria &criteria)
{
    return {{QLatin1String(kCriterion), criteria.criterionKey},
            {QLatin1String(kOperator), criteria.stringOperator},
            {QLatin1String(kDateType), criteria.dateKey},
            {QLatin1String(kDateOperator), criteria.dateOperator},
            {QLatin1String(kDateUnit), criteria.dateUnit}};
}

FilterCriteria filterCriteriaFromSettings(const QVariantMap &settings)
{
    FilterCriteria criteria;
    criteria.criterionKey = settings.value(QLatin1String(kCriterion), criteria.criterionKey).toString();
    criteria.stringOperator = settings.value(QLatin1String(kOperator), criteria.stringOperator).toInt();
    criteria.dateKey = settings.value(QLatin1String(kDateType), criteria.dateKey).toString();
    criteria.dateOperator = settings.value(QLatin1String(kDateOperator), criteria.dateOperator).toInt();
    criteria.dateUnit = settings.value(QLatin1String(kDateUnit), criteria.dateUnit).toInt();
    return criteria;
}

bool containsFullWordString(QStringView text, QStringView needle)
{
    for (qsizetype from = 0;;) {
        const qsizetype at = text.indexOf(needle, from);
        if (at < 0) return false;
        const qsizetype end = at + needle.size();
        const bool delimitedBefore = at == 0 || !isWordCharacter(text[at - 1]);
        const bool delimitedAfter = end >= text.size() || !isWordCharacter(text[end]);
        if (delimitedBefore && delimitedAfter) return true;
        from = at + 1;
        if (from > text.size()) return false;
    }
}

QString foldedForFilter(const QString &text)
{
    const QString decomposed = text.normalized(QString::NormalizationForm_KD);
    QString folded;
    folded.reserve(decomposed.size());
    for (QChar c : decomposed)
        if (c.category() != QChar::Mark_NonSpacing && c.category() != QChar::Mark_Enclosing) folded.append(c);
    return folded.toCaseFolded();
}

QString filter(ResultModel &model, const FilterCriteria &criteria, const QDateTime &now)
{
    const QList<ResultItem *> remembered = model.selectedItems(ResultList::Top);
    model.showAllHidden();
    const TextCondition text(criteria);
    const bool dateActive = criteria.dateNumber > 0;
    const QDateTime threshold =
        now.addMSecs(-qint64(criteria.dateNumber * secondsPerUnit(criteria.dateUnit) * 1000.0));

    QList<ResultItem *> visible, hidden;
    for (ResultItem *item : model.mainItems()) {
        bool passes = text.passes(*item);
        if (passes && dateActive) {
            const QVariant date = itemValue(*item, criteria.dateKey);
            passes = date.typeId() == QMetaType::QDateTime &&
                     (date.toDateTime() > threshold) != (criteria.dateOperator == 1);
        }
        (passes ? visible : hidden).append(item);
    }
    model.hide(visible, hidden, false);
    model.sortDescriptorsDidChange(ResultList::Top);
    model.select(ResultList::Top, remembered);
    return text.error();
}

} // namespace selfsame
