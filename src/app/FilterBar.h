#pragma once

#include "results/ResultFilter.h"

#include <QTimer>
#include <QWidget>

class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QToolButton;

namespace selfsame {

// The bar above the result lists: a text condition on one attribute of the items and a date
// condition. Every change asks for the filter to run again (typing, after a short pause).
class FilterBar : public QWidget {
    Q_OBJECT
public:
    explicit FilterBar(QWidget *parent = nullptr);

    FilterCriteria criteria() const;
    // Restores the pop-ups; the text and the number are not part of what is restored.
    void setCriteria(const FilterCriteria &criteria);
    // Shows or hides the error of a text that is no valid regular expression.
    void showRegexError(const QString &error);

    QLineEdit *textField() const { return m_filterFld; }
    QDoubleSpinBox *dateValueField() const { return m_filterDateValueFld; }
    // The items of one folder (and its subfolders) alone, as a path condition.
    void showOnlyFolder(const QString &folder);
    // No text condition: every item passes it.
    void clearTextCondition();
    // The bar's controls in Tab order run from the first to the last of these.
    QWidget *firstInTabOrder() const;
    QWidget *lastInTabOrder() const;

Q_SIGNALS:
    void filterChanged();

private:
    QComboBox *m_filterStringCriterionPopup;
    QComboBox *m_filterStringOperatorPopup;
    QLineEdit *m_filterFld;
    QLabel *m_filterErrorLabel;
    QToolButton *m_filterErrorHelpBtn;
    QComboBox *m_filterDateTypePopup;
    QComboBox *m_filterDateOperatorPopup;
    QDoubleSpinBox *m_filterDateValueFld;
    QComboBox *m_filterDateUnitPopup;
    QTimer m_typing;
};

} // namespace selfsame
