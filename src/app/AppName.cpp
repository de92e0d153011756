#include "AppName.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>

namespace selfsame {

QString withAppName(QString text)
{
    return text.replace(QLatin1String("[NSApp]"), QCoreApplication::applicationName());
}

void replaceAppNameInMenu(QMenu *menu)
{
    for (QAction *action : menu->actions()) {
        if (action->text().contains(QLatin1String("[NSApp]")))
            action->setText(withAppName(action->text()));
        if (QMenu *submenu = action->menu())
            replaceAppNameInMenu(submenu);
    }
}

} // namespace selfsame
