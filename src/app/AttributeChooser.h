#pragma once

#include <QDialog>
#include <optional>

class QCheckBox;
class QLineEdit;
class QTableView;

namespace selfsame {

class AttributeChooserModel;
class SpotlightAttributesManager;

// The sheet in which the user browses the attribute catalogue, ticks the attributes the
// pop-up offers, picks one for the search and declares attributes of their own.
class AttributeChooser : public QDialog {
    Q_OBJECT
public:
    AttributeChooser(SpotlightAttributesManager &manager, QWidget *parent);

    QLineEdit *searchField() const { return m_spotlightAttributesSearchFld; }
    QTableView *table() const { return m_spotlightAttributesTable; }
    AttributeChooserModel *model() const { return m_model; }

    void accept() override;
    void reject() override;

Q_SIGNALS:
    // The chooser closed: with OK and one selected row, its key; otherwise none.
    void terminatedWithSelectedAttribute(const std::optional<QString> &key);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void filter();
    void toggleSpotlightAttributesKey();
    void addAttribute();
    QList<int> selectedRows() const;

    SpotlightAttributesManager &m_manager;
    AttributeChooserModel *m_model;
    QLineEdit *m_spotlightAttributesSearchFld;
    QTableView *m_spotlightAttributesTable;
    QCheckBox *m_showSpotlightAttributesKeyChk;
};

} // namespace selfsame
