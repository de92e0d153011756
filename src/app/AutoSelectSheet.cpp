#include "AutoSelectSheet.h"

#include "Alert.h"
#include "LocalFiles.h"
#include "SearchDefaults.h"
#include "Settings.h"
#include "fileops/DeleteChecks.h"
#include "names/FileNames.h"
#include "results/EnclosingFolders.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QPushButton>
#include <QRadioButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace selfsame {

namespace {

const QLatin1String kFolder("auto-select folder");
const QLatin1String kChoice("auto-select choice");

} // namespace

// Shows the folder of the folder rule; a folder or file dropped on it takes its place.
class FolderDropField : public QLineEdit {
public:
    std::function<void(const QString &path)> dropped;

    FolderDropField()
    {
        setReadOnly(true);
        setAcceptDrops(true);
    }

protected:
    void dragEnterEvent(QDragEnterEvent *event) override { event->acceptProposedAction(); }
    void dragMoveEvent(QDragMoveEvent *event) override { event->acceptProposedAction(); }
    void dropEvent(QDropEvent *event) override
    {
        const QStringList paths = localPaths(event->mimeData()->urls());
        if (paths.isEmpty()) {
            event->ignore(); // no file among what was dropped
            return;
        }
        event->acceptProposedAction();
        if (dropped)
            dropped(paths.first());
    }
};

AutoSelectSheet::AutoSelectSheet(QWidget *window, ResultModel &model, Settings &settings)
    : QDialog(window), m_model(model), m_settings(settings)
{
    setWindowTitle(tr("Select Automatically"));
    setWindowModality(Qt::WindowModal);
    settings.registerDefaults(autoSelectRegisteredDefaults());

    m_selectAction = new QAction(tr("Select &Automatically…"), this);
    connect(m_selectAction, &QAction::triggered, this, [this] { automaticallySelectInFolder(); });
    m_unhideAction = new QAction(tr("&Unhide"), this);
    connect(m_unhideAction, &QAction::triggered, this, &AutoSelectSheet::automaticallySelectUnhide);

    m_rules = new QButtonGroup(this);
    auto *sameName = new QRadioButton(tr("Copies in one folder named like the first with a suffix added "
                                         "(“name copy.ext” beside “name.ext”)"));
    auto *whateverName = new QRadioButton(tr("Copies in one folder whatever their names, keeping"));
    auto *inside = new QRadioButton(tr("Copies"));
    auto *byTag = new QRadioButton(tr("Copies"));
    m_rules->addButton(sameName, SameFolderSameName);
    m_rules->addButton(whateverName, SameFolderWhateverName);
    m_rules->addButton(inside, InsideFolder);
    m_rules->addButton(byTag, ByTag);
    auto *largestPicture = new QRadioButton(tr("All but the largest picture (the most pixels, then the largest file)"));
    auto *bestRecording =
        new QRadioButton(tr("All but the best recording (the highest bit rate, then a lossless format)"));
    auto *containedFolders =
        new QRadioButton(tr("Every folder whose files all have copies in another folder, keeping that folder"));
    m_rules->addButton(largestPicture, LargestPicture);
    m_rules->addButton(bestRecording, BestRecording);
    m_rules->addButton(containedFolders, ContainedFolders);

    m_oldest = new QComboBox;
    m_oldest->addItems({tr("the oldest"), tr("the newest")});
    m_date = datePopup();
    m_inside = new QComboBox;
    m_inside->addItems({tr("directly inside"), tr("anywhere inside"), tr("not directly inside"),
                        tr("anywhere outside")});
    m_folder = new FolderDropField;
    m_folder->setPlaceholderText(tr("Drop a folder here"));
    m_folder->dropped = [this](const QString &path) {
        m_settings.setValue(kFolder, Settings::pathValue(path));
        setFolder(path);
    };
    m_chooseFolder = new QPushButton(tr("Choose…"));
    connect(m_chooseFolder, &QPushButton::clicked, this, &AutoSelectSheet::chooseFolder);
    m_insideOldest = new QComboBox;
    m_insideOldest->addItems({tr("whatever their date"), tr("when later than a copy elsewhere by"),
                              tr("when earlier than a copy elsewhere by"), tr("when dated as a copy elsewhere by")});
    m_insideDate = datePopup();
    m_tagCondition = new QComboBox;
    m_tagCondition->addItems({tr("having the tag"), tr("having any tag"), tr("not having the tag"),
                              tr("having no tag")});
    m_tagField = new QLineEdit;
    m_hide = new QCheckBox(tr("Hide the copies that are neither selected nor kept"));

    // Each label says what is kept, in the words of the opposite condition.
    m_folderFormats = tr("Kept: the copies %1 the folder.|Kept: the copies %1 the folder, and those "
                         "that the date condition spares.")
                          .split(u'|');
    m_tagFormat = tr("Kept: the copies %1.");
    m_folderLabel = new QLabel;
    m_tagLabel = new QLabel;
    for (QLabel *label : {m_folderLabel, m_tagLabel}) {
        label->setWordWrap(true);
        label->setEnabled(false); // drawn as a quiet explanation
    }

    auto *intro = new QLabel(tr("In every group of duplicates, select:"));
    auto *grid = new QGridLayout;
    grid->setColumnMinimumWidth(0, 22);
    grid->addWidget(sameName, 0, 0, 1, 2);
    auto *whateverRow = new QHBoxLayout;
    whateverRow->addWidget(whateverName);
    whateverRow->addWidget(m_oldest);
    whateverRow->addWidget(new QLabel(tr("by")));
    whateverRow->addWidget(m_date);
    whateverRow->addStretch();
    grid->addLayout(whateverRow, 1, 0, 1, 2);
    auto *insideRow = new QHBoxLayout;
    insideRow->addWidget(inside);
    insideRow->addWidget(m_inside);
    insideRow->addWidget(new QLabel(tr("the folder")));
    insideRow->addWidget(m_folder, 1);
    insideRow->addWidget(m_chooseFolder);
    grid->addLayout(insideRow, 2, 0, 1, 2);
    auto *dateRow = new QHBoxLayout;
    dateRow->addWidget(m_insideOldest);
    dateRow->addWidget(m_insideDate);
    dateRow->addStretch();
    grid->addLayout(dateRow, 3, 1);
    grid->addWidget(m_folderLabel, 4, 1);
    auto *tagRow = new QHBoxLayout;
    tagRow->addWidget(byTag);
    tagRow->addWidget(m_tagCondition);
    tagRow->addWidget(m_tagField, 1);
    grid->addLayout(tagRow, 5, 0, 1, 2);
    grid->addWidget(m_tagLabel, 6, 1);
    grid->addWidget(largestPicture, 7, 0, 1, 2);
    grid->addWidget(bestRecording, 8, 0, 1, 2);
    grid->addWidget(containedFolders, 9, 0, 1, 2);
    grid->setVerticalSpacing(8);

    auto *buttons = new QDialogButtonBox;
    buttons->addButton(tr("Select"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(QDialogButtonBox::Cancel);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::accepted, this, &AutoSelectSheet::perform);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(intro);
    layout->addLayout(grid);
    layout->addSpacing(6);
    layout->addWidget(m_hide);
    layout->addWidget(buttons);

    connect(m_rules, &QButtonGroup::idToggled, this, &AutoSelectSheet::refreshControls);
    for (QComboBox *popup : {m_oldest, m_date, m_inside, m_insideOldest, m_insideDate, m_tagCondition})
        connect(popup, &QComboBox::currentIndexChanged, this, &AutoSelectSheet::refreshControls);
    updateActions();
}

QComboBox *AutoSelectSheet::datePopup()
{
    // Index = tag of the date key: created, modified, last used, added.
    auto *popup = new QComboBox;
    popup->addItems({tr("creation date"), tr("modification date"), tr("last used date"), tr("date added")});
    return popup;
}

QLineEdit *AutoSelectSheet::folderField() const
{
    return m_folder;
}

void AutoSelectSheet::updateActions()
{
    m_selectAction->setEnabled(m_model.canAutomaticallySelect());
    m_unhideAction->setEnabled(m_model.canUnhide());
}

void AutoSelectSheet::automaticallySelectInFolder(const QString &folder)
{
    if (const auto warning = autoSelectWarning(m_model.detectionMode(), m_settings.dictionary(key::doNotShowAgain))) {
        const AlertAnswer answer = askAlert(parentWidget(), QMessageBox::Warning, *warning);
        if (answer.code != kFirstButton)
            return;
        if (answer.suppress)
            m_settings.setDictionaryValue(key::doNotShowAgain, QString::fromLatin1(kAutoSelectTimeBased), true);
    }
    load(folder);
    open();
}

void AutoSelectSheet::load(const QString &folder)
{
    QVariantMap stored;
    QStringList keys = autoSelectRegisteredDefaults().keys();
    keys << kChoice << kFolder;
    for (const QString &key : keys)
        if (const QVariant value = m_settings.value(key); value.isValid())
            stored.insert(key, key == kFolder ? QVariant(Settings::pathFrom(value)) : value);
    const AutoSelectSettings s = autoSelectSettingsFrom(stored);

    const DetectionMode mode = m_model.detectionMode();
    const bool containedFolders = m_model.request().containedFolders;
    for (QAbstractButton *button : m_rules->buttons())
        button->setVisible(autoSelectRuleOffered(m_rules->id(button), mode, containedFolders));
    const std::optional<int> storedChoice =
        stored.contains(kChoice) ? std::optional<int>(s.choice) : std::nullopt;
    m_rules->button(folder.isEmpty() ? autoSelectInitialRule(storedChoice, mode, containedFolders)
                                     : int(InsideFolder))
        ->setChecked(true);
    auto setTag = [](QComboBox *popup, int tag) { popup->setCurrentIndex(tag >= 0 && tag < popup->count() ? tag : 0); };
    setTag(m_oldest, s.oldest == 0 ? 0 : 1);
    setTag(m_date, s.date);
    setTag(m_inside, s.inside);
    setTag(m_insideOldest, s.insideOldest);
    setTag(m_insideDate, s.insideDate);
    setTag(m_tagCondition, s.tagCondition);
    m_tagField->setText(s.tagValue);
    m_hide->setChecked(s.hide);

    QString path = folder.isEmpty() ? s.folder : folder;
    if (!pathExists(path))
        path = QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
    if (!path.isEmpty())
        setFolder(path);
    refreshControls();
}

void AutoSelectSheet::refreshControls()
{
    const int rule = m_rules->checkedId();
    m_oldest->setEnabled(rule == SameFolderWhateverName);
    m_date->setEnabled(rule == SameFolderWhateverName);
    for (QWidget *control : std::initializer_list<QWidget *>{m_inside, m_folder, m_chooseFolder, m_insideOldest})
        control->setEnabled(rule == InsideFolder);
    m_insideDate->setEnabled(rule == InsideFolder && m_insideOldest->currentIndex() != AnyDate);
    m_tagCondition->setEnabled(rule == ByTag);
    const int condition = m_tagCondition->currentIndex();
    m_tagField->setEnabled(rule == ByTag && (condition == HavingTag || condition == NotHavingTag));
    m_folderLabel->setText(folderLabelText());
    m_tagLabel->setText(tagLabelText());
}

QString AutoSelectSheet::folderLabelText() const
{
    const QString &format = m_folderFormats.value(m_insideOldest->currentIndex() != AnyDate ? 1 : 0);
    return format.arg(m_inside->itemText(reverseInsideFolder(m_inside->currentIndex())));
}

QString AutoSelectSheet::tagLabelText() const
{
    return m_tagFormat.arg(m_tagCondition->itemText(reverseHavingTag(m_tagCondition->currentIndex())));
}

void AutoSelectSheet::chooseFolder()
{
    const QString chosen =
        QFileDialog::getExistingDirectory(this, tr("Choose the Folder"), folderForFileDialog(m_folderPath));
    if (chosen.isEmpty())
        return;
    m_settings.setValue(kFolder, chosen);
    setFolder(chosen);
}

void AutoSelectSheet::setFolder(const QString &folder)
{
    m_folderPath = folder;
    m_folder->setText(displayPath(folder));
    m_folder->setToolTip(displayPath(folder));
}

AutoSelectSettings AutoSelectSheet::choices() const
{
    AutoSelectSettings s;
    s.choice = m_rules->checkedId();
    s.oldest = m_oldest->currentIndex();
    s.date = m_date->currentIndex();
    s.inside = m_inside->currentIndex();
    s.insideOldest = m_insideOldest->currentIndex();
    s.insideDate = m_insideDate->currentIndex();
    s.tagCondition = m_tagCondition->currentIndex();
    s.tagValue = m_tagField->text();
    s.hide = m_hide->isChecked();
    s.folder = m_folderPath;
    return s;
}

void AutoSelectSheet::perform()
{
    const AutoSelectOutcome outcome = performAutomaticallySelect(m_model, choices());
    for (auto it = outcome.settingsToStore.begin(); it != outcome.settingsToStore.end(); ++it)
        m_settings.setValue(it.key(), it.value());
    updateActions();
    Q_EMIT modelChanged();
}

void AutoSelectSheet::automaticallySelectUnhide()
{
    m_model.automaticallySelectUnhide();
    updateActions();
    Q_EMIT modelChanged();
}

void AutoSelectSheet::buildFolderSubmenu(QMenu *menu, const QList<ResultItem *> &targeted)
{
    menu->clear();
    if (targeted.size() != 1)
        return;
    QFileIconProvider icons;
    for (const QString &folder : enclosingFolders(targeted.first()->path)) {
        QAction *entry = menu->addAction(pathIcon(icons, folder).pixmap(16, 16), displayName(folder));
        entry->setData(folder);
        entry->setEnabled(isFolder(folder));
        connect(entry, &QAction::triggered, this, [this, folder] { automaticallySelectInFolder(folder); });
    }
}

} // namespace selfsame
