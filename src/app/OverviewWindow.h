#pragma once

#include "Treemap.h"

#include <QDialog>

class QLabel;

namespace selfsame {

class TreemapView;

// "Where are the duplicates?": the treemap of a results window's reclaimable space by folder.
// Picking a folder asks the window to show only that folder's items; Show All lifts that.
class OverviewWindow : public QDialog {
    Q_OBJECT
public:
    explicit OverviewWindow(QWidget *parent = nullptr);

    void setFolders(const QList<FolderShare> &folders);
    TreemapView *treemap() const { return m_treemap; }

Q_SIGNALS:
    void folderChosen(const QString &folder);
    void showAllChosen();

private:
    TreemapView *m_treemap;
    QLabel *m_summary;
};

} // namespace selfsame
