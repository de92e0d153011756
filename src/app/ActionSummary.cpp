#include "ActionSummary.h"

#include "format/ByteSize.h"

#include <QCoreApplication>
#include <QHash>

namespace selfsame {

namespace {

struct ActionSummaryText {
    Q_DECLARE_TR_FUNCTIONS(ActionSummary)
};

int count(qsizetype n)
{
    return int(std::min<qsizetype>(n, std::numeric_limits<int>::max()));
}

} // namespace

QString deleteSummary(const QList<DeleteOutcome> &outcomes)
{
    // An item may appear twice (moved, then deleted after a failed move): its last word counts.
    QHash<const ResultItem *, QString> last;
    QList<const ResultItem *> order;
    for (const DeleteOutcome &outcome : outcomes) {
        if (outcome.status.isEmpty() || outcome.skipped) continue;
        if (!last.contains(outcome.item)) order.append(outcome.item);
        last.insert(outcome.item, outcome.status);
    }
    qint64 trashedBytes = 0, freedBytes = 0;
    qsizetype trashed = 0, deleted = 0, replaced = 0;
    for (const ResultItem *item : std::as_const(order)) {
        const QString &status = last.value(item);
        if (status == QLatin1String("trashed")) {
            ++trashed;
            trashedBytes += item->physicalSize;
        } else {
            (status == QLatin1String("deleted") ? deleted : replaced) += 1;
            // A replacement shares the kept file's storage (a clone or hard link) or takes next
            // to none (a link), so the duplicate's storage is what comes free.
            freedBytes += item->physicalSize;
        }
    }
    QStringList parts;
    if (trashed > 0)
        parts.append(
            ActionSummaryText::tr("Moved %Ln file(s) to the Trash (%1 is freed when the Trash is emptied)",
                                  nullptr, count(trashed))
                .arg(formatByteCount(trashedBytes)));
    if (deleted > 0) parts.append(ActionSummaryText::tr("Deleted %Ln file(s)", nullptr, count(deleted)));
    if (replaced > 0)
        parts.append(
            ActionSummaryText::tr("Replaced %Ln file(s) by links or clones", nullptr, count(replaced)));
    if (parts.isEmpty()) return {};
    QString line = parts.join(QStringLiteral("; "));
    if (freedBytes > 0) line += ActionSummaryText::tr(" — %1 freed").arg(formatByteCount(freedBytes));
    return line + QLatin1Char('.');
}

QString putBackSummary(const QList<ResultItem *> &putBack)
{
    if (putBack.isEmpty()) return {};
    return ActionSummaryText::tr("Put back %Ln file(s) from the Trash.", nullptr, count(putBack.size()));
}

QString cloneSummary(const QList<ResultItem *> &cloned)
{
    if (cloned.isEmpty()) return {};
    qint64 freed = 0;
    for (const ResultItem *item : cloned)
        freed += item->physicalSize;
    return ActionSummaryText::tr("Replaced %Ln file(s) by clones — %1 freed.", nullptr, count(cloned.size()))
        .arg(formatByteCount(freed));
}

QString actedOnStatus(const QString &statusImage)
{
    static const QHash<QString, const char *> words{
        {QStringLiteral("trashed"), QT_TRANSLATE_NOOP("ActionSummary", "in Trash")},
        {QStringLiteral("deleted"), QT_TRANSLATE_NOOP("ActionSummary", "deleted")},
        {QStringLiteral("aliased"), QT_TRANSLATE_NOOP("ActionSummary", "replaced by link")},
        {QStringLiteral("hard linked"), QT_TRANSLATE_NOOP("ActionSummary", "replaced by hard link")},
        {QStringLiteral("cloned"), QT_TRANSLATE_NOOP("ActionSummary", "replaced by clone")},
    };
    const char *word = words.value(statusImage);
    return word ? ActionSummaryText::tr(word) : QString();
}

} // namespace selfsame
