#include "AttributeChooser.h"

#include "AddAttributeDialog.h"
#include "AttributeChooserModel.h"
#include "attributes/SpotlightAttributesManager.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

namespace selfsame {

AttributeChooser::AttributeChooser(SpotlightAttributesManager &manager, QWidget *parent)
    : QDialog(parent), m_manager(manager)
{
    setWindowTitle(tr("Metadata Attributes"));
    setWindowModality(Qt::WindowModal);
    m_manager.beginChoosing();
    m_model = new AttributeChooserModel(m_manager.editedActiveSpotlightAttributes(), this);

    m_spotlightAttributesSearchFld = new QLineEdit;
    m_spotlightAttributesSearchFld->setPlaceholderText(
        tr("Search names and descriptions, or type extensions: jpg mp3"));
    m_spotlightAttributesSearchFld->setClearButtonEnabled(true);
    connect(m_spotlightAttributesSearchFld, &QLineEdit::textChanged, this, &AttributeChooser::filter);

    m_spotlightAttributesTable = new QTableView;
    m_spotlightAttributesTable->setModel(m_model);
    m_spotlightAttributesTable->setSelectionBehavior(QAbstractItemView::SelectRows);
    m_spotlightAttributesTable->setShowGrid(false);
    m_spotlightAttributesTable->setWordWrap(false);
    m_spotlightAttributesTable->setEditTriggers(QAbstractItemView::NoEditTriggers);
    m_spotlightAttributesTable->verticalHeader()->hide();
    m_spotlightAttributesTable->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    QHeaderView *header = m_spotlightAttributesTable->horizontalHeader();
    header->setSectionResizeMode(AttributeChooserModel::MenuColumn, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(AttributeChooserModel::TypeColumn, QHeaderView::ResizeToContents);
    header->setSectionResizeMode(AttributeChooserModel::DescriptionColumn, QHeaderView::Stretch);
    header->resizeSection(AttributeChooserModel::NameColumn, fontMetrics().averageCharWidth() * 24);
    header->resizeSection(AttributeChooserModel::KeyColumn, fontMetrics().averageCharWidth() * 26);
    m_spotlightAttributesTable->installEventFilter(this);
    connect(m_model, &AttributeChooserModel::ticked, this, [this] {
        // A tick is no choice: with one row selected, OK would otherwise also choose it.
        if (selectedRows().size() == 1)
            m_spotlightAttributesTable->clearSelection();
    });

    m_showSpotlightAttributesKeyChk = new QCheckBox(tr("Show attribute &keys"));
    m_showSpotlightAttributesKeyChk->setChecked(
        SpotlightAttributesManager::settingsStore().value(kShowSpotlightAttributesKeyKey).toBool());
    connect(m_showSpotlightAttributesKeyChk, &QCheckBox::toggled, this,
            &AttributeChooser::toggleSpotlightAttributesKey);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton *add = buttons->addButton(tr("&Add Attribute…"), QDialogButtonBox::ActionRole);
    connect(add, &QPushButton::clicked, this, &AttributeChooser::addAttribute);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_spotlightAttributesSearchFld);
    layout->addWidget(m_spotlightAttributesTable, 1);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_showSpotlightAttributesKeyChk, 1);
    bottom->addWidget(buttons);
    layout->addLayout(bottom);
    resize(fontMetrics().averageCharWidth() * 110, fontMetrics().lineSpacing() * 30);

    toggleSpotlightAttributesKey();
}

void AttributeChooser::filter()
{
    m_model->setRows(filterAttributes(m_spotlightAttributesSearchFld->text(),
                                      m_showSpotlightAttributesKeyChk->isChecked()));
}

void AttributeChooser::toggleSpotlightAttributesKey()
{
    const bool show = m_showSpotlightAttributesKeyChk->isChecked();
    SpotlightAttributesManager::settingsStore().setValue(kShowSpotlightAttributesKeyKey, show);
    m_spotlightAttributesTable->setColumnHidden(AttributeChooserModel::KeyColumn, !show);
    filter();
}

void AttributeChooser::addAttribute()
{
    auto *sheet = new AddAttributeDialog(m_manager, this);
    connect(sheet, &QDialog::accepted, this, &AttributeChooser::filter);
    sheet->open();
}

QList<int> AttributeChooser::selectedRows() const
{
    QList<int> rows;
    for (const QModelIndex &index : m_spotlightAttributesTable->selectionModel()->selectedRows())
        rows.append(index.row());
    std::sort(rows.begin(), rows.end());
    return rows;
}

void AttributeChooser::accept()
{
    QStringList selected;
    for (int row : selectedRows())
        selected.append(m_model->keyAt(row));
    const std::optional<QString> chosen = m_manager.spotlightAttributesOK(selected);
    QDialog::accept();
    Q_EMIT terminatedWithSelectedAttribute(chosen);
}

void AttributeChooser::reject()
{
    QDialog::reject();
    Q_EMIT terminatedWithSelectedAttribute(std::nullopt);
}

bool AttributeChooser::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_spotlightAttributesTable && event->type() == QEvent::KeyPress &&
        static_cast<QKeyEvent *>(event)->key() == Qt::Key_Space) {
        m_model->toggleTogether(selectedRows());
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

} // namespace selfsame
