#pragma once

class QWidget;

namespace selfsame
{

class Journal;

// Finishes or rolls back the file actions that were interrupted (the application or the
// command line killed, the power lost) and says what was done, when anything was. Returns
// false when the journal cannot be opened or some step could not be recovered: then no new
// action may begin.
bool recoverInterruptedActions(Journal &journal, QWidget *parent);

} // namespace selfsame
