#pragma once

#include "autoselect/AutomaticSelection.h"

#include <QDialog>

class QAction;
class QButtonGroup;
class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;
class QMenu;
class QPushButton;

namespace selfsame {

class FolderDropField;
class Settings;

// The automatic selection of a results window: a sheet of rules, each with its choices, that
// selects in every group the copies to discard; the rules for pictures and recordings appear
// after searches for them. Labels say in words which copies each rule keeps. After searches
// by duration, name or attribute a warning comes first.
class AutoSelectSheet : public QDialog {
    Q_OBJECT
public:
    AutoSelectSheet(QWidget *window, ResultModel &model, Settings &settings);

    QAction *automaticallySelectAction() const { return m_selectAction; }
    QAction *unhideAction() const { return m_unhideAction; }

    // Opens the sheet, with the folder rule and this folder chosen when one is given.
    void automaticallySelectInFolder(const QString &folder = {});
    // Shows again what the last automatic selection hid.
    void automaticallySelectUnhide();
    // The context menu's folder submenu: with one targeted item, one entry per folder that
    // encloses it, innermost first, each opening the sheet with that folder; else empty.
    void buildFolderSubmenu(QMenu *menu, const QList<ResultItem *> &targeted);
    // Enabled states, after the model changed.
    void updateActions();

    // The choices as the controls show them.
    AutoSelectSettings choices() const;
    QString folderLabelText() const;
    QString tagLabelText() const;

    // The controls, for tests and pictures.
    QButtonGroup *rules() const { return m_rules; }
    QComboBox *insideCondition() const { return m_inside; }
    QComboBox *insideDateCriterion() const { return m_insideOldest; }
    QComboBox *tagCondition() const { return m_tagCondition; }
    QLineEdit *tagField() const { return m_tagField; }
    QLineEdit *folderField() const;
    QCheckBox *hideOthers() const { return m_hide; }

Q_SIGNALS:
    // The selection or the hidden items changed: the lists need redrawing.
    void modelChanged();

private:
    void load(const QString &folder);
    void refreshControls();
    void chooseFolder();
    void setFolder(const QString &folder);
    void perform();
    QComboBox *datePopup();

    ResultModel &m_model;
    Settings &m_settings;
    QAction *m_selectAction, *m_unhideAction;
    QButtonGroup *m_rules;
    QComboBox *m_oldest, *m_date;
    QComboBox *m_inside, *m_insideOldest, *m_insideDate;
    FolderDropField *m_folder; // shows m_folderPath, its bytes escaped where they are not UTF-8
    QString m_folderPath;
    QPushButton *m_chooseFolder;
    QComboBox *m_tagCondition;
    QLineEdit *m_tagField;
    QCheckBox *m_hide;
    QLabel *m_folderLabel, *m_tagLabel;
    QStringList m_folderFormats; // without and with a date criterion
    QString m_tagFormat;
};

} // namespace selfsame
