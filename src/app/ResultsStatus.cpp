#include "ResultsStatus.h"

#include "format/ByteSize.h"
#include "results/Reclaimable.h"

#include <QCoreApplication>

namespace selfsame {

namespace {

QString tr(const char *text, qint64 n = -1)
{
    return QCoreApplication::translate("ResultsStatus", text, nullptr, int(std::min<qint64>(n, INT_MAX)));
}

} // namespace

ResultsStatus resultsStatus(const ResultModel &model, ResultList active, qint64 unreadable)
{
    if (active == ResultList::Bottom && model.cloneItems().isEmpty()) active = ResultList::Top;
    const ReclaimTotals totals = reclaimTotals(model.mainItems());
    QStringList parts{tr("%Ln group(s)", totals.groups), tr("%Ln file(s)", totals.files),
                      tr("%1 reclaimable").arg(formatByteCount(totals.reclaimable))};
    if (const qsizetype hidden = model.mainItemsHidden().size()) parts.append(tr("%Ln hidden", hidden));
    ResultsStatus status;
    if (unreadable > 0) {
        status.unreadable = tr("%Ln unreadable", unreadable);
        parts.append(status.unreadable);
    }
    const auto missing = std::count_if(model.mainItems().begin(), model.mainItems().end(),
                                       [](const ResultItem *item) { return item->has(Missing); });
    if (missing > 0) parts.append(tr("%Ln missing", missing));
    status.text = parts.join(QStringLiteral(" · "));

    const QList<ResultItem *> selected = model.selectedItems(active);
    if (!selected.isEmpty()) {
        qint64 onDisk = 0;
        for (const ResultItem *item : selected)
            onDisk += item->physicalSize;
        const QString selection = active == ResultList::Bottom
                                      ? tr("%Ln duplicate(s) selected (%1 on disk)", selected.size())
                                      : tr("%Ln selected (%1 on disk)", selected.size());
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
    return tr("Group of %Ln file(s) · %1 on disk · %2 reclaimable", group.files)
        .arg(formatByteCount(onDisk), formatByteCount(group.reclaimable));
}

} // namespace selfsame
