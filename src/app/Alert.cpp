#include "Alert.h"

#include <QPushButton>

namespace selfsame {

void showAlert(QWidget *parent, QMessageBox::Icon icon, const Alert &alert,
               std::function<void(int answer)> answered)
{
    auto *box = new QMessageBox(icon, QString(), alert.message, QMessageBox::NoButton, parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    box->setInformativeText(alert.informative);
    QList<QAbstractButton *> order;
    for (qsizetype i = 0; i < alert.buttons.size(); ++i) {
        const QMessageBox::ButtonRole role = i == alert.cancelButton    ? QMessageBox::RejectRole
                                             : i == alert.defaultButton ? QMessageBox::AcceptRole
                                                                        : QMessageBox::ActionRole;
        QPushButton *button = box->addButton(alert.buttons[i], role);
        if (i == alert.defaultButton)
            box->setDefaultButton(button);
        if (i == alert.cancelButton)
            box->setEscapeButton(button);
        order.append(button);
    }
    QObject::connect(box, &QMessageBox::finished, box, [box, order, answered = std::move(answered)] {
        const qsizetype index = order.indexOf(box->clickedButton());
        if (answered)
            answered(kFirstButton + int(index < 0 ? order.size() - 1 : index));
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
