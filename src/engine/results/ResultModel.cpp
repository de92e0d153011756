#include "results/ResultModel.h"

#include "results/CloneStatusPass.h"
#include "results/PathPrefix.h"
#include "similar/Similarity.h"

#include <QSet>

#include <algorithm>
#include <cmath>
#include <limits>
#include <vector>

namespace selfsame
{

namespace
{

bool isKnownMode(DetectionMode mode)
{
    return int(mode) >= 0 && int(mode) <= int(kLastDetectionMode);
}

// The top list's order right after a search: the mode's key, largest first.
SortDescriptor defaultTopSort(DetectionMode mode)
{
    switch (mode) {
    case DetectionMode::Duration:
        return {QStringLiteral("duration"), false};
    case DetectionMode::FileName:
        return {QStringLiteral("dupes"), false};
    case DetectionMode::Attribute:
        return {QStringLiteral("spotlight"), false};
    case DetectionMode::SimilarImages:
    case DetectionMode::SimilarAudio:
        // Likeness has no order across groups: the biggest groups first, each from its first item.
        return {QStringLiteral("dupes"), false};
    case DetectionMode::Content:
        break;
    }
    return {QStringLiteral("size"), false};
}

// The members of `wanted` that appear in `list`, in the list's order.
QList<ResultItem *> inListOrder(const QList<ResultItem *> &list, const QList<ResultItem *> &wanted)
{
    if (wanted.isEmpty()) return {};
    const QSet<ResultItem *> set(wanted.begin(), wanted.end());
    QList<ResultItem *> ordered;
    for (ResultItem *item : list)
        if (set.contains(item)) ordered.append(item);
    return ordered;
}

} // namespace

void ResultModel::setResults(QList<ResultItem> items, const SearchRequest &request)
{
    reset();
    m_request = request;
    m_groupOrder.emplace(m_request);
    m_storage = std::move(items);
    m_storage.detach(); // shared with the caller until now; the arrays must point into our own
    removeCommonPathPrefix(m_request.searchInFolderURLs, m_storage);
    m_mainItems.reserve(m_storage.size());
    for (ResultItem &item : m_storage)
        m_mainItems.append(&item);
    sortMainItemsIncludingHidden();
    m_sort[index(ResultList::Top)] = defaultTopSort(m_request.detectionMode);
    sortDescriptorsDidChange(ResultList::Top);
}

void ResultModel::restoreResults(QList<ResultItem> items, const SearchRequest &request,
                                 const QList<qsizetype> &topRows, std::optional<SortDescriptor> topSort,
                                 bool hiddenByAutomaticSelection)
{
    setResults(std::move(items), request);
    QList<bool> shown(m_storage.size(), false);
    m_mainItems.clear();
    for (qsizetype row : topRows) {
        m_mainItems.append(&m_storage[row]);
        shown[row] = true;
    }
    for (qsizetype i = 0; i < m_storage.size(); ++i)
        if (!shown[i]) m_mainItemsHidden.append(&m_storage[i]);
    m_hiddenArrayExists = !m_mainItemsHidden.isEmpty();
    m_hiddenBecauseOfAutomaticallySelect = m_hiddenArrayExists && hiddenByAutomaticSelection;
    sortMainItemsIncludingHidden();
    // The rows keep their saved order: a list shown unsorted after "Show All" would not
    // come back the same from a new sort.
    m_sort[index(ResultList::Top)] = std::move(topSort);
    updateShowGroups();
}

void ResultModel::reset()
{
    m_mainItems.clear();
    m_cloneItems.clear();
    m_mainItemsHidden.clear();
    m_hiddenArrayExists = false;
    m_hiddenBecauseOfAutomaticallySelect = false;
    m_partial = false;
    m_mainItemsSorted.clear();
    m_mainItemsIncludingHiddenSorted.clear();
    m_selected[0].clear();
    m_selected[1].clear();
    m_storage.clear();
}

void ResultModel::sortMainItemsIncludingHidden()
{
    m_mainItemsIncludingHiddenSorted = m_mainItems + m_mainItemsHidden;
    if (!m_groupOrder || !m_groupOrder->isOrdered()) return;
    m_mainItemsSorted = m_mainItems;
    m_groupOrder->sort(m_mainItemsSorted);
    m_groupOrder->sort(m_mainItemsIncludingHiddenSorted);
}

QList<ResultItem *> ResultModel::duplicatesFor(const ResultItem &item) const
{
    if (!m_groupOrder) return {};
    return m_groupOrder->duplicatesFor(m_mainItemsIncludingHiddenSorted, item);
}

void ResultModel::updateCloneList()
{
    m_cloneItems.clear();
    const QList<ResultItem *> &selected = m_selected[index(ResultList::Top)];
    if (selected.size() == 1) {
        ResultItem &chosen = *selected.first();
        const QList<ResultItem *> duplicates = duplicatesFor(chosen);
        CloneStatusPass pass(detectionMode(), m_request.ignoreMp4Header);
        for (ResultItem *item : duplicates)
            item->clone = pass.statusOf(chosen, *item);
        m_cloneItems = duplicates;
    }
    m_selected[index(ResultList::Bottom)].clear();
    sortDescriptorsDidChange(ResultList::Bottom);
    if (!m_cloneItems.isEmpty()) m_selected[index(ResultList::Bottom)] = {m_cloneItems.first()};
}

double ResultModel::similarityToSelection(const ResultItem &item) const
{
    const QList<ResultItem *> &selected = m_selected[index(ResultList::Top)];
    if (!isSimilarityMode(detectionMode()) || selected.size() != 1) return std::numeric_limits<double>::quiet_NaN();
    if (selected.first() == &item) return 100.0;
    return similarityOf(detectionMode(), *selected.first(), item);
}

void ResultModel::setSortDescriptor(ResultList list, std::optional<SortDescriptor> descriptor)
{
    m_sort[index(list)] = std::move(descriptor);
    sortDescriptorsDidChange(list);
}

void ResultModel::sortDescriptorsDidChange(ResultList list)
{
    QList<ResultItem *> &items = list == ResultList::Top ? m_mainItems : m_cloneItems;
    const std::optional<SortDescriptor> &clicked = m_sort[index(list)];
    if (clicked && list == ResultList::Bottom && clicked->key == QLatin1String("similarity"))
        sortBySimilarityToSelection(items, clicked->ascending);
    else if (clicked)
        sortItems(items, *clicked, detectionMode());
    if (list == ResultList::Top) updateShowGroups();
    m_selected[index(list)] = inListOrder(items, m_selected[index(list)]);
}

void ResultModel::sortBySimilarityToSelection(QList<ResultItem *> &items, bool ascending) const
{
    // The bottom list shows each row's likeness to the selection, not to the group's first
    // item: it sorts by what it shows. The selected item itself counts as more alike than any
    // copy, and items without a value go last either way.
    const QList<ResultItem *> &selected = m_selected[index(ResultList::Top)];
    const ResultItem *itself = selected.size() == 1 ? selected.first() : nullptr;
    std::vector<std::pair<double, ResultItem *>> keyed;
    keyed.reserve(std::size_t(items.size()));
    for (ResultItem *item : items)
        keyed.emplace_back(item == itself ? std::numeric_limits<double>::infinity() : similarityToSelection(*item), item);
    std::stable_sort(keyed.begin(), keyed.end(), [ascending](const auto &a, const auto &b) {
        if (std::isnan(a.first) || std::isnan(b.first)) return !std::isnan(a.first) && std::isnan(b.first);
        return ascending ? a.first < b.first : a.first > b.first;
    });
    for (std::size_t i = 0; i < keyed.size(); ++i)
        items[qsizetype(i)] = keyed[i].second;
}

void ResultModel::updateShowGroups()
{
    if (!isKnownMode(detectionMode())) return;
    const std::optional<SortDescriptor> &clicked = m_sort[index(ResultList::Top)];
    const QString key = clicked ? clicked->key : QString();
    m_showGroups = key == groupColumnKey(detectionMode()) || key == QLatin1String("dupes");
    if (m_showGroups) updateAlternateColors();
}

void ResultModel::updateAlternateColors()
{
    bool alternate = true;
    int previousGroup = -1;
    for (ResultItem *item : m_mainItems) {
        if (item->group != previousGroup) {
            alternate = !alternate;
            previousGroup = item->group;
        }
        item->set(AlternateColor, alternate);
    }
}

void ResultModel::select(ResultList list, const QList<ResultItem *> &items)
{
    m_selected[index(list)] = inListOrder(this->items(list), items);
    if (list == ResultList::Top) updateCloneList();
}

QList<ResultItem *> ResultModel::selectedItems(ResultList list) const
{
    return m_selected[index(list)];
}

QList<qsizetype> ResultModel::selectedRows(ResultList list) const
{
    const QList<ResultItem *> &selected = m_selected[index(list)];
    const QSet<const ResultItem *> set(selected.begin(), selected.end());
    QList<qsizetype> rows;
    const QList<ResultItem *> &all = items(list);
    for (qsizetype row = 0; row < all.size() && rows.size() < selected.size(); ++row)
        if (set.contains(all[row])) rows.append(row);
    return rows;
}

bool ResultModel::selectAndRevealInTopList(const QString &path)
{
    for (ResultItem *item : m_mainItems)
        if (item->path == path) {
            select(ResultList::Top, {item});
            return true;
        }
    return false;
}

void ResultModel::showAllHidden()
{
    m_hiddenBecauseOfAutomaticallySelect = false;
    m_mainItems.append(m_mainItemsHidden);
    m_mainItemsHidden.clear();
    m_hiddenArrayExists = true;
}

void ResultModel::hide(QList<ResultItem *> visible, const QList<ResultItem *> &hidden,
                       bool byAutomaticSelection)
{
    m_mainItems = std::move(visible);
    m_mainItemsHidden.append(hidden);
    m_hiddenArrayExists = true;
    m_hiddenBecauseOfAutomaticallySelect = byAutomaticSelection;
    sortMainItemsIncludingHidden();
    m_selected[index(ResultList::Top)] = inListOrder(m_mainItems, m_selected[index(ResultList::Top)]);
}

void ResultModel::automaticallySelectUnhide()
{
    const QList<ResultItem *> remembered = selectedItems(ResultList::Top);
    m_mainItems.append(m_mainItemsHidden);
    sortMainItemsIncludingHidden();
    m_mainItemsHidden.clear();
    m_hiddenArrayExists = false;
    sortDescriptorsDidChange(ResultList::Top);
    select(ResultList::Top, remembered);
}

} // namespace selfsame
