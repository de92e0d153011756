#pragma once

#include "results/GroupOrder.h"
#include "results/ListSort.h"
#include "results/ResultItem.h"
#include "search/SearchRequest.h"

#include <QList>
#include <QStringList>
#include <optional>

namespace selfsame
{

enum class ResultList { Top, Bottom };

// The results of one search as a results window shows them: the top list of all visible
// items, the bottom list of the duplicates of the one selected top item, the hidden items,
// and the arrays sorted by group key that look-ups search. Items are owned here and shared
// by pointer among the arrays; selections are kept by identity, so they survive re-sorting.
class ResultModel
{
public:
    ResultModel() = default;
    // The arrays point into the model's own items: a copy would point into the original.
    ResultModel(const ResultModel &) = delete;
    ResultModel &operator=(const ResultModel &) = delete;
    ResultModel(ResultModel &&) = default;
    ResultModel &operator=(ResultModel &&) = default;

    // What the search found, with the request that found it.
    void setResults(QList<ResultItem> items, const SearchRequest &request);
    // Results saved from a window, shown as they were: the items at `topRows` (indices into
    // `items`) make the top list in that order, sorted by `topSort`; the others are hidden.
    void restoreResults(QList<ResultItem> items, const SearchRequest &request, const QList<qsizetype> &topRows,
                        std::optional<SortDescriptor> topSort, bool hiddenByAutomaticSelection);
    // Before a new search: no items in either list.
    void reset();
    // Results of a search stopped before its end: true groups, but not every group. Set after
    // setResults or restoreResults, which clear it.
    void setPartial(bool partial) { m_partial = partial; }
    bool partial() const { return m_partial; }

    const SearchRequest &request() const { return m_request; }
    DetectionMode detectionMode() const { return m_request.detectionMode; }
    const QStringList &searchedURLs() const { return m_request.searchInFolderURLs; }

    const QList<ResultItem *> &mainItems() const { return m_mainItems; }
    const QList<ResultItem *> &mainItemsHidden() const { return m_mainItemsHidden; }
    const QList<ResultItem *> &mainItemsSorted() const { return m_mainItemsSorted; }
    const QList<ResultItem *> &mainItemsIncludingHiddenSorted() const
    {
        return m_mainItemsIncludingHiddenSorted;
    }
    const QList<ResultItem *> &cloneItems() const { return m_cloneItems; }
    const QList<ResultItem *> &items(ResultList list) const
    {
        return list == ResultList::Top ? m_mainItems : m_cloneItems;
    }
    // Every item of the search, in the order the search delivered them. The arrays point
    // into this list: change items through it, never copy it and change the copy.
    QList<ResultItem> &allItems() { return m_storage; }

    // Rebuilds the two arrays sorted by group key after items moved between visible and hidden.
    void sortMainItemsIncludingHidden();
    // The item's group, hidden members included, in group-key order; empty when none.
    QList<ResultItem *> duplicatesFor(const ResultItem &item) const;
    // Rebuilds the bottom list for the top selection, with every row's "clone" status, and
    // selects its first row.
    void updateCloneList();
    // What the bottom list's similarity column shows: how alike `item` is to the one item
    // selected in the top list, 0–100 (100 for that item itself); NaN outside the similar
    // modes or without a single selection. Members of a group are each like the group's first
    // item, not necessarily like one another, so this is measured afresh.
    double similarityToSelection(const ResultItem &item) const;

    // Sorting by a clicked column (nullopt: unsorted), and re-sorting with the current one.
    void setSortDescriptor(ResultList list, std::optional<SortDescriptor> descriptor);
    std::optional<SortDescriptor> sortDescriptor(ResultList list) const { return m_sort[index(list)]; }
    void sortDescriptorsDidChange(ResultList list);
    // The top list is sorted by the group column or "dupes": rows are coloured by group.
    bool showGroups() const { return m_showGroups; }

    // Replaces a list's selection (items not in the list are ignored). A new top selection
    // rebuilds the bottom list.
    void select(ResultList list, const QList<ResultItem *> &items);
    // The selected items in row order.
    QList<ResultItem *> selectedItems(ResultList list) const;
    QList<qsizetype> selectedRows(ResultList list) const;
    // Selects the first visible item of that path alone; false (and no change) when there is none.
    bool selectAndRevealInTopList(const QString &path);

    // Hiding: the filter and the automatic selection move items out of the top list.
    bool hiddenBecauseOfAutomaticallySelect() const { return m_hiddenBecauseOfAutomaticallySelect; }
    bool hasHiddenArray() const { return m_hiddenArrayExists; }
    // Every hidden item back at the end of the top list; the hidden array stays, empty.
    void showAllHidden();
    // The top list becomes `visible`; `hidden` are appended to the hidden items.
    void hide(QList<ResultItem *> visible, const QList<ResultItem *> &hidden, bool byAutomaticSelection);
    // Shows the hidden items again, keeping the top selection. The look-up array is rebuilt
    // while the hidden array still exists, so it holds those items twice until its next rebuild.
    void automaticallySelectUnhide();
    bool canAutomaticallySelect() const { return m_mainItems.size() > 1 || m_mainItemsHidden.size() >= 2; }
    bool canUnhide() const { return m_mainItemsHidden.size() >= 2; }

private:
    static int index(ResultList list) { return list == ResultList::Top ? 0 : 1; }
    void updateShowGroups();
    void sortBySimilarityToSelection(QList<ResultItem *> &items, bool ascending) const;
    void updateAlternateColors();

    SearchRequest m_request;
    std::optional<GroupOrder> m_groupOrder;
    QList<ResultItem> m_storage;
    QList<ResultItem *> m_mainItems;
    QList<ResultItem *> m_mainItemsHidden;
    bool m_hiddenArrayExists = false;
    bool m_hiddenBecauseOfAutomaticallySelect = false;
    bool m_partial = false;
    QList<ResultItem *> m_mainItemsSorted;
    QList<ResultItem *> m_mainItemsIncludingHiddenSorted;
    QList<ResultItem *> m_cloneItems;
    std::optional<SortDescriptor> m_sort[2];
    QList<ResultItem *> m_selected[2];
    bool m_showGroups = false;
};

} // namespace selfsame
