#include "ResultActionsWiring.h"

#include "AutoSelectSheet.h"

#include <QAction>
#include <QComboBox>
#include <QCoreApplication>
#include <QMenu>
#include <QToolBar>

namespace selfsame {

ResultActions installResultActions(const ResultActionsHost &host)
{
    ResultActions actions{new DupesActions(host.window, *host.model, *host.settings),
                          new AutoSelectSheet(host.window, *host.model, *host.settings)};
    if (host.targets)
        actions.files->setTargetsSource(host.targets);
    auto changed = [actions, refresh = host.refresh] {
        if (refresh)
            refresh();
        updateResultActions(actions);
    };
    QObject::connect(actions.files, &DupesActions::modelChanged, host.window, changed);
    QObject::connect(actions.autoSelect, &AutoSelectSheet::modelChanged, host.window, changed);

    QMenu *menu = host.menu;
    menu->addAction(actions.autoSelect->automaticallySelectAction());
    menu->addAction(actions.autoSelect->unhideAction());
    menu->addSeparator();
    menu->addAction(actions.files->moveToTrashAction());
    menu->addAction(actions.files->deleteImmediatelyAction());
    menu->addAction(actions.files->putBackAction());
    menu->addSeparator();
    menu->addAction(actions.files->replaceByClonesAction());
    menu->addAction(actions.files->viewClonePlanAction());
    if (host.toolBar) {
        host.toolBar->addAction(actions.autoSelect->automaticallySelectAction());
        host.toolBar->addAction(actions.files->moveToTrashAction());
        host.toolBar->addWidget(actions.files->replaceWithPopup());
        host.toolBar->show();
    }
    updateResultActions(actions);
    return actions;
}

void updateResultActions(const ResultActions &actions)
{
    actions.files->updateActions();
    actions.autoSelect->updateActions();
}

void addResultActionsToContextMenu(QMenu *menu, const ResultActions &actions, const QList<ResultItem *> &targeted)
{
    QMenu *folders = menu->addMenu(QCoreApplication::translate("ResultActions", "Select Automatically in Folder"));
    actions.autoSelect->buildFolderSubmenu(folders, targeted);
    folders->setEnabled(!folders->isEmpty());
    menu->addSeparator();
    menu->addAction(actions.files->moveToTrashAction());
    menu->addAction(actions.files->deleteImmediatelyAction());
    menu->addAction(actions.files->putBackAction());
    menu->addAction(actions.files->replaceByClonesAction());
}

} // namespace selfsame
