#pragma once

#include "fileops/Alert.h"

#include <QMessageBox>
#include <QStringList>
#include <functional>

namespace selfsame {

// Opens a message box modal to the parent's window (to the application without a parent).
// `answered` receives the answer code, kFirstButton + the button's index, once it has closed.
void showAlert(QWidget *parent, QMessageBox::Icon icon, const Alert &alert,
               std::function<void(int answer)> answered = {});

// Asks at once and returns when the user has answered; the parent's window stays modal
// meanwhile. A suppressible alert shows a "do not show again" box, whose state is returned.
AlertAnswer askAlert(QWidget *parent, QMessageBox::Icon icon, const Alert &alert);

// While set, alerts are not shown but handed to this function, which answers them: tests
// drive every path of an action with it. An empty function shows alerts again.
using AlertAnswerer = std::function<AlertAnswer(const Alert &alert)>;
void setAlertAnswerer(AlertAnswerer answerer);

// The same with the buttons in the given order: the first is the default, the last of
// several answers Escape.
void showAlert(QWidget *parent, QMessageBox::Icon icon, const QString &message,
               const QString &informativeText, const QStringList &buttons,
               std::function<void(int answer)> answered = {});

} // namespace selfsame
