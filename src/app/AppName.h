#pragma once

#include <QString>

class QMenu;

namespace selfsame {

// Menu titles and texts may say "[NSApp]" where the application's name belongs.
QString withAppName(QString text);
// Renames every item of the menu and of its submenus, depth first.
void replaceAppNameInMenu(QMenu *menu);

} // namespace selfsame
