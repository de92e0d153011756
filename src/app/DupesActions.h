#pragma once

#include "fileops/Replacement.h"
#include "results/ResultModel.h"

#include <QObject>
#include <QTemporaryDir>
#include <functional>
#include <memory>

class QAction;
class QComboBox;
class QWidget;

namespace selfsame {

class CachedDigestsCarrier;

class CloneProgressWindow;
class Settings;

// The file commands of a results window: Move to Trash and Delete Immediately with their
// replacement, Put Back from Trash and Replace by Clones. The replace-with pop-up picks the
// plain mode; while Alt is held anywhere in the application it shows and edits the alternate
// mode, and the delete commands use it. The questions, their order and what the answers do
// come from the engine's actions; this class presents them and tells the window to refresh.
class DupesActions : public QObject {
    Q_OBJECT
public:
    // The list a command acts on and its target items (the clicked row or the selection).
    struct Targets {
        ResultList list = ResultList::Top;
        QList<ResultItem *> items;
    };

    DupesActions(QWidget *window, ResultModel &model, Settings &settings);
    ~DupesActions() override;

    QAction *moveToTrashAction() const { return m_moveToTrash; }
    QAction *deleteImmediatelyAction() const { return m_deleteImmediately; }
    QAction *putBackAction() const { return m_putBack; }
    QAction *replaceByClonesAction() const { return m_replaceByClones; }
    QAction *viewClonePlanAction() const { return m_viewClonePlan; }
    // For the tool bar; owned by the window.
    QComboBox *replaceWithPopup() const { return m_replaceWithPopup; }

    // By default the commands act on the selection of the top list.
    void setTargetsSource(std::function<Targets()> source) { m_targetsSource = std::move(source); }
    Targets targets() const;

    const ReplaceWithModes &modes() const { return m_modes; }
    bool showingAlternate() const { return m_showingAlternate; }
    void setShowingAlternate(bool alternate);
    // What the pop-up does: sets the mode of the slot it shows.
    void chooseReplaceWith(int mode);
    // Titles and enabled states, after the selection or the model changed.
    void updateActions();

    void moveToTrash();
    void deleteImmediately();
    void putBack();
    void replaceByClones();
    void viewClonePlan();
    // An undo gave these paths back what they held before an action: their items are no longer
    // marked as trashed, deleted or replaced.
    void filesGivenBack(const QStringList &paths);

    // Opens a plan file; tests replace it.
    std::function<void(const QString &path)> planViewer;
    CloneProgressWindow *progressWindow() const { return m_progress; }

Q_SIGNALS:
    // Items were moved, deleted, replaced or put back: the lists need redrawing.
    void modelChanged();
    // A command is over: one line of what it did and freed (empty when it did nothing).
    void actionSummarized(const QString &summary);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void runDeleteAction(bool trash);
    // Every copy of the items' groups, the items included.
    QList<ResultItem *> groupsOf(const QList<ResultItem *> &items) const;
    // Files whose content an action kept are not read again by the next search.
    void keepDigestCacheCurrent(const CachedDigestsCarrier &carrier) const;
    ResultItem *referenceFor(const Targets &targets) const;
    void updateTitle(QAction *action, const QString &base);
    int replacementInForce() const; // the index of the replace pop-up that an action uses

    QWidget *m_window;
    ResultModel &m_model;
    Settings &m_settings;
    std::function<Targets()> m_targetsSource;
    ReplaceWithModes m_modes;
    bool m_showingAlternate = false;
    std::unique_ptr<QTemporaryDir> m_planFolder; // keeps the last plan for "View Cloning Plan"
    QString m_planPath;
    QAction *m_moveToTrash, *m_deleteImmediately, *m_putBack, *m_replaceByClones, *m_viewClonePlan;
    QComboBox *m_replaceWithPopup;
    CloneProgressWindow *m_progress;
};

} // namespace selfsame
