#pragma once

#include "Treemap.h"

#include <QWidget>

namespace selfsame {

// The overview of where duplicates take room: a tile per folder, sized by what keeping one copy
// of each group would free there. A click on a tile picks its folder.
class TreemapView : public QWidget {
    Q_OBJECT
public:
    explicit TreemapView(QWidget *parent = nullptr);

    // The folders shown: the largest ones, and the rest together as one tile.
    void setFolders(const QList<FolderShare> &folders);
    // The folder under a point of the view; empty for the tile of the rest, or none.
    QString folderAt(const QPointF &point) const;
    QRectF tileOf(const QString &folder) const;

    QSize sizeHint() const override { return {720, 440}; }

Q_SIGNALS:
    void folderClicked(const QString &folder);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void layOut();

    QList<FolderShare> m_folders; // the last one may stand for the rest
    QList<QRectF> m_tiles;
};

} // namespace selfsame
