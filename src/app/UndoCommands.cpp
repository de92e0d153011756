#include "UndoCommands.h"

#include "Alert.h"
#include "InterruptedActions.h"
#include "journal/Undo.h"

#include <QAction>
#include <QApplication>
#include <QMenu>

namespace selfsame
{

namespace
{

constexpr int kHistoryLength = 15;

} // namespace

UndoCommands &UndoCommands::instance()
{
    static UndoCommands commands;
    return commands;
}

void UndoCommands::addTo(QMenu *edit, QWidget *window)
{
    QAction *undoLast = edit->addAction(tr("&Undo"));
    undoLast->setShortcut(QKeySequence::Undo);
    // The line edits' own undo goes first while one of them has focus.
    undoLast->setShortcutContext(Qt::WindowShortcut);
    QMenu *history = edit->addMenu(tr("Undo &History"));
    edit->addSeparator();
    auto refresh = [undoLast, history, window, this] {
        Journal journal;
        const std::optional<JournalBatch> last = journal.isOpen() ? lastUndoableBatch(journal) : std::nullopt;
        undoLast->setEnabled(bool(last));
        undoLast->setText(last ? tr("&Undo %1").arg(describeBatch(*last)) : tr("&Undo"));
        undoLast->setData(last ? last->id : 0);
        history->clear();
        const QList<JournalBatch> batches = journal.isOpen() ? journal.batches(kHistoryLength) : QList<JournalBatch>{};
        for (const JournalBatch &batch : batches) {
            const QString state = batchState(batch);
            QAction *entry = history->addAction(state.isEmpty() ? historyEntry(batch)
                                                                : tr("%1 — %2").arg(historyEntry(batch), state));
            entry->setEnabled(isUndoable(batch));
            const qint64 id = batch.id;
            connect(entry, &QAction::triggered, this, [this, id, window] { undo(id, window); });
        }
        if (batches.isEmpty()) history->addAction(tr("No file actions yet"))->setEnabled(false);
    };
    connect(edit, &QMenu::aboutToShow, this, refresh);
    // Between menus the shortcut stays live: an action done since must be undoable at once.
    connect(edit, &QMenu::aboutToHide, undoLast, [undoLast] { undoLast->setEnabled(true); });
    connect(undoLast, &QAction::triggered, this, [this, undoLast, window, refresh] {
        refresh(); // the shortcut comes without the menu opening
        if (const qint64 id = undoLast->data().toLongLong()) undo(id, window);
        else QApplication::beep();
        undoLast->setEnabled(true);
    });
}

void UndoCommands::undo(qint64 batchId, QWidget *window)
{
    Journal journal;
    if (!recoverInterruptedActions(journal, window)) return;
    const std::optional<JournalBatch> batch = journal.batch(batchId);
    if (!batch) return;
    const UndoReport report = undoBatch(journal, batchId);
    const UndoSummary summary = summarizeUndo(*batch, report);
    if (!report.undone.isEmpty()) Q_EMIT filesGivenBack(report.undone);
    const QString informative =
        summary.details.isEmpty() ? summary.message : summary.message + QStringLiteral("\n\n") + summary.details;
    askAlert(window, summary.complete ? QMessageBox::Information : QMessageBox::Warning,
             Alert{summary.title, informative, {tr("OK")}});
}

} // namespace selfsame
