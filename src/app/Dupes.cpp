#include "Dupes.h"

#include "LocationsModel.h"
#include "format/ByteSize.h"
#include "format/Formatters.h"

#include <QCloseEvent>
#include <QDateTime>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <map>

namespace selfsame {

namespace {
enum Column { NameColumn, FolderColumn, SizeColumn, ModifiedColumn };
constexpr int kPathRole = Qt::UserRole;
} // namespace

Dupes::Dupes(QWidget *parent) : QMainWindow(parent)
{
    setAttribute(Qt::WA_DeleteOnClose);
    auto *central = new QWidget;
    auto *layout = new QVBoxLayout(central);

    m_statusLbl = new QLabel;
    m_statusLbl->setWordWrap(true);
    m_statusLbl->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_progressBar = new QProgressBar;
    m_progressBar->setTextVisible(false);
    m_abortBtn = new QPushButton(tr("&Stop"));
    connect(m_abortBtn, &QPushButton::clicked, this, [this] { m_search.abort(); });
    auto *statusRow = new QHBoxLayout;
    statusRow->addWidget(m_progressBar, 1);
    statusRow->addWidget(m_abortBtn);

    m_list = new QTreeWidget;
    m_list->setHeaderLabels({tr("Name"), tr("Folder"), tr("Size"), tr("Modified")});
    m_list->setUniformRowHeights(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->header()->setStretchLastSection(false);
    m_list->header()->setSectionResizeMode(FolderColumn, QHeaderView::Stretch);
    m_list->hide();

    layout->addWidget(m_statusLbl);
    layout->addLayout(statusRow);
    layout->addWidget(m_list, 1);
    setCentralWidget(central);
    connect(&m_search, &DuplicateSearch::progress, this, &Dupes::showProgress);
    connect(&m_search, &DuplicateSearch::searchDone, this, &Dupes::searchDone);
    resize(760, 480);
}

void Dupes::searchInFolderURLs(const SearchRequest &request)
{
    QStringList names;
    for (const QString &path : request.searchInFolderURLs)
        names.append(displayName(path));
    setWindowTitle(tr("Duplicates in %1").arg(QLocale().createSeparatedList(names)));
    m_statusLbl->setText(tr("Starting the search…"));
    m_progressBar->setRange(0, 0);
    m_search.searchInFolderURLs(request);
}

void Dupes::showProgress(const QString &status, double progress)
{
    m_statusLbl->setText(status);
    if (progress < 0) {
        m_progressBar->setRange(0, 0);
    } else {
        m_progressBar->setRange(0, 1000);
        m_progressBar->setValue(int(progress * 1000));
    }
}

void Dupes::searchDone()
{
    m_progressBar->hide();
    m_abortBtn->hide();
    const QList<ResultItem> &items = m_search.mainItems();
    if (m_search.aborted()) {
        m_statusLbl->setText(tr("The search was stopped."));
    } else if (items.isEmpty()) {
        const EmptyResultMessage empty =
            emptyResultMessage(m_search.request().detectionMode, m_search.statistics());
        m_statusLbl->setText(empty.informativeText.isEmpty()
                                 ? empty.message
                                 : empty.message + QLatin1Char('\n') + empty.informativeText);
    }
    if (!items.isEmpty())
        fillList(items);
    Q_EMIT finishedSearching(this);
}

void Dupes::fillList(const QList<ResultItem> &items)
{
    std::map<int, QList<const ResultItem *>> groups;
    for (const ResultItem &item : items)
        groups[item.group].append(&item);
    const IntegerFormatter &count = IntegerFormatter::shared();
    m_statusLbl->setText(tr("%1 files in %2 groups of duplicates")
                             .arg(count.stringForIntegerValue(items.size()),
                                  count.stringForIntegerValue(qint64(groups.size()))));
    QList<QTreeWidgetItem *> rows;
    for (const auto &[group, members] : groups) {
        auto *groupRow = new QTreeWidgetItem({tr("%n duplicates", nullptr, int(members.size())), QString(),
                                              formatByteCount(members.first()->size)});
        for (const ResultItem *item : members) {
            auto *row = new QTreeWidgetItem(
                groupRow,
                {item->name(), QFileInfo(item->path).path(), formatByteCount(item->size),
                 QLocale().toString(QDateTime::fromSecsSinceEpoch(item->modified), QLocale::ShortFormat)});
            row->setData(NameColumn, kPathRole, item->path);
            row->setToolTip(NameColumn, item->path);
            row->setTextAlignment(SizeColumn, Qt::AlignRight | Qt::AlignVCenter);
        }
        groupRow->setTextAlignment(SizeColumn, Qt::AlignRight | Qt::AlignVCenter);
        rows.append(groupRow);
    }
    m_list->addTopLevelItems(rows);
    m_list->expandAll();
    for (int column : {NameColumn, SizeColumn, ModifiedColumn})
        m_list->resizeColumnToContents(column);
    m_list->show();
}

bool Dupes::selectAndRevealInTopList(const QString &path)
{
    for (int g = 0; g < m_list->topLevelItemCount(); ++g) {
        QTreeWidgetItem *group = m_list->topLevelItem(g);
        for (int i = 0; i < group->childCount(); ++i) {
            QTreeWidgetItem *row = group->child(i);
            if (row->data(NameColumn, kPathRole).toString() != path)
                continue;
            m_list->setCurrentItem(row);
            m_list->scrollToItem(row);
            show();
            raise();
            activateWindow();
            return true;
        }
    }
    return false;
}

void Dupes::closeEvent(QCloseEvent *event)
{
    m_search.abortAndWait(true);
    Q_EMIT closed(this);
    event->accept();
}

} // namespace selfsame
