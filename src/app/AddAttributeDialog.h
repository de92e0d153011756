#pragma once

#include <QDialog>

class QComboBox;
class QLineEdit;

namespace selfsame {

class SpotlightAttributesManager;

// Declares an attribute that the catalogue lacks, or forgets every declared one.
class AddAttributeDialog : public QDialog {
    Q_OBJECT
public:
    AddAttributeDialog(SpotlightAttributesManager &manager, QWidget *parent);

    void accept() override;

private:
    void reset();

    SpotlightAttributesManager &m_manager;
    QLineEdit *m_addAttributesNameFld;
    QLineEdit *m_addAttributesKeyFld;
    QLineEdit *m_addAttributesDescriptionFld;
    QComboBox *m_addAttributesTypePopup;
};

} // namespace selfsame
