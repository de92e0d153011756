#pragma once

#include "CompareFoldersWarning.h"
#include "SearchOptions.h"
#include "attributes/SpotlightAttributesManager.h"

#include <QWidget>
#include <optional>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QLineEdit;
class QPlainTextEdit;
class QSlider;
class QSpinBox;

namespace selfsame {

// Every option of a search: the mode with its option group, and the filters. It only shows
// and reports the controls' states; loading, saving and validation live in SearchOptions.
class SearchOptionsPanel : public QWidget {
    Q_OBJECT
public:
    explicit SearchOptionsPanel(QWidget *parent = nullptr);

    void setOptions(const SearchOptions &options);
    SearchOptions options() const;
    // Shows the normalised extensions, the canonical sizes and the refilled suffixes.
    void showCanonicalTexts(const SearchOptions &options);
    // Brings dependent controls in line with the check boxes, as after loading.
    void applyToggles();

    CompareFoldersWarning::State warningState() const;
    bool skipHiddenFiles() const;
    std::optional<int> depthLimit() const;
    void setFindAllDupesForSingleFilesEnabled(bool enabled);
    void turnFindAllDupesForSingleFilesOff();
    QWidget *modeSelector() const;
    // Fills the attribute pop-up with these entries, then the entry that opens the chooser.
    void setAttributePopup(const SpotlightAttributesManager::Popup &popup);
    QComboBox *attributeSelector() const { return m_spotlightAttributePopup; }
    // The similar modes' controls, for tests and pictures.
    QSpinBox *similarityField() const { return m_similarityFld; }
    QCheckBox *distinguishGreyscaleCheck() const { return m_distinguishGreyscaleChk; }

Q_SIGNALS:
    // A control that takes part in the compare-folders warning changed.
    void compareFoldersCheckDue();
    // The folder-depth limit changed, which changes which nested locations are covered.
    void nestingRuleChanged();
    void findAllDupesForSingleFilesTurnedOn();
    // The option group changed height by `delta` after the user chose another mode.
    void modeGroupResized(int delta);
    void detectionModeChanged(int mode);
    void spotlightAttributeChosen(const QString &key);
    void spotlightAttributesChooserRequested();

private:
    QWidget *buildModeGroups();
    QWidget *buildSimilarGroup(int indent);
    QWidget *buildFilters();
    void toggleSubfolderDepth(bool byUser);
    void toggleSkipFilenames(bool byUser);
    void toggleExtensions(bool byUser);
    void toggleFilterFileSize(bool byUser);
    void toggleFilenameSuffix(bool byUser);
    void toggleMode(bool byUser);
    void spotlightAttribute(int index);
    void updateAttributeTolerance();
    QString selectedAttribute() const;

    QComboBox *m_modePopupBtn;
    QList<QWidget *> m_modeGroups;
    QWidget *m_modeStackView;
    QCheckBox *m_ignoreMp4HeaderChk;
    QCheckBox *m_compareFoldersChk;
    QCheckBox *m_containedFoldersChk;
    QCheckBox *m_ignoreClonesChk;
    QDoubleSpinBox *m_durationToleranceFld;
    QComboBox *m_spotlightAttributePopup;
    QLabel *m_spotlightAttributeDescriptionLabel;
    QLabel *m_spotlightToleranceLabel;
    QDoubleSpinBox *m_spotlightToleranceFld;
    QLabel *m_spotlightToleranceUnitsLabel;
    QCheckBox *m_filenameIgnoreExtensionChk;
    QCheckBox *m_filenameIgnoreCommonSuffixesChk;
    QLineEdit *m_filenameIgnoreCommonSuffixesFld;
    QSlider *m_similaritySlider;
    QSpinBox *m_similarityFld;
    QCheckBox *m_distinguishGreyscaleChk;
    QCheckBox *m_skipHiddenFilesChk;
    QCheckBox *m_limitFolderDepthChk;
    QSpinBox *m_limitFolderDepthFld;
    QCheckBox *m_skipFilenamesChk;
    QPlainTextEdit *m_skipFilenamesFld;
    QCheckBox *m_extensionChk;
    QComboBox *m_extensionPopup;
    QLineEdit *m_extensionFld;
    QCheckBox *m_filterFileSizeChk;
    QLineEdit *m_minFileSizeFld;
    QLineEdit *m_maxFileSizeFld;
    QCheckBox *m_ignoreNonWritableChk;
    QCheckBox *m_ignoreOtherOwnerChk;
    QCheckBox *m_findAllDupesForSingleFilesBtn;
};

// The user's full name from the account database, else the login name.
QString userFullName();

} // namespace selfsame
