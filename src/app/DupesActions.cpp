#include "DupesActions.h"

#include "ActionSummary.h"
#include "Alert.h"
#include "CloneProgressWindow.h"
#include "UndoCommands.h"
#include "fileops/CachedDigestsCarrier.h"
#include "fileops/DeleteCommand.h"
#include "fileops/ItemSafety.h"
#include "Desktop.h"
#include "InterruptedActions.h"
#include "SearchDefaults.h"
#include "Settings.h"
#include "fileops/CloneFlow.h"
#include "journal/Journal.h"
#include "search/DuplicateSearch.h"
#include "fileops/PutBack.h"

#include <QAction>
#include <QSet>
#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>

namespace selfsame {

namespace {

const QLatin1String kReplaceWith("replace with");
const QLatin1String kAlternateReplaceWith("alternate replace with");
const QLatin1String kPutBackTipShown("put back tip shown");
const char kBaseTitle[] = "baseTitle";

bool isGoneItem(const ResultItem *item)
{
    return !item->trashedURL().isEmpty() || item->has(Deleted);
}

} // namespace

DupesActions::DupesActions(QWidget *window, ResultModel &model, Settings &settings)
    : QObject(window), m_window(window), m_model(model), m_settings(settings)
{
    m_modes.replaceWith = int(settings.integerValue(kReplaceWith));
    m_modes.alternate = int(settings.integerValue(kAlternateReplaceWith));
    planViewer = [](const QString &path) { openWithDefaultApplication(path); };

    // The base titles hold %1 where the replacement's suffix goes.
    m_moveToTrash = new QAction(this);
    m_moveToTrash->setProperty(kBaseTitle, tr("Move to &Trash%1"));
    m_moveToTrash->setShortcut(QKeySequence::Delete);
    connect(m_moveToTrash, &QAction::triggered, this, &DupesActions::moveToTrash);
    m_deleteImmediately = new QAction(this);
    m_deleteImmediately->setProperty(kBaseTitle, tr("&Delete Immediately%1…"));
    m_deleteImmediately->setShortcut(Qt::SHIFT | Qt::Key_Delete);
    connect(m_deleteImmediately, &QAction::triggered, this, &DupesActions::deleteImmediately);
    m_putBack = new QAction(tr("&Put Back from Trash"), this);
    connect(m_putBack, &QAction::triggered, this, &DupesActions::putBack);
    m_replaceByClones = new QAction(tr("Replace by &Clones…"), this);
    connect(m_replaceByClones, &QAction::triggered, this, &DupesActions::replaceByClones);
    m_viewClonePlan = new QAction(tr("View Cloning Plan"), this);
    connect(m_viewClonePlan, &QAction::triggered, this, &DupesActions::viewClonePlan);

    m_replaceWithPopup = new QComboBox(window);
    for (const QString &title : {tr("Do Not Replace"), tr("Replace with Alias"), tr("Replace with Symbolic Link"),
                                 tr("Replace with Relative Symbolic Link"), tr("Replace with Hard Link"),
                                 tr("Replace with Clone")})
        m_replaceWithPopup->addItem(title);
    connect(m_replaceWithPopup, &QComboBox::activated, this, &DupesActions::chooseReplaceWith);

    m_progress = new CloneProgressWindow(window);
    connect(&UndoCommands::instance(), &UndoCommands::filesGivenBack, this, &DupesActions::filesGivenBack);
    qApp->installEventFilter(this);
    updateActions();
}

DupesActions::~DupesActions()
{
    qApp->removeEventFilter(this);
}

DupesActions::Targets DupesActions::targets() const
{
    if (m_targetsSource)
        return m_targetsSource();
    return Targets{ResultList::Top, m_model.selectedItems(ResultList::Top)};
}

bool DupesActions::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease: {
        // Other keys carry the modifiers held, which mends a release that went elsewhere.
        const auto *key = static_cast<QKeyEvent *>(event);
        setShowingAlternate(key->key() == Qt::Key_Alt ? event->type() == QEvent::KeyPress
                                                      : key->modifiers().testFlag(Qt::AltModifier));
        break;
    }
    case QEvent::ApplicationDeactivate:
        setShowingAlternate(false); // the release may go to another application
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void DupesActions::setShowingAlternate(bool alternate)
{
    if (alternate == m_showingAlternate)
        return;
    m_showingAlternate = alternate;
    updateActions();
}

void DupesActions::chooseReplaceWith(int mode)
{
    m_modes.choose(mode, m_showingAlternate);
    m_settings.setValue(kReplaceWith, m_modes.replaceWith);
    m_settings.setValue(kAlternateReplaceWith, m_modes.alternate);
    updateActions();
}

int DupesActions::replacementInForce() const
{
    // Similar files are not copies: a link or clone in place of one would show other content.
    return isSimilarityMode(m_model.detectionMode()) ? 0 : m_modes.inForce(m_showingAlternate);
}

void DupesActions::updateTitle(QAction *action, const QString &base)
{
    QString suffix;
    if (replaceWithMenuSuffix(replacementInForce(), m_showingAlternate, &suffix))
        action->setText(base.arg(suffix));
    else if (action->text().isEmpty())
        action->setText(base.arg(QString()));
}

void DupesActions::updateActions()
{
    updateTitle(m_moveToTrash, m_moveToTrash->property(kBaseTitle).toString());
    updateTitle(m_deleteImmediately, m_deleteImmediately->property(kBaseTitle).toString());
    m_replaceWithPopup->setCurrentIndex(replacementInForce());
    m_replaceWithPopup->setEnabled(!isSimilarityMode(m_model.detectionMode()));
    m_replaceWithPopup->setToolTip(m_showingAlternate ? tr("Replacement while Alt is held")
                                                      : tr("Replacement of deleted duplicates"));

    const Targets chosen = targets();
    const QList<ResultItem *> &items = chosen.items;
    m_moveToTrash->setEnabled(std::any_of(items.begin(), items.end(), [](auto *i) { return !isGoneItem(i); }));
    m_deleteImmediately->setEnabled(!items.isEmpty());
    // Before anything is touched, the command says which list and how many files it acts on.
    const int count = int(items.size());
    const bool bottom = chosen.list == ResultList::Bottom;
    m_moveToTrash->setToolTip(bottom ? tr("Moves the %Ln file(s) selected in the bottom list to the Trash", nullptr, count)
                                     : tr("Moves the %Ln file(s) selected in the top list to the Trash", nullptr, count));
    m_deleteImmediately->setToolTip(bottom ? tr("Deletes the %Ln file(s) selected in the bottom list", nullptr, count)
                                           : tr("Deletes the %Ln file(s) selected in the top list", nullptr, count));
    m_putBack->setEnabled(std::any_of(items.begin(), items.end(), [](const ResultItem *i) {
        return !i->trashedURL().isEmpty() && !i->has(Deleted);
    }));
    m_replaceByClones->setEnabled(m_model.detectionMode() == DetectionMode::Content &&
                                  (items.size() >= 2 || m_model.mainItems().size() >= 2));
    m_viewClonePlan->setEnabled(!m_planPath.isEmpty());
}

ResultItem *DupesActions::referenceFor(const Targets &targets) const
{
    // Acting on the bottom list keeps the item selected in the top list.
    if (targets.list != ResultList::Bottom)
        return nullptr;
    const QList<ResultItem *> top = m_model.selectedItems(ResultList::Top);
    return top.size() == 1 ? top.first() : nullptr;
}

void DupesActions::moveToTrash()
{
    runDeleteAction(true);
}

void DupesActions::deleteImmediately()
{
    runDeleteAction(false);
}

void DupesActions::runDeleteAction(bool trash)
{
    const Targets chosen = targets();
    if (chosen.items.isEmpty())
        return;
    Journal journal;
    if (!recoverInterruptedActions(journal, m_window))
        return;
    DeleteActionRequest request;
    request.journal = &journal;
    request.kind = trash ? DeleteKind::Trash : DeleteKind::Delete;
    request.mode = replacementInForce();
    request.reference = referenceFor(chosen);
    request.targets = chosen.items;
    request.duplicatesFor = [this](const ResultItem &item) { return m_model.duplicatesFor(item); };
    request.showPutBackTip = !m_settings.boolValue(kPutBackTipShown);

    DeleteCommandUi ui;
    ui.ask = [this](const Alert &alert) { return askAlert(m_window, QMessageBox::Warning, alert).code; };
    ui.showInFileManager = [](const QString &path) { revealInFileManager({path}); };
    const CachedDigestsCarrier carrier(groupsOf(request.targets));
    const DeleteCommandResult result = runDeleteCommand(request, ui);
    if (result.putBackNoteShown)
        m_settings.setValue(kPutBackTipShown, true);
    if (result.performed) {
        keepDigestCacheCurrent(carrier);
        Q_EMIT modelChanged();
        Q_EMIT actionSummarized(deleteSummary(result.outcomes));
    }
    updateActions();
}

QList<ResultItem *> DupesActions::groupsOf(const QList<ResultItem *> &items) const
{
    QList<ResultItem *> members;
    QSet<int> groups;
    for (ResultItem *item : items)
        if (!groups.contains(item->group)) {
            groups.insert(item->group);
            members += m_model.duplicatesFor(*item);
        }
    return members;
}

void DupesActions::keepDigestCacheCurrent(const CachedDigestsCarrier &carrier) const
{
    if (DuplicateSearch::digestCachePath().isEmpty()) return;
    DigestCache cache(DuplicateSearch::digestCachePath());
    if (cache.isOpen()) carrier.carryOver(cache);
}

void DupesActions::filesGivenBack(const QStringList &paths)
{
    const QSet<QString> given(paths.cbegin(), paths.cend());
    int count = 0;
    for (ResultItem *item : m_model.mainItems()) {
        if (!given.contains(item->path)) continue;
        item->setTrashedURL({});
        item->set(Deleted, false);
        item->setStatusImage({});
        recordCurrentState(*item); // the file at the path now, for the checks of the next action
        ++count;
    }
    if (count == 0) return;
    Q_EMIT modelChanged();
    Q_EMIT actionSummarized(tr("Undone: %n file(s) given back.", nullptr, count));
    updateActions();
}

void DupesActions::putBack()
{
    Journal journal;
    if (!recoverInterruptedActions(journal, m_window))
        return;
    const QList<ResultItem *> items = targets().items;
    const CachedDigestsCarrier carrier(items);
    const PutBackSummary summary = putBackItems(items, &journal);
    if (!summary.putBack.isEmpty()) keepDigestCacheCurrent(carrier);
    if (const auto failed = putBackFromTrashFailure(summary, items))
        askAlert(m_window, QMessageBox::Warning, *failed);
    Q_EMIT modelChanged();
    Q_EMIT actionSummarized(putBackSummary(summary.putBack));
    updateActions();
}

void DupesActions::replaceByClones()
{
    Journal journal;
    if (!recoverInterruptedActions(journal, m_window))
        return;
    CloneActionRequest request;
    request.journal = &journal;
    request.targets = targets().items;
    request.mainItems = m_model.mainItems();
    request.duplicatesFor = [this](const ResultItem &item) { return m_model.duplicatesFor(item); };
    request.compareFolders = m_model.request().compareFolders;
    request.doNotShowAgain = m_settings.dictionary(key::doNotShowAgain);
    if (!m_planFolder || !m_planFolder->isValid())
        m_planFolder = makePlanFolder();
    if (m_planFolder->isValid())
        request.planPath = m_planFolder->filePath(QStringLiteral("Selfsame.log"));

    CloneActionUi ui;
    ui.ask = [this](const Alert &alert) {
        return askAlert(m_window, QMessageBox::Warning, alert);
    };
    ui.viewPlan = [this](const QString &path) { planViewer(path); };
    ui.beginPass = [this](bool perform) { m_progress->beginPass(perform); };
    ui.progress = [this](int index, int count) { return m_progress->step(index, count); };
    ui.endPass = [this] { m_progress->endPass(); };
    const CachedDigestsCarrier carrier(groupsOf(request.targets.size() < 2 ? request.mainItems : request.targets));
    const CloneActionResult result = runCloneAction(request, ui);
    for (auto it = result.doNotShowAgain.begin(); it != result.doNotShowAgain.end(); ++it)
        m_settings.setDictionaryValue(key::doNotShowAgain, it.key(), it.value());
    if (!result.planPath.isEmpty())
        m_planPath = result.planPath;
    if (result.performed) {
        keepDigestCacheCurrent(carrier);
        Q_EMIT modelChanged();
        Q_EMIT actionSummarized(cloneSummary(result.cloned));
    }
    updateActions();
}

void DupesActions::viewClonePlan()
{
    if (!m_planPath.isEmpty())
        planViewer(m_planPath);
}

} // namespace selfsame
