#include "JournalCommands.h"

#include "CliPaths.h"
#include "CliText.h"
#include "FileActions.h"
#include "journal/Undo.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLocale>

#include <algorithm>

namespace selfsame::cli
{

int runJournalListing(const std::function<void(const QByteArray &)> &out,
                      const std::function<void(const QByteArray &)> &err)
{
    std::optional<Journal> journal;
    if (!openJournal(journal, err)) return 1;
    const QList<JournalBatch> batches = journal->batches();
    if (batches.isEmpty()) {
        err(CliText::tr("The operations journal holds no actions.\n").toUtf8());
        return 0;
    }
    // Columns as wide as their translated headings, dates and states, at least.
    const QString headings[] = {CliText::tr("ACTION"), CliText::tr("WHEN"), CliText::tr("FILES"),
                                CliText::tr("STATE"), CliText::tr("WHAT")};
    const int idWidth = std::max(6, int(headings[0].size())),
              filesWidth = std::max(5, int(headings[2].size()));
    int whenWidth = int(headings[1].size()), stateWidth = std::max(16, int(headings[3].size()));
    // Dates as the session writes them (LC_TIME), like every other date people read.
    QStringList whens;
    for (const JournalBatch &batch : batches) {
        whens << QLocale().toString(QDateTime::fromSecsSinceEpoch(batch.started), QLocale::ShortFormat);
        whenWidth = std::max(whenWidth, int(whens.last().size()));
        stateWidth = std::max(stateWidth, int(batchState(batch).size()));
    }
    const QString line = QStringLiteral("%1  %2  %3  %4  %5\n");
    out(line.arg(headings[0], idWidth)
            .arg(headings[1], -whenWidth)
            .arg(headings[2], filesWidth)
            .arg(headings[3], -stateWidth)
            .arg(headings[4])
            .toUtf8());
    for (qsizetype i = 0; i < batches.size(); ++i) {
        const JournalBatch &batch = batches[i];
        out(line.arg(batch.id, idWidth)
                .arg(whens[i], -whenWidth)
                .arg(batch.files, filesWidth)
                .arg(batchState(batch), -stateWidth)
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
        err(CliText::tr(
                "selfsame-cli: undo takes at most one action number, as `selfsame-cli journal` lists them\n"
                "Usage: selfsame-cli undo [ACTION]\n")
                .toUtf8());
        return 2;
    }
    std::optional<Journal> journal;
    if (!openJournal(journal, err)) return 1;
    std::optional<JournalBatch> batch = asked ? journal->batch(asked) : lastUndoableBatch(*journal);
    if (!batch) {
        err((asked ? CliText::tr("selfsame-cli: there is no action %1 in the journal\n").arg(asked)
                   : CliText::tr("selfsame-cli: there is no action to undo\n"))
                .toUtf8());
        return 1;
    }
    err(CliText::tr("undoing action %1: %2, %3\n")
            .arg(QString::number(batch->id), describeBatch(*batch),
                 CliText::tr("%Ln file(s)", nullptr, int(batch->files)))
            .toUtf8());
    const UndoReport report = undoBatch(*journal, batch->id);
    if (!report.error.isEmpty()) {
        err(CliText::tr("selfsame-cli: %1\n").arg(report.error).toUtf8());
        return 1;
    }
    for (const QString &path : report.undone)
        out(CliText::tr("undone: %1\n").arg(escapedText(path)).toUtf8());
    for (const QString &path : report.deletedForGood)
        err(CliText::tr("cannot be undone: %1: it was deleted for good\n").arg(escapedText(path)).toUtf8());
    for (const QString &refusal : report.refused)
        err(CliText::tr("refused: %1\n").arg(escapedText(refusal)).toUtf8());
    err(CliText::tr("%1 undone, %2 refused, %3 deleted for good\n")
            .arg(report.undone.size())
            .arg(report.refused.size())
            .arg(report.deletedForGood.size())
            .toUtf8());
    return report.refused.isEmpty() ? 0 : 1;
}

} // namespace selfsame::cli
