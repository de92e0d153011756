#include "OverviewWindow.h"

#include "TreemapView.h"
#include "format/ByteSize.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace selfsame {

OverviewWindow::OverviewWindow(QWidget *parent) : QDialog(parent)
{
    setWindowTitle(tr("Where are the duplicates?"));
    m_summary = new QLabel;
    m_summary->setWordWrap(true);
    m_treemap = new TreemapView;
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    QPushButton *showAll = buttons->addButton(tr("Show All"), QDialogButtonBox::ResetRole);
    connect(showAll, &QPushButton::clicked, this, &OverviewWindow::showAllChosen);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::close);
    connect(m_treemap, &TreemapView::folderClicked, this, &OverviewWindow::folderChosen);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_summary);
    layout->addWidget(m_treemap, 1);
    layout->addWidget(buttons);
}

void OverviewWindow::setFolders(const QList<FolderShare> &folders)
{
    qint64 total = 0;
    for (const FolderShare &share : folders)
        total += share.reclaimable;
    m_summary->setText(tr("%1 could be freed in %Ln folder(s), each tile sized by its share. Click a folder to "
                          "show only its duplicates in the lists.",
                          nullptr, int(folders.size()))
                           .arg(formatByteCount(total)));
    m_treemap->setFolders(folders);
}

} // namespace selfsame
