#include "SearchOptionsPanel.h"

#include "AttributeTolerance.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPlainTextEdit>
#include <QSlider>
#include <QSpacerItem>
#include <QSpinBox>
#include <QStyle>
#include <QVBoxLayout>
#include <algorithm>
#include <pwd.h>
#include <unistd.h>

namespace selfsame {

namespace {

// Rows of a grid whose second column holds fields on one line.
QWidget *inRow(std::initializer_list<QWidget *> widgets, bool stretch = true)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    for (QWidget *w : widgets)
        layout->addWidget(w);
    if (stretch)
        layout->addStretch(1);
    return row;
}

QVBoxLayout *groupLayout(QWidget *group, int indent)
{
    auto *layout = new QVBoxLayout(group);
    layout->setContentsMargins(indent, 0, 0, 0);
    return layout;
}

// Plain-text fields sized for a few lines of the current font.
void setLineHeight(QPlainTextEdit *edit, int lines)
{
    const int margins = 2 * edit->frameWidth() + int(edit->document()->documentMargin() * 2);
    // Half a line more, so that the last line is not mistaken for a cut-off one.
    edit->setFixedHeight(edit->fontMetrics().lineSpacing() * (2 * lines + 1) / 2 + margins);
}

} // namespace

QString userFullName()
{
    if (const passwd *account = getpwuid(getuid())) {
        const QString gecos =
            QString::fromLocal8Bit(account->pw_gecos).section(QLatin1Char(','), 0, 0).trimmed();
        return gecos.isEmpty() ? QString::fromLocal8Bit(account->pw_name) : gecos;
    }
    return qEnvironmentVariable("USER");
}

SearchOptionsPanel::SearchOptionsPanel(QWidget *parent) : QWidget(parent)
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setColumnStretch(1, 1);

    m_modePopupBtn = new QComboBox;
    m_modePopupBtn->addItem(tr("Content"), 0);
    m_modePopupBtn->addItem(tr("Duration"), 1);
    m_modePopupBtn->addItem(tr("File name"), 2);
    m_modePopupBtn->addItem(tr("Metadata attribute"), 3);
    m_modePopupBtn->addItem(tr("Similar pictures"), int(DetectionMode::SimilarImages));
    m_modePopupBtn->addItem(tr("Same recording"), int(DetectionMode::SimilarAudio));
    auto *modeLabel = new QLabel(tr("Find duplicates &by:"));
    modeLabel->setBuddy(m_modePopupBtn);
    layout->addWidget(modeLabel, 0, 0);
    layout->addWidget(inRow({m_modePopupBtn}), 0, 1);
    layout->addWidget(buildModeGroups(), 1, 1);

    // A blank line sets the filters apart from the mode and its options.
    layout->addItem(new QSpacerItem(0, style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing)), 2, 0);
    layout->addWidget(new QLabel(tr("Filters:")), 3, 0, Qt::AlignTop);
    layout->addWidget(buildFilters(), 3, 1);

    connect(m_modePopupBtn, &QComboBox::activated, this, [this] { toggleMode(true); });
    connect(m_compareFoldersChk, &QCheckBox::toggled, this, &SearchOptionsPanel::compareFoldersCheckDue);
    connect(m_limitFolderDepthChk, &QCheckBox::clicked, this, [this] { toggleSubfolderDepth(true); });
    connect(m_skipFilenamesChk, &QCheckBox::clicked, this, [this] { toggleSkipFilenames(true); });
    connect(m_extensionChk, &QCheckBox::clicked, this, [this] { toggleExtensions(true); });
    connect(m_filterFileSizeChk, &QCheckBox::clicked, this, [this] { toggleFilterFileSize(true); });
    connect(m_filenameIgnoreCommonSuffixesChk, &QCheckBox::clicked, this,
            [this] { toggleFilenameSuffix(true); });
    connect(m_findAllDupesForSingleFilesBtn, &QCheckBox::clicked, this, [this](bool on) {
        if (on)
            Q_EMIT findAllDupesForSingleFilesTurnedOn();
    });
}

QWidget *SearchOptionsPanel::buildModeGroups()
{
    m_modeStackView = new QWidget;
    auto *stack = new QVBoxLayout(m_modeStackView);
    stack->setContentsMargins(0, 0, 0, 0);

    auto *content = new QWidget;
    auto *contentLayout = groupLayout(content, 0);
    m_ignoreMp4HeaderChk = new QCheckBox(tr("Ignore the header of &MP4 files (compare the media only)"));
    m_compareFoldersChk = new QCheckBox(tr("Also find duplicate f&olders"));
    m_containedFoldersChk = new QCheckBox(tr("Also find folders whose files all exist elsewhere"));
    m_containedFoldersChk->setToolTip(
        tr("Finds each folder whose files, by content, all have copies inside one other searched folder, "
           "whatever their names and layout, such as an old backup inside a newer, reorganised one."));
    m_ignoreClonesChk = new QCheckBox(tr("Ignore files that already share their storage (&clones)"));
    contentLayout->addWidget(m_ignoreMp4HeaderChk);
    contentLayout->addWidget(m_compareFoldersChk);
    contentLayout->addWidget(m_containedFoldersChk);
    contentLayout->addWidget(m_ignoreClonesChk);

    // The tolerance fields start a little right of the mode pop-up, under its text.
    const int indent = 20;
    auto *duration = new QWidget;
    m_durationToleranceFld = new QDoubleSpinBox;
    m_durationToleranceFld->setRange(0.0, 86400.0);
    m_durationToleranceFld->setDecimals(2);
    m_durationToleranceFld->setSingleStep(0.1);
    auto *durationLabel = new QLabel(tr("&Tolerance:"));
    durationLabel->setBuddy(m_durationToleranceFld);
    groupLayout(duration, indent)
        ->addWidget(inRow({durationLabel, m_durationToleranceFld, new QLabel(tr("seconds"))}));

    auto *filename = new QWidget;
    auto *filenameLayout = groupLayout(filename, 0);
    m_filenameIgnoreExtensionChk = new QCheckBox(tr("Ignore &extensions"));
    m_filenameIgnoreCommonSuffixesChk = new QCheckBox(tr("Ignore s&uffixes:"));
    m_filenameIgnoreCommonSuffixesFld = new QLineEdit;
    m_filenameIgnoreCommonSuffixesFld->setToolTip(
        tr("Comma-separated endings left out of names before comparing; # stands for a number from 1 to 99, "
           "## for any number. Blanks count."));
    filenameLayout->addWidget(m_filenameIgnoreExtensionChk);
    auto *suffixRow = new QHBoxLayout;
    suffixRow->addWidget(m_filenameIgnoreCommonSuffixesChk);
    suffixRow->addWidget(m_filenameIgnoreCommonSuffixesFld, 1);
    filenameLayout->addLayout(suffixRow);

    auto *attribute = new QWidget;
    auto *attributeLayout = groupLayout(attribute, indent);
    m_spotlightAttributePopup = new QComboBox;
    m_spotlightAttributePopup->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    connect(m_spotlightAttributePopup, &QComboBox::activated, this, &SearchOptionsPanel::spotlightAttribute);
    auto *attributeLabel = new QLabel(tr("&Attribute:"));
    attributeLabel->setBuddy(m_spotlightAttributePopup);
    m_spotlightAttributeDescriptionLabel = new QLabel;
    m_spotlightAttributeDescriptionLabel->setWordWrap(true);
    m_spotlightAttributeDescriptionLabel->setForegroundRole(QPalette::PlaceholderText);
    m_spotlightToleranceLabel = new QLabel(tr("&Tolerance:"));
    m_spotlightToleranceFld = new QDoubleSpinBox;
    m_spotlightToleranceFld->setRange(0.0, 1e12);
    m_spotlightToleranceFld->setDecimals(3);
    m_spotlightToleranceFld->setMaximumWidth(m_durationToleranceFld->sizeHint().width() * 3 / 2);
    m_spotlightToleranceLabel->setBuddy(m_spotlightToleranceFld);
    m_spotlightToleranceUnitsLabel = new QLabel;
    auto *attributeGrid = new QGridLayout;
    attributeGrid->setColumnStretch(1, 1);
    attributeGrid->addWidget(attributeLabel, 0, 0);
    attributeGrid->addWidget(inRow({m_spotlightAttributePopup}), 0, 1);
    attributeGrid->addWidget(m_spotlightAttributeDescriptionLabel, 1, 1);
    attributeGrid->addWidget(m_spotlightToleranceLabel, 2, 0);
    attributeGrid->addWidget(inRow({m_spotlightToleranceFld, m_spotlightToleranceUnitsLabel}), 2, 1);
    attributeLayout->addLayout(attributeGrid);

    // The last group serves both similar modes; toggleMode() shows the parts of each.
    m_modeGroups = {content, duration, filename, attribute, buildSimilarGroup(indent)};
    for (QWidget *group : m_modeGroups) {
        stack->addWidget(group);
        group->hide();
    }
    return m_modeStackView;
}

QWidget *SearchOptionsPanel::buildSimilarGroup(int indent)
{
    auto *similar = new QWidget;
    auto *layout = groupLayout(similar, indent);
    m_similaritySlider = new QSlider(Qt::Horizontal);
    m_similarityFld = new QSpinBox;
    m_similaritySlider->setRange(0, 100);
    m_similarityFld->setRange(0, 100);
    m_similarityFld->setSuffix(tr(" %"));
    m_similaritySlider->setPageStep(5);
    m_similaritySlider->setMinimumWidth(m_similarityFld->sizeHint().width() * 3);
    connect(m_similaritySlider, &QSlider::valueChanged, m_similarityFld, &QSpinBox::setValue);
    connect(m_similarityFld, &QSpinBox::valueChanged, m_similaritySlider, &QSlider::setValue);
    auto *similarityLabel = new QLabel(tr("S&imilarity:"));
    similarityLabel->setBuddy(m_similarityFld);
    auto *loose = new QLabel(tr("looser"));
    auto *strict = new QLabel(tr("stricter"));
    for (QLabel *end : {loose, strict}) end->setForegroundRole(QPalette::PlaceholderText);
    layout->addWidget(inRow({similarityLabel, loose, m_similaritySlider, strict, m_similarityFld}));
    m_distinguishGreyscaleChk = new QCheckBox(tr("Tell &greyscale copies from colour ones"));
    m_distinguishGreyscaleChk->setToolTip(
        tr("When on, a black-and-white copy of a colour picture is not counted as alike."));
    layout->addWidget(m_distinguishGreyscaleChk);
    m_similarityFld->setObjectName(QStringLiteral("similarityFld"));
    m_distinguishGreyscaleChk->setObjectName(QStringLiteral("distinguishGreyscaleChk"));
    return similar;
}

QWidget *SearchOptionsPanel::buildFilters()
{
    auto *filters = new QWidget;
    auto *grid = new QGridLayout(filters);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setColumnStretch(1, 1);
    int row = 0;

    m_skipHiddenFilesChk = new QCheckBox(tr("Skip hidde&n files and folders"));
    grid->addWidget(m_skipHiddenFilesChk, row++, 0, 1, 2);

    m_limitFolderDepthChk = new QCheckBox(tr("&Limit folder depth to"));
    m_limitFolderDepthFld = new QSpinBox;
    m_limitFolderDepthFld->setRange(1, 9999);
    grid->addWidget(m_limitFolderDepthChk, row, 0);
    grid->addWidget(inRow({m_limitFolderDepthFld, new QLabel(tr("levels"))}), row++, 1);

    m_skipFilenamesChk = new QCheckBox(tr("S&kip names matching:"));
    m_skipFilenamesFld = new QPlainTextEdit;
    m_skipFilenamesFld->setTabChangesFocus(true);
    m_skipFilenamesFld->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_skipFilenamesFld->setPlaceholderText(tr("One per line: *.tmp, Thumbs.db, /regex/"));
    setLineHeight(m_skipFilenamesFld, 3);
    grid->addWidget(m_skipFilenamesChk, row, 0, Qt::AlignTop);
    grid->addWidget(m_skipFilenamesFld, row++, 1);

    m_extensionChk = new QCheckBox(tr("E&xtensions:"));
    m_extensionPopup = new QComboBox;
    m_extensionPopup->addItem(tr("Only"), 1);
    m_extensionPopup->addItem(tr("All but"), 2);
    m_extensionFld = new QLineEdit;
    m_extensionFld->setPlaceholderText(tr("jpg heic mov"));
    auto *extensionRow = new QWidget;
    auto *extensionLayout = new QHBoxLayout(extensionRow);
    extensionLayout->setContentsMargins(0, 0, 0, 0);
    extensionLayout->addWidget(m_extensionPopup);
    extensionLayout->addWidget(m_extensionFld, 1);
    grid->addWidget(m_extensionChk, row, 0);
    grid->addWidget(extensionRow, row++, 1);

    m_filterFileSizeChk = new QCheckBox(tr("File si&ze from"));
    m_minFileSizeFld = new QLineEdit;
    m_maxFileSizeFld = new QLineEdit;
    m_maxFileSizeFld->setPlaceholderText(tr("no limit"));
    const int sizeWidth =
        m_minFileSizeFld->fontMetrics().horizontalAdvance(QStringLiteral("0000 MiB")) * 3 / 2;
    for (QLineEdit *field : {m_minFileSizeFld, m_maxFileSizeFld}) {
        field->setMinimumWidth(sizeWidth);
        field->setMaximumWidth(sizeWidth * 2);
        field->setToolTip(tr("A number with an optional unit: B, kB, MB, GB, TB or KiB, MiB, GiB, TiB"));
    }
    auto *toLabel = new QLabel(tr("to"));
    toLabel->setBuddy(m_maxFileSizeFld);
    grid->addWidget(m_filterFileSizeChk, row, 0);
    grid->addWidget(inRow({m_minFileSizeFld, toLabel, m_maxFileSizeFld}), row++, 1);

    m_ignoreNonWritableChk = new QCheckBox(tr("Skip files that I cannot modify or &delete"));
    grid->addWidget(m_ignoreNonWritableChk, row++, 0, 1, 2);
    m_ignoreOtherOwnerChk = new QCheckBox(tr("Skip files not o&wned by %1").arg(userFullName()));
    grid->addWidget(m_ignoreOtherOwnerChk, row++, 0, 1, 2);
    m_findAllDupesForSingleFilesBtn =
        new QCheckBox(tr("Find duplicates of single files anywhere on their dri&ve"));
    m_findAllDupesForSingleFilesBtn->setToolTip(
        tr("When a location is a single file, its duplicates are searched for across its whole drive."));
    grid->addWidget(m_findAllDupesForSingleFilesBtn, row++, 0, 1, 2);
    // Named like their settings, for tests and style sheets.
    m_compareFoldersChk->setObjectName(QStringLiteral("compareFoldersChk"));
    m_containedFoldersChk->setObjectName(QStringLiteral("containedFoldersChk"));
    m_extensionChk->setObjectName(QStringLiteral("extensionChk"));
    m_filterFileSizeChk->setObjectName(QStringLiteral("filterFileSizeChk"));
    m_findAllDupesForSingleFilesBtn->setObjectName(QStringLiteral("findAllDupesForSingleFilesBtn"));
    return filters;
}

void SearchOptionsPanel::setOptions(const SearchOptions &o)
{
    m_skipHiddenFilesChk->setChecked(o.skipHiddenFiles);
    m_findAllDupesForSingleFilesBtn->setChecked(o.findAllDupesForSingleFiles);
    m_ignoreMp4HeaderChk->setChecked(o.ignoreMp4Header);
    m_ignoreClonesChk->setChecked(o.ignoreClones);
    {
        // Loading is no user action: the warning is checked once the toggles run.
        const QSignalBlocker blocker(m_compareFoldersChk);
        m_compareFoldersChk->setChecked(o.compareFolders);
    }
    m_containedFoldersChk->setChecked(o.containedFolders);
    m_limitFolderDepthChk->setChecked(o.limitFolderDepth);
    m_limitFolderDepthFld->setValue(o.folderDepthField);
    m_extensionChk->setChecked(o.extensionsOn);
    m_extensionPopup->setCurrentIndex(qMax(0, m_extensionPopup->findData(o.extensionsPopupTag)));
    m_skipFilenamesChk->setChecked(o.skipFilenames);
    m_skipFilenamesFld->setPlainText(o.skipFilenamesText);
    m_extensionFld->setText(o.extensionsText);
    m_filterFileSizeChk->setChecked(o.filterFileSize);
    m_minFileSizeFld->setText(o.minFileSizeText);
    m_maxFileSizeFld->setText(o.maxFileSizeText);
    m_ignoreNonWritableChk->setChecked(o.ignoreNonWritable);
    m_ignoreOtherOwnerChk->setChecked(o.ignoreOtherOwner);
    m_modePopupBtn->setCurrentIndex(m_modePopupBtn->findData(o.detectionMode));
    m_durationToleranceFld->setValue(o.durationTolerance);
    m_filenameIgnoreExtensionChk->setChecked(o.filenameIgnoreExtension);
    m_filenameIgnoreCommonSuffixesChk->setChecked(o.filenameIgnoreCommonSuffixes);
    m_filenameIgnoreCommonSuffixesFld->setText(o.commonSuffixesText);
    m_spotlightToleranceFld->setValue(o.spotlightTolerance);
    m_similarityFld->setValue(o.similarity);
    m_distinguishGreyscaleChk->setChecked(o.distinguishGreyscale);
}

void SearchOptionsPanel::showCanonicalTexts(const SearchOptions &o)
{
    m_extensionFld->setText(o.extensionsText);
    m_minFileSizeFld->setText(o.minFileSizeText);
    m_maxFileSizeFld->setText(o.maxFileSizeText);
    m_filenameIgnoreCommonSuffixesFld->setText(o.commonSuffixesText);
}

SearchOptions SearchOptionsPanel::options() const
{
    SearchOptions o;
    o.findAllDupesForSingleFiles = m_findAllDupesForSingleFilesBtn->isChecked();
    o.skipHiddenFiles = m_skipHiddenFilesChk->isChecked();
    o.ignoreMp4Header = m_ignoreMp4HeaderChk->isChecked();
    o.ignoreClones = m_ignoreClonesChk->isChecked();
    o.compareFolders = m_compareFoldersChk->isChecked();
    o.containedFolders = m_containedFoldersChk->isChecked();
    o.limitFolderDepth = m_limitFolderDepthChk->isChecked();
    o.folderDepthField = m_limitFolderDepthFld->value();
    o.skipFilenames = m_skipFilenamesChk->isChecked();
    o.skipFilenamesText = m_skipFilenamesFld->toPlainText();
    o.extensionsOn = m_extensionChk->isChecked();
    o.extensionsPopupTag = m_extensionPopup->currentData().toInt();
    o.extensionsText = m_extensionFld->text();
    o.filterFileSize = m_filterFileSizeChk->isChecked();
    o.minFileSizeText = m_minFileSizeFld->text();
    o.maxFileSizeText = m_maxFileSizeFld->text();
    o.ignoreNonWritable = m_ignoreNonWritableChk->isChecked();
    o.ignoreOtherOwner = m_ignoreOtherOwnerChk->isChecked();
    o.detectionMode = m_modePopupBtn->currentData().toInt();
    o.durationTolerance = m_durationToleranceFld->value();
    o.spotlightAttribute = selectedAttribute();
    o.spotlightTolerance = m_spotlightToleranceFld->value();
    o.spotlightToleranceVisible = !m_spotlightToleranceFld->isHidden();
    o.filenameIgnoreExtension = m_filenameIgnoreExtensionChk->isChecked();
    o.filenameIgnoreCommonSuffixes = m_filenameIgnoreCommonSuffixesChk->isChecked();
    o.commonSuffixesText = m_filenameIgnoreCommonSuffixesFld->text();
    o.similarity = m_similarityFld->value();
    o.distinguishGreyscale = m_distinguishGreyscaleChk->isChecked();
    return o;
}

void SearchOptionsPanel::applyToggles()
{
    toggleSubfolderDepth(false);
    toggleExtensions(false);
    toggleSkipFilenames(false);
    toggleFilterFileSize(false);
    toggleFilenameSuffix(false);
    toggleMode(false);
}

CompareFoldersWarning::State SearchOptionsPanel::warningState() const
{
    return {m_modePopupBtn->currentData().toInt() == 0, m_compareFoldersChk->isChecked(),
            m_extensionChk->isChecked() || m_filterFileSizeChk->isChecked() ||
                m_limitFolderDepthChk->isChecked() || m_skipFilenamesChk->isChecked()};
}

bool SearchOptionsPanel::skipHiddenFiles() const
{
    return m_skipHiddenFilesChk->isChecked();
}

std::optional<int> SearchOptionsPanel::depthLimit() const
{
    if (!m_limitFolderDepthChk->isChecked())
        return std::nullopt;
    return m_limitFolderDepthFld->value();
}

void SearchOptionsPanel::setFindAllDupesForSingleFilesEnabled(bool enabled)
{
    m_findAllDupesForSingleFilesBtn->setEnabled(enabled);
}

void SearchOptionsPanel::turnFindAllDupesForSingleFilesOff()
{
    m_findAllDupesForSingleFilesBtn->setChecked(false);
}

QWidget *SearchOptionsPanel::modeSelector() const
{
    return m_modePopupBtn;
}

namespace {
// Enables a field and, when the user just turned it on, puts the cursor in it.
void enableAndSelect(bool enable, QWidget *field, bool byUser)
{
    field->setEnabled(enable);
    if (enable && byUser)
        field->setFocus(Qt::OtherFocusReason);
}
} // namespace

void SearchOptionsPanel::toggleSubfolderDepth(bool byUser)
{
    enableAndSelect(m_limitFolderDepthChk->isChecked(), m_limitFolderDepthFld, byUser);
    Q_EMIT compareFoldersCheckDue();
    Q_EMIT nestingRuleChanged();
}

void SearchOptionsPanel::toggleSkipFilenames(bool byUser)
{
    enableAndSelect(m_skipFilenamesChk->isChecked(), m_skipFilenamesFld, byUser);
    Q_EMIT compareFoldersCheckDue();
}

void SearchOptionsPanel::toggleExtensions(bool byUser)
{
    m_extensionPopup->setEnabled(m_extensionChk->isChecked());
    enableAndSelect(m_extensionChk->isChecked(), m_extensionFld, byUser);
    Q_EMIT compareFoldersCheckDue();
}

void SearchOptionsPanel::toggleFilterFileSize(bool byUser)
{
    enableAndSelect(m_filterFileSizeChk->isChecked(), m_minFileSizeFld, byUser);
    m_maxFileSizeFld->setEnabled(m_filterFileSizeChk->isChecked());
    Q_EMIT compareFoldersCheckDue();
}

void SearchOptionsPanel::toggleFilenameSuffix(bool byUser)
{
    enableAndSelect(m_filenameIgnoreCommonSuffixesChk->isChecked(), m_filenameIgnoreCommonSuffixesFld,
                    byUser);
}

void SearchOptionsPanel::toggleMode(bool byUser)
{
    const int before = m_modeStackView->sizeHint().height();
    const int mode = m_modePopupBtn->currentData().toInt();
    const QWidget *shown = m_modeGroups.value(std::min<qsizetype>(mode, m_modeGroups.size() - 1));
    for (QWidget *group : m_modeGroups)
        group->setVisible(group == shown);
    const bool pictures = mode == int(DetectionMode::SimilarImages);
    m_distinguishGreyscaleChk->setVisible(pictures);
    m_similarityFld->setToolTip(pictures ? tr("100 % finds only pictures that cannot be told apart; lower values also "
                                              "find copies scaled, recompressed, cropped or retouched more.")
                                         : tr("100 % finds only recordings that cannot be told apart; lower values "
                                              "also find copies encoded at lower quality or cut differently."));
    m_similaritySlider->setToolTip(m_similarityFld->toolTip());
    if (byUser)
        Q_EMIT modeGroupResized(m_modeStackView->sizeHint().height() - before);
    Q_EMIT compareFoldersCheckDue();
    Q_EMIT detectionModeChanged(mode);
}

void SearchOptionsPanel::setAttributePopup(const SpotlightAttributesManager::Popup &popup)
{
    m_spotlightAttributePopup->clear();
    for (const SpotlightAttributesManager::PopupItem &item : popup.items)
        m_spotlightAttributePopup->addItem(item.title, item.key);
    m_spotlightAttributePopup->insertSeparator(m_spotlightAttributePopup->count());
    m_spotlightAttributePopup->addItem(tr("Other Attributes…"));
    m_spotlightAttributePopup->setCurrentIndex(int(qMax<qsizetype>(popup.selected, 0)));
    updateAttributeTolerance();
}

QString SearchOptionsPanel::selectedAttribute() const
{
    return m_spotlightAttributePopup->currentData().toString();
}

void SearchOptionsPanel::spotlightAttribute(int index)
{
    const QString key = m_spotlightAttributePopup->itemData(index).toString();
    if (key.isEmpty()) {
        Q_EMIT spotlightAttributesChooserRequested();
        return;
    }
    const int before = m_modeStackView->sizeHint().height();
    updateAttributeTolerance();
    Q_EMIT spotlightAttributeChosen(key);
    Q_EMIT modeGroupResized(m_modeStackView->sizeHint().height() - before);
}

void SearchOptionsPanel::updateAttributeTolerance()
{
    const QString key = selectedAttribute();
    const int typeId = SpotlightAttributesManager::GetTypeIDForSpotlightAttribute(key);
    const bool shown = attributeToleranceShown(typeId);
    m_spotlightToleranceLabel->setVisible(shown);
    m_spotlightToleranceFld->setVisible(shown);
    m_spotlightToleranceUnitsLabel->setVisible(shown);
    m_spotlightToleranceUnitsLabel->setText(
        attributeToleranceUnits(typeId, key, QLocale().measurementSystem() == QLocale::MetricSystem));
    if (!key.isEmpty()) {
        const QString description = SpotlightAttributesManager::GetDescriptionForSpotlightAttribute(key);
        m_spotlightAttributeDescriptionLabel->setText(description);
        m_spotlightAttributeDescriptionLabel->setVisible(!description.isEmpty());
    }
}

} // namespace selfsame
