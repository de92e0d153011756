#include "Alert.h"

#include <QCheckBox>
#include <QPushButton>

namespace selfsame {

namespace {

AlertAnswerer &answerer()
{
    static AlertAnswerer hook;
    return hook;
}

// A message box with the alert's buttons in order; `order` receives them.
QMessageBox *makeBox(QWidget *parent, QMessageBox::Icon icon, const Alert &alert, QList<QAbstractButton *> &order)
{
    auto *box = new QMessageBox(icon, QString(), alert.message, QMessageBox::NoButton, parent);
    box->setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    box->setInformativeText(alert.informative);
    for (qsizetype i = 0; i < alert.buttons.size(); ++i) {
        const QMessageBox::ButtonRole role = i == alert.cancelButton    ? QMessageBox::RejectRole
                                             : i == alert.defaultButton ? QMessageBox::AcceptRole
                                             : i == alert.destructiveButton ? QMessageBox::DestructiveRole
                                                                            : QMessageBox::ActionRole;
        QPushButton *button = box->addButton(alert.buttons[i], role);
        if (i == alert.defaultButton)
            box->setDefaultButton(button);
        if (i == alert.cancelButton)
            box->setEscapeButton(button);
        order.append(button);
    }
    if (alert.suppressible)
        box->setCheckBox(new QCheckBox(QMessageBox::tr("Do not show this message again")));
    return box;
}

int answerCode(QMessageBox *box, const QList<QAbstractButton *> &order)
{
    const qsizetype index = order.indexOf(box->clickedButton());
    return kFirstButton + int(index < 0 ? order.size() - 1 : index);
}

} // namespace

void setAlertAnswerer(AlertAnswerer hook)
{
    answerer() = std::move(hook);
}

AlertAnswer askAlert(QWidget *parent, QMessageBox::Icon icon, const Alert &alert)
{
    if (answerer())
        return answerer()(alert);
    QList<QAbstractButton *> order;
    QMessageBox *box = makeBox(parent, icon, alert, order);
    box->exec();
    const AlertAnswer answer{answerCode(box, order), box->checkBox() && box->checkBox()->isChecked()};
    delete box;
    return answer;
}

void showAlert(QWidget *parent, QMessageBox::Icon icon, const Alert &alert,
               std::function<void(int answer)> answered)
{
    if (answerer()) {
        const int code = answerer()(alert).code;
        if (answered)
            answered(code);
        return;
    }
    QList<QAbstractButton *> order;
    QMessageBox *box = makeBox(parent, icon, alert, order);
    box->setAttribute(Qt::WA_DeleteOnClose);
    QObject::connect(box, &QMessageBox::finished, box, [box, order, answered = std::move(answered)] {
        if (answered)
            answered(answerCode(box, order));
    });
    box->open();
}

void showAlert(QWidget *parent, QMessageBox::Icon icon, const QString &message,
               const QString &informativeText, const QStringList &buttons,
               std::function<void(int answer)> answered)
{
    const int last = int(buttons.size()) - 1;
    showAlert(parent, icon, Alert{message, informativeText, buttons, 0, last > 0 ? last : -1},
              std::move(answered));
}

} // namespace selfsame
