#pragma once

#include "autoselect/AutoSelectRules.h"
#include "results/ResultItem.h"
#include "journal/Journal.h"
#include "results/ResultModel.h"

#include <QByteArray>
#include <QList>
#include <QString>
#include <functional>
#include <optional>

namespace selfsame::cli
{

enum class FileAction { None, Trash, Delete };

struct FileActionOptions {
    FileAction action = FileAction::None;
    int replaceWith = 0;  // ReplaceWithMode
    bool perform = false; // false: only say what would be done
    QString planPath;     // where the clone plan goes (replace by clones)
    bool print0 = false;  // standard output lists only the paths acted on, exact and NUL-terminated
    QString digestCachePath; // the digest cache to keep current across the action; empty for none
};

// One duplicate group: the copy the selection rule keeps, and the copies it selected.
struct ActionGroup {
    ResultItem *reference = nullptr;
    QList<ResultItem *> selected;
    QList<ResultItem *> members; // the whole group, to refuse acting on every copy
};

// The groups of the copies a rule selected, each with its kept copy as the reference (else
// the first copy neither selected nor gone), in the order of the selection.
QList<ActionGroup> actionGroupsFor(const ResultModel &model, const AutoSelection &selection);

using Writer = std::function<void(const QByteArray &)>;

// Acts on the selected copies of each group: moves them to the trash or deletes them, with
// the replacement of `replaceWith` pointing at the group's kept copy; with a clone mode and
// no action, replaces them by clones of it in place. Prints one line per file (paths escaped,
// or with print0 only each exact path and a NUL) and a summary.
// Returns 0 when everything succeeded (or would), 1 when anything failed.
int runFileActions(const FileActionOptions &options, const QList<ActionGroup> &groups, const Writer &out,
                   const Writer &err);

// Opens the operations journal and recovers what an earlier run left unfinished, saying what
// it did on `err`. Every step of an action is journaled: one that cannot be is not begun, so
// false means that no file may be acted on.
bool openJournal(std::optional<Journal> &journal, const Writer &err);

// `selfsame-cli recover`: finishes or rolls back every action that was interrupted (killed,
// power lost) and says what it did. Actions that change files run it first. Returns 0, or 1
// when some step could not be recovered.
int runRecover(const Writer &out, const Writer &err);

} // namespace selfsame::cli
