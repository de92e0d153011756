#include "PutBackDialogue.h"

#include "Alert.h"
#include "LocalFiles.h"
#include "fileops/DeleteChecks.h"
#include "fileops/PutBack.h"
#include "fileops/Trash.h"
#include "journal/Journal.h"

#include <QDir>
#include <QFileDialog>
#include <QFileInfo>

namespace selfsame {

QStringList PutBackDialogue::trashedFiles(const QStringList &paths)
{
    QStringList trashed;
    for (const QString &path : paths) {
        const QString destination = putBackPath(path);
        // A restored file may keep its record; it is where it belongs.
        if (!destination.isEmpty() && QDir::cleanPath(destination) != QDir::cleanPath(path))
            trashed.append(path);
    }
    return trashed;
}

PutBackDialogue::PutBackDialogue(QWidget *window, const QStringList &trashedFiles, int openedCount)
    : QObject(window), m_window(window), m_files(trashedFiles), m_openedCount(openedCount)
{
}

void PutBackDialogue::next()
{
    if (m_index >= m_files.size()) {
        Q_EMIT finished();
        deleteLater();
    } else if (m_putBackAll) {
        attempt(true);
    } else {
        ask();
    }
}

void PutBackDialogue::ask()
{
    const QString file = m_files[m_index];
    showAlert(m_window, QMessageBox::Question, putBackQuestion(file, putBackPath(file), m_openedCount),
              [this](int answer) {
                  if (answer == kFirstButton + 1)
                      return skip();
                  m_putBackAll = answer == kFirstButton + 2;
                  attempt(true);
              });
}

void PutBackDialogue::attempt(bool firstAttempt)
{
    const QString file = m_files[m_index];
    const QString destination = putBackPath(file);
    // Each move back is journaled; the application recovered interrupted actions at its start.
    Journal journal;
    const PutBackResult result = putBackFile(file, destination, journal.isOpen() ? &journal : nullptr);
    if (result.ok()) {
        ++m_index;
        return next();
    }
    showAlert(m_window, QMessageBox::Warning,
              putBackErrorAlert(file, destination, result.errorText, firstAttempt), [this](int answer) {
                  if (answer == kFirstButton + 1)
                      grantAccess();
                  else
                      skip();
              });
}

void PutBackDialogue::skip()
{
    ++m_index;
    next();
}

void PutBackDialogue::grantAccess()
{
    // Linux has no access to grant: choosing the folder lets the user check it, or make
    // room in it, before the second and last try.
    const QString folder = QFileInfo(putBackPath(m_files[m_index])).path();
    auto *dialog =
        new QFileDialog(m_window, tr("Please select “%1” to grant the access").arg(displayName(folder)),
                        folderForFileDialog(folder));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setLabelText(QFileDialog::Accept, tr("Grant Access"));
    dialog->setWindowModality(Qt::ApplicationModal);
    connect(dialog, &QFileDialog::accepted, this, [this] { attempt(false); });
    connect(dialog, &QFileDialog::rejected, this, &PutBackDialogue::skip);
    dialog->open();
}

} // namespace selfsame
