#pragma once

#include <QMessageBox>
#include <QStringList>
#include <functional>

namespace selfsame {

// Answer codes of alerts: the first button answers 1000, the second 1001, the third 1002.
inline constexpr int kFirstButtonAnswer = 1000;

// Opens a message box modal to the parent's window (to the application without a parent),
// with the buttons in the given order; the first is the default, the last of several answers
// Escape. `answered` receives the answer code once the box has closed.
void showAlert(QWidget *parent, QMessageBox::Icon icon, const QString &message,
               const QString &informativeText, const QStringList &buttons,
               std::function<void(int answer)> answered = {});

} // namespace selfsame
