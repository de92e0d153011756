#pragma once

#include <QStringList>
#include <QUrl>

namespace selfsame {

// Shows the items selected in the file manager, or opens their folder when no file manager
// answers on the session bus.
void revealInFileManager(const QStringList &paths);
// What the file manager is asked to show: file URIs carrying the paths' exact bytes.
QStringList fileManagerUris(const QStringList &paths);
// The folder that holds `path`, opened when no file manager answers.
QUrl enclosingFolderUrl(const QString &path);

// Opens the file with the desktop's default application for its type.
void openWithDefaultApplication(const QString &path);

// Shows the number of running searches on the launcher icon, where the desktop offers it.
void showLauncherCount(int count);

// Opens a new e-mail to the developers in the user's mail program.
void composeFeedback();

} // namespace selfsame
