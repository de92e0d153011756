#include "FilterBar.h"

#include "results/ItemKeys.h"

#include <QComboBox>
#include <QDesktopServices>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QToolButton>
#include <QUrl>

namespace selfsame {

namespace {

void selectData(QComboBox *popup, const QVariant &value)
{
    const int index = popup->findData(value);
    if (index >= 0) popup->setCurrentIndex(index);
}

} // namespace

FilterBar::FilterBar(QWidget *parent) : QWidget(parent)
{
    m_filterStringCriterionPopup = new QComboBox;
    m_filterStringCriterionPopup->setObjectName(QStringLiteral("filterStringCriterion"));
    m_filterStringCriterionPopup->addItem(tr("Name"), QStringLiteral("URL.path.lastPathComponent"));
    m_filterStringCriterionPopup->addItem(tr("Folder"), QString(kSortByFolderKeyPath));
    m_filterStringCriterionPopup->addItem(tr("Path"), QStringLiteral("URL.path"));
    m_filterStringCriterionPopup->addItem(tr("Kind"), QStringLiteral("extension"));
    m_filterStringCriterionPopup->addItem(tr("Tags"), QStringLiteral("tagList"));
    m_filterStringCriterionPopup->addItem(tr("Codecs"), QStringLiteral("codecs"));

    m_filterStringOperatorPopup = new QComboBox;
    m_filterStringOperatorPopup->setObjectName(QStringLiteral("filterStringOperator"));
    const std::pair<const char *, int> operators[] = {
        {QT_TR_NOOP("contains"), Contains},
        {QT_TR_NOOP("contains the word"), ContainsWholeWord},
        {QT_TR_NOOP("begins with"), BeginsWith},
        {QT_TR_NOOP("ends with"), EndsWith},
        {QT_TR_NOOP("is"), Equals},
        {QT_TR_NOOP("contains any of"), ContainsAnyWord},
        {QT_TR_NOOP("contains any of the words"), ContainsAnyWholeWord},
        {QT_TR_NOOP("matches"), MatchesRegex},
        {QT_TR_NOOP("does not contain"), Contains + kNegated},
        {QT_TR_NOOP("does not contain the word"), ContainsWholeWord + kNegated},
        {QT_TR_NOOP("does not begin with"), BeginsWith + kNegated},
        {QT_TR_NOOP("does not end with"), EndsWith + kNegated},
        {QT_TR_NOOP("is not"), Equals + kNegated},
        {QT_TR_NOOP("contains none of"), ContainsAnyWord + kNegated},
        {QT_TR_NOOP("contains none of the words"), ContainsAnyWholeWord + kNegated},
        {QT_TR_NOOP("does not match"), MatchesRegex + kNegated},
    };
    for (const auto &[title, tag] : operators) {
        if (tag == Contains + kNegated) m_filterStringOperatorPopup->insertSeparator(m_filterStringOperatorPopup->count());
        m_filterStringOperatorPopup->addItem(tr(title), tag);
    }

    m_filterFld = new QLineEdit;
    m_filterFld->setObjectName(QStringLiteral("filterText"));
    m_filterFld->setPlaceholderText(tr("Filter"));
    m_filterFld->setClearButtonEnabled(true);
    m_filterFld->setMinimumWidth(160);
    m_filterErrorLabel = new QLabel(tr("Invalid regular expression"));
    m_filterErrorLabel->setStyleSheet(QStringLiteral("color: #c0392b"));
    m_filterErrorLabel->hide();
    m_filterErrorHelpBtn = new QToolButton;
    m_filterErrorHelpBtn->setText(QStringLiteral("?"));
    m_filterErrorHelpBtn->setToolTip(tr("Try the expression in an online tester"));
    m_filterErrorHelpBtn->hide();
    connect(m_filterErrorHelpBtn, &QToolButton::clicked, this, [] {
        QDesktopServices::openUrl(QUrl(QStringLiteral("https://regex101.com/?flavor=pcre2")));
    });

    m_filterDateTypePopup = new QComboBox;
    m_filterDateTypePopup->setObjectName(QStringLiteral("filterDateType"));
    m_filterDateTypePopup->addItem(tr("Modified"), QStringLiteral("modified"));
    m_filterDateTypePopup->addItem(tr("Created"), QStringLiteral("created"));
    m_filterDateTypePopup->addItem(tr("Last opened"), QStringLiteral("lastUsed"));
    m_filterDateTypePopup->addItem(tr("Attributes changed"), QStringLiteral("attributes"));
    m_filterDateOperatorPopup = new QComboBox;
    m_filterDateOperatorPopup->setObjectName(QStringLiteral("filterDateOperator"));
    m_filterDateOperatorPopup->addItem(tr("newer than"), 0);
    m_filterDateOperatorPopup->addItem(tr("older than"), 1);
    m_filterDateValueFld = new QDoubleSpinBox;
    m_filterDateValueFld->setObjectName(QStringLiteral("filterDateValue"));
    m_filterDateValueFld->setDecimals(0);
    m_filterDateValueFld->setRange(0, 100000);
    m_filterDateValueFld->setSpecialValueText(tr("any time"));
    m_filterDateUnitPopup = new QComboBox;
    m_filterDateUnitPopup->setObjectName(QStringLiteral("filterDateUnit"));
    m_filterDateUnitPopup->addItem(tr("days"), 0);
    m_filterDateUnitPopup->addItem(tr("weeks"), 1);
    m_filterDateUnitPopup->addItem(tr("months"), 2);
    m_filterDateUnitPopup->addItem(tr("years"), 3);

    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_filterStringCriterionPopup);
    layout->addWidget(m_filterStringOperatorPopup);
    layout->addWidget(m_filterFld, 1);
    layout->addWidget(m_filterErrorLabel);
    layout->addWidget(m_filterErrorHelpBtn);
    layout->addSpacing(12);
    layout->addWidget(m_filterDateTypePopup);
    layout->addWidget(m_filterDateOperatorPopup);
    layout->addWidget(m_filterDateValueFld);
    layout->addWidget(m_filterDateUnitPopup);

    m_typing.setSingleShot(true);
    m_typing.setInterval(250);
    connect(&m_typing, &QTimer::timeout, this, &FilterBar::filterChanged);
    connect(m_filterFld, &QLineEdit::textChanged, &m_typing, qOverload<>(&QTimer::start));
    connect(m_filterFld, &QLineEdit::returnPressed, this, [this] {
        m_typing.stop();
        Q_EMIT filterChanged();
    });
    connect(m_filterDateValueFld, &QDoubleSpinBox::valueChanged, &m_typing, qOverload<>(&QTimer::start));
    for (QComboBox *popup : {m_filterStringCriterionPopup, m_filterStringOperatorPopup, m_filterDateTypePopup,
                             m_filterDateOperatorPopup, m_filterDateUnitPopup})
        connect(popup, &QComboBox::activated, this, &FilterBar::filterChanged);
}

FilterCriteria FilterBar::criteria() const
{
    FilterCriteria criteria;
    criteria.criterionKey = m_filterStringCriterionPopup->currentData().toString();
    criteria.stringOperator = m_filterStringOperatorPopup->currentData().toInt();
    criteria.text = m_filterFld->text();
    criteria.dateKey = m_filterDateTypePopup->currentData().toString();
    criteria.dateOperator = m_filterDateOperatorPopup->currentData().toInt();
    criteria.dateNumber = m_filterDateValueFld->value();
    criteria.dateUnit = m_filterDateUnitPopup->currentData().toInt();
    return criteria;
}

void FilterBar::setCriteria(const FilterCriteria &criteria)
{
    selectData(m_filterStringCriterionPopup, criteria.criterionKey);
    selectData(m_filterStringOperatorPopup, criteria.stringOperator);
    selectData(m_filterDateTypePopup, criteria.dateKey);
    selectData(m_filterDateOperatorPopup, criteria.dateOperator);
    selectData(m_filterDateUnitPopup, criteria.dateUnit);
}

void FilterBar::showRegexError(const QString &error)
{
    m_filterErrorLabel->setVisible(!error.isEmpty());
    m_filterErrorLabel->setToolTip(error);
    m_filterErrorHelpBtn->setVisible(!error.isEmpty());
}

void FilterBar::showOnlyFolder(const QString &folder)
{
    selectData(m_filterStringCriterionPopup, QStringLiteral("URL.path"));
    selectData(m_filterStringOperatorPopup, int(BeginsWith));
    const QSignalBlocker quiet(m_filterFld); // one filtering, now, not another after a pause
    m_filterFld->setText(folder.endsWith(QLatin1Char('/')) ? folder : folder + QLatin1Char('/'));
    Q_EMIT filterChanged();
}

void FilterBar::clearTextCondition()
{
    const QSignalBlocker quiet(m_filterFld);
    m_filterFld->clear();
    Q_EMIT filterChanged();
}

QWidget *FilterBar::firstInTabOrder() const
{
    return m_filterStringCriterionPopup;
}

QWidget *FilterBar::lastInTabOrder() const
{
    return m_filterDateUnitPopup;
}

} // namespace selfsame
