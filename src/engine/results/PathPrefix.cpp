#include "results/PathPrefix.h"

#include <algorithm>

namespace selfsame {

namespace {

// Path components as the platform counts them: "/" first for an absolute path.
QStringList components(const QString &path)
{
    QStringList parts = path.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    if (path.startsWith(QLatin1Char('/')))
        parts.prepend(QStringLiteral("/"));
    return parts;
}

} // namespace

QString commonPathPrefix(const QStringList &searchedPaths)
{
    if (searchedPaths.isEmpty())
        return {};
    QStringList sorted = searchedPaths;
    std::sort(sorted.begin(), sorted.end());
    const QStringList first = components(sorted.first());
    const QStringList last = components(sorted.last());
    QStringList common;
    for (qsizetype i = 0; i < std::min(first.size(), last.size()); ++i)
        if (first[i] == last[i])
            common.append(first[i]);
    if (common.size() <= 1)
        return {}; // "/" alone is never removed
    QString prefix = common.join(QLatin1Char('/'));
    if (prefix.startsWith(QLatin1String("//")))
        prefix.remove(0, 1);
    return prefix;
}

void removeCommonPathPrefix(const QStringList &searchedPaths, QList<ResultItem> &items)
{
    const QString prefix = commonPathPrefix(searchedPaths);
    for (ResultItem &item : items) {
        if (prefix.isEmpty()) {
            item.parentPathStart = 0;
            continue;
        }
        // The prefix is cut by its length alone, whether or not the folder begins with it.
        qsizetype start = prefix.size();
        if (start < item.path.size() && item.path[start] == QLatin1Char('/'))
            ++start;
        item.parentPathStart = quint16(std::min<qsizetype>(start, item.path.size()));
    }
}

} // namespace selfsame
