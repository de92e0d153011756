#pragma once

#include <QStringList>

namespace selfsame {

// Shows the items selected in the file manager, or opens their folder when no file manager
// answers on the session bus.
void revealInFileManager(const QStringList &paths);

// Shows the number of running searches on the launcher icon, where the desktop offers it.
void showLauncherCount(int count);

// Opens a new e-mail to the developers in the user's mail program.
void composeFeedback();

} // namespace selfsame
