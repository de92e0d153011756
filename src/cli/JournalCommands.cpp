#include "JournalCommands.h"

#include "CliPaths.h"
#include "FileActions.h"
#include "journal/Undo.h"

#include <QCoreApplication>
#include <QDateTime>

namespace selfsame::cli
{

namespace
{

QString tr(const char *text)
{
    return QCoreApplication::translate("JournalCommands", text);
}

} // namespace

int runJournalListing(const std::function<void(const QByteArray &)> &out,
                      const std::function<void(const QByteArray &)> &err)
{
    std::optional<Journal> journal;
    if (!openJournal(journal, err)) return 1;
    const QList<JournalBatch> batches = journal->batches();
    if (batches.isEmpty()) {
        err(tr("The operations journal holds no actions.\n").toUtf8());
        return 0;
    }
    out(tr("ACTION  WHEN              FILES  STATE             WHAT\n").toUtf8());
    for (const JournalBatch &batch : batches) {
        const QString when =
            QDateTime::fromSecsSinceEpoch(batch.started).toString(QStringLiteral("yyyy-MM-dd HH:mm"));
        out(QStringLiteral("%1  %2  %3  %4  %5\n")
                .arg(batch.id, 6)
                .arg(when, -16)
                .arg(batch.files, 5)
                .arg(batchState(batch), -16)
                .arg(describeBatch(batch))
                .toUtf8());
    }
    return 0;
}

int runUndo(const QStringList &arguments, const std::function<void(const QByteArray &)> &out,
            const std::function<void(const QByteArray &)> &err)
{
    bool number = arguments.size() == 1;
    const qint64 asked = arguments.size() == 1 ? arguments.first().toLongLong(&number) : 0;
    if (arguments.size() > 1 || (arguments.size() == 1 && (!number || asked <= 0))) {
        err(tr("selfsame-cli: undo takes at most one action number, as `selfsame-cli journal` lists them\n"
               "Usage: selfsame-cli undo [ACTION]\n")
                .toUtf8());
        return 2;
    }
    std::optional<Journal> journal;
    if (!openJournal(journal, err)) return 1;
    std::optional<JournalBatch> batch = asked ? journal->batch(asked) : lastUndoableBatch(*journal);
    if (!batch) {
        err((asked ? tr("selfsame-cli: there is no action %1 in the journal\n").arg(asked)
                   : tr("selfsame-cli: there is no action to undo\n"))
                .toUtf8());
        return 1;
    }
    err(tr("undoing action %1: %2, %3\n")
            .arg(QString::number(batch->id), describeBatch(*batch),
                 batch->files == 1 ? tr("1 file") : tr("%1 files").arg(batch->files))
            .toUtf8());
    const UndoReport report = undoBatch(*journal, batch->id);
    if (!report.error.isEmpty()) {
        err(tr("selfsame-cli: %1\n").arg(report.error).toUtf8());
        return 1;
    }
    for (const QString &path : report.undone)
        out(tr("undone: %1\n").arg(escapedText(path)).toUtf8());
    for (const QString &path : report.deletedForGood)
        err(tr("cannot be undone: %1: it was deleted for good\n").arg(escapedText(path)).toUtf8());
    for (const QString &refusal : report.refused)
        err(tr("refused: %1\n").arg(escapedText(refusal)).toUtf8());
    err(tr("%1 undone, %2 refused, %3 deleted for good\n")
            .arg(report.undone.size())
            .arg(report.refused.size())
            .arg(report.deletedForGood.size())
            .toUtf8());
    return report.refused.isEmpty() ? 0 : 1;
}

} // namespace selfsame::cli
