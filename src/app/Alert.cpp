#include "Alert.h"

#include <QPushButton>

namespace selfsame {

void showAlert(QWidget *parent, QMessageBox::Icon icon, const QString &message,
               const QString &informativeText, const QStringList &buttons,
               std::function<void(int answer)> answered)
{
    auto *box = new QMessageBox(icon, QString(), message, QMessageBox::NoButton, parent);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setWindowModality(parent ? Qt::WindowModal : Qt::ApplicationModal);
    box->setInformativeText(informativeText);
    QList<QAbstractButton *> order;
    for (qsizetype i = 0; i < buttons.size(); ++i) {
        const bool last = i > 0 && i == buttons.size() - 1;
        QPushButton *button = box->addButton(buttons[i], i == 0 ? QMessageBox::AcceptRole
                                                         : last ? QMessageBox::RejectRole
                                                                : QMessageBox::ActionRole);
        if (i == 0)
            box->setDefaultButton(button);
        if (last)
            box->setEscapeButton(button);
        order.append(button);
    }
    QObject::connect(box, &QMessageBox::finished, box, [box, order, answered = std::move(answered)] {
        const qsizetype index = order.indexOf(box->clickedButton());
        if (answered)
            answered(kFirstButtonAnswer + int(index < 0 ? order.size() - 1 : index));
    });
    box->open();
}

} // namespace selfsame
