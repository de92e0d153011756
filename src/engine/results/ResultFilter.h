#pragma once

#include "results/ResultModel.h"

#include <QDateTime>
#include <QString>
#include <QVariantMap>

namespace selfsame
{

// Text operators by tag; adding kNegated (10) gives the negation of each.
enum FilterOperator : int {
    Contains = 0,
    ContainsWholeWord = 1,
    BeginsWith = 2,
    EndsWith = 3,
    Equals = 4,
    ContainsAnyWord = 5,
    ContainsAnyWholeWord = 6,
    MatchesRegex = 7,
    kNegated = 10,
};

// The filter bar's state: a text condition on one key of the items and a date condition.
struct FilterCriteria {
    QString criterionKey = QStringLiteral("URL.path.lastPathComponent");
    int stringOperator = Contains;
    QString text;
    QString dateKey = QStringLiteral("modified");
    int dateOperator = 0;  // 0 newer than, 1 older than
    double dateNumber = 0; // the date condition is off unless above 0
    int dateUnit = 0;      // 0 days, 1 weeks, 2 months, 3 years, other tags seconds
};

// The settings the filter saves after every application (the text and number are not kept).
QVariantMap filterSettings(const FilterCriteria &criteria);
// The criteria those settings restore, with an empty text and no date condition.
FilterCriteria filterCriteriaFromSettings(const QVariantMap &settings);

// True when `needle` occurs in `text` with no letter or digit right before or after it.
bool containsFullWordString(QStringView text, QStringView needle);
// Case and diacritics removed, so that "Résumé" matches "resume".
QString foldedForFilter(const QString &text);

// Moves the items that fail the criteria to the hidden items and those that pass back to the
// top list, always starting again from all items; undoes hiding by automatic selection and
// keeps the selected items that stay visible. Returns the regular expression's error text
// when the text does not compile (the filter still runs), else an empty string.
QString filter(ResultModel &model, const FilterCriteria &criteria,
               const QDateTime &now = QDateTime::currentDateTimeUtc());

} // namespace selfsame
