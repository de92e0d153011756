#pragma once

#include "DupesActions.h"

#include <QList>
#include <functional>

class QMenu;
class QToolBar;
class QWidget;

namespace selfsame {

class AutoSelectSheet;
class Settings;

// What a results window lends to the commands that act on its items.
struct ResultActionsHost {
    QWidget *window = nullptr;
    ResultModel *model = nullptr;
    Settings *settings = nullptr;
    QMenu *menu = nullptr;       // the window's menu of commands
    QToolBar *toolBar = nullptr; // may be null
    std::function<DupesActions::Targets()> targets; // the active list and its target items
    std::function<void()> refresh;                  // reads both lists again after a change
};

// The file commands and the automatic selection of one results window.
struct ResultActions {
    DupesActions *files = nullptr;
    AutoSelectSheet *autoSelect = nullptr;
};

// Creates the commands for the host's window, lists them in its menu, puts the replace-with
// pop-up on its tool bar, and refreshes the window whenever a command changed the model.
ResultActions installResultActions(const ResultActionsHost &host);
// Enabled states and titles, after the selection changed.
void updateResultActions(const ResultActions &actions);
// The commands of a row's context menu, with the folder submenu of the targeted item.
void addResultActionsToContextMenu(QMenu *menu, const ResultActions &actions, const QList<ResultItem *> &targeted);

} // namespace selfsame
