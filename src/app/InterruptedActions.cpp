#include "InterruptedActions.h"

#include "journal/Journal.h"
#include "journal/Recovery.h"
#include "names/FileNames.h"

#include <QCoreApplication>
#include <QMessageBox>

namespace selfsame
{

namespace
{

struct InterruptedActionsText {
    Q_DECLARE_TR_FUNCTIONS(InterruptedActions)
};

QString listed(const QStringList &paths)
{
    QStringList shown;
    for (const QString &path : paths)
        shown.append(displayPath(path));
    return shown.join(u'\n');
}

} // namespace

bool recoverInterruptedActions(Journal &journal, QWidget *parent)
{
    if (!journal.isOpen()) {
        QMessageBox::warning(parent, InterruptedActionsText::tr("Files cannot be changed safely"),
                             InterruptedActionsText::tr("The operations journal %1 cannot be opened: %2")
                                 .arg(displayPath(Journal::defaultPath()), journal.error()));
        return false;
    }
    const RecoveryReport report = recoverInterrupted(journal);
    if (report.isEmpty()) return true;
    QStringList parts;
    if (!report.rolledBack.isEmpty())
        parts << InterruptedActionsText::tr("Put back as they were:\n%1").arg(listed(report.rolledBack));
    if (!report.finished.isEmpty())
        parts << InterruptedActionsText::tr("Finished:\n%1").arg(listed(report.finished));
    if (!report.failed.isEmpty())
        parts << InterruptedActionsText::tr("Could not be recovered:\n%1").arg(listed(report.failed));
    QMessageBox box(
        report.failed.isEmpty() ? QMessageBox::Information : QMessageBox::Warning,
        InterruptedActionsText::tr("Interrupted file actions were recovered"),
        InterruptedActionsText::tr("Selfsame was stopped while it changed files. Nothing was lost."),
        QMessageBox::Ok, parent);
    if (!report.failed.isEmpty())
        box.setText(InterruptedActionsText::tr("Selfsame was stopped while it changed files."));
    box.setDetailedText(parts.join(QStringLiteral("\n\n")));
    box.exec();
    return report.failed.isEmpty();
}

} // namespace selfsame
