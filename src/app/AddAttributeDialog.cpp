#include "AddAttributeDialog.h"

#include "attributes/SpotlightAttributesManager.h"

#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace selfsame {

AddAttributeDialog::AddAttributeDialog(SpotlightAttributesManager &manager, QWidget *parent)
    : QDialog(parent), m_manager(manager)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Add Attribute"));
    m_addAttributesKeyFld = new QLineEdit;
    m_addAttributesKeyFld->setPlaceholderText(tr("kMDItem…"));
    m_addAttributesNameFld = new QLineEdit;
    m_addAttributesDescriptionFld = new QLineEdit;
    m_addAttributesTypePopup = new QComboBox;
    for (int type : {StringType, NumberType, DateType, BooleanType})
        m_addAttributesTypePopup->addItem(attributeTypeName(type), type);

    auto *form = new QFormLayout;
    form->addRow(tr("&Key:"), m_addAttributesKeyFld);
    form->addRow(tr("&Name:"), m_addAttributesNameFld);
    form->addRow(tr("&Description:"), m_addAttributesDescriptionFld);
    form->addRow(tr("&Type:"), m_addAttributesTypePopup);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton *resetBtn =
        buttons->addButton(tr("&Remove All Added Attributes"), QDialogButtonBox::ResetRole);
    connect(resetBtn, &QPushButton::clicked, this, &AddAttributeDialog::reset);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(buttons);
    setMinimumWidth(fontMetrics().averageCharWidth() * 60);
}

void AddAttributeDialog::accept()
{
    const AttributeRecord record{m_addAttributesNameFld->text(), m_addAttributesDescriptionFld->text(),
                                 m_addAttributesTypePopup->currentData().toInt()};
    if (!m_manager.addAttribute(m_addAttributesKeyFld->text().trimmed(), record)) {
        QApplication::beep();
        return;
    }
    QDialog::accept();
}

void AddAttributeDialog::reset()
{
    m_manager.addAttributeReset();
    QDialog::accept();
}

} // namespace selfsame
