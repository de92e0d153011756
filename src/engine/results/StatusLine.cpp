#include "results/StatusLine.h"

#include "format/ByteSize.h"
#include "format/Formatters.h"

#include <QCoreApplication>

namespace selfsame
{

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("Dupes", text);
}

} // namespace

StatusLine statusLine(const ResultModel &model, ResultList active)
{
    if (active == ResultList::Bottom && model.cloneItems().isEmpty()) active = ResultList::Top;
    const QString noun = active == ResultList::Bottom ? tr("duplicate items") : tr("items");
    const qsizetype rows = model.items(active).size();
    const QList<ResultItem *> selected = model.selectedItems(active);
    StatusLine line;
    if (selected.size() > 1) {
        qint64 onDisk = 0;
        for (const ResultItem *item : selected)
            onDisk += item->physicalSize;
        line.text = tr("%1 %2 selected out of %3 (%4 on disk)")
                        .arg(formatCount(selected.size()), noun, formatCount(rows), formatByteCount(onDisk));
    } else if (selected.size() == 1) {
        line.path = selected.first()->path;
        line.text = tr("%1 %2").arg(formatCount(rows), noun);
    } else if (!model.mainItemsHidden().isEmpty()) {
        line.text = tr("%1 %2 (%3 hidden)").arg(formatCount(rows), noun, formatCount(model.mainItemsHidden().size()));
    } else {
        line.text = tr("%1 %2").arg(formatCount(rows), noun);
    }
    return line;
}

} // namespace selfsame
