#pragma once

#include <QObject>
#include <QStringList>

class QMenu;
class QWidget;

namespace selfsame
{

// Edit › Undo (Ctrl+Z) and Edit › Undo History in every window: the file actions that the
// operations journal keeps, undone on request. One for the whole application.
class UndoCommands : public QObject
{
    Q_OBJECT
public:
    static UndoCommands &instance();

    // Adds the two commands to a window's Edit menu; their texts follow the journal each time
    // the menu opens.
    void addTo(QMenu *edit, QWidget *window);
    // Undoes the action after the interrupted ones are recovered, and says what came of it.
    void undo(qint64 batch, QWidget *window);

Q_SIGNALS:
    // Files whose action was undone, so that the windows showing them stop marking them.
    void filesGivenBack(const QStringList &paths);
};

} // namespace selfsame
