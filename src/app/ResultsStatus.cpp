#include "ResultsStatus.h"

#include "format/ByteSize.h"
#include "results/Reclaimable.h"

#include <QCoreApplication>

#include <algorithm>

namespace selfsame {

namespace {

struct ResultsStatusText {
    Q_DECLARE_TR_FUNCTIONS(ResultsStatus)
};

// Counts beyond what a translation's number takes are shown as the largest it does.
int count(qint64 n)
{
    return int(std::min<qint64>(n, INT_MAX));
}

} // namespace

ResultsStatus resultsStatus(const ResultModel &model, ResultList active, qint64 unreadable)
{
    if (active == ResultList::Bottom && model.cloneItems().isEmpty()) active = ResultList::Top;
    const ReclaimTotals totals = reclaimTotals(model.mainItems());
    QStringList parts{ResultsStatusText::tr("%Ln group(s)", nullptr, count(totals.groups)),
                      ResultsStatusText::tr("%Ln file(s)", nullptr, count(totals.files)),
                      ResultsStatusText::tr("%1 reclaimable").arg(formatByteCount(totals.reclaimable))};
    if (const qsizetype hidden = model.mainItemsHidden().size())
        parts.append(ResultsStatusText::tr("%Ln hidden", nullptr, count(hidden)));
    ResultsStatus status;
    if (unreadable > 0) {
        status.unreadable = ResultsStatusText::tr("%Ln unreadable", nullptr, count(unreadable));
        parts.append(status.unreadable);
    }
    const auto missing = std::count_if(model.mainItems().begin(), model.mainItems().end(),
                                       [](const ResultItem *item) { return item->has(Missing); });
    if (missing > 0) parts.append(ResultsStatusText::tr("%Ln missing", nullptr, count(missing)));
    status.text = parts.join(QStringLiteral(" · "));
    if (model.partial())
        status.text = ResultsStatusText::tr("Partial results: the search was stopped. %1").arg(status.text);

    const QList<ResultItem *> selected = model.selectedItems(active);
    if (!selected.isEmpty()) {
        qint64 onDisk = 0;
        for (const ResultItem *item : selected)
            onDisk += item->physicalSize;
        const QString selection =
            active == ResultList::Bottom
                ? ResultsStatusText::tr("%Ln duplicate(s) selected (%1 on disk)", nullptr,
                                        count(selected.size()))
                : ResultsStatusText::tr("%Ln selected (%1 on disk)", nullptr, count(selected.size()));
        status.text += QStringLiteral(" — ") + selection.arg(formatByteCount(onDisk));
    }
    if (selected.size() == 1) status.path = selected.first()->path;
    return status;
}

QString groupCaption(const QList<ResultItem *> &members)
{
    if (members.isEmpty()) return {};
    const ReclaimTotals group = reclaimTotals(members);
    qint64 onDisk = 0;
    for (const ResultItem *member : members)
        onDisk += isActedOn(*member) ? 0 : member->physicalSize;
    const auto contained = std::find_if(members.begin(), members.end(),
                                        [](const ResultItem *m) { return m->has(ContainedFolder); });
    const auto container = std::find_if(members.begin(), members.end(),
                                        [](const ResultItem *m) { return m->has(ContainingFolder); });
    if (contained != members.end() && container != members.end())
        return ResultsStatusText::tr("“%1” has copies of all its files in “%2” · %3 reclaimable")
            .arg((*contained)->name(), (*container)->path, formatByteCount(group.reclaimable));
    return ResultsStatusText::tr("Group of %Ln file(s) · %1 on disk · %2 reclaimable", nullptr,
                                 count(group.files))
        .arg(formatByteCount(onDisk), formatByteCount(group.reclaimable));
}

} // namespace selfsame
