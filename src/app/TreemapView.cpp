#include "TreemapView.h"

#include "format/ByteSize.h"
#include "names/FileNames.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace selfsame {

namespace {

// More tiles than this are too small to read: the rest share one.
constexpr qsizetype kShownFolders = 40;

QString lastComponent(const QString &folder)
{
    const QString name = folder.section(QLatin1Char('/'), -1);
    return name.isEmpty() ? folder : name;
}

} // namespace

TreemapView::TreemapView(QWidget *parent) : QWidget(parent)
{
    setMouseTracking(true);
    setMinimumSize(240, 160);
}

void TreemapView::setFolders(const QList<FolderShare> &folders)
{
    m_folders = folders.mid(0, kShownFolders);
    if (folders.size() > kShownFolders) {
        FolderShare rest;
        for (qsizetype i = kShownFolders; i < folders.size(); ++i) {
            rest.reclaimable += folders[i].reclaimable;
            rest.copies += folders[i].copies;
        }
        m_folders.append(rest); // no folder: the rest
    }
    layOut();
    update();
}

void TreemapView::layOut()
{
    QList<qint64> weights;
    for (const FolderShare &share : std::as_const(m_folders))
        weights.append(share.reclaimable);
    m_tiles = squarify(weights, QRectF(rect()).adjusted(1, 1, -1, -1));
}

QString TreemapView::folderAt(const QPointF &point) const
{
    for (qsizetype i = 0; i < m_tiles.size(); ++i)
        if (m_tiles[i].contains(point)) return m_folders[i].folder;
    return {};
}

QRectF TreemapView::tileOf(const QString &folder) const
{
    for (qsizetype i = 0; i < m_folders.size(); ++i)
        if (m_folders[i].folder == folder) return m_tiles[i];
    return {};
}

void TreemapView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    layOut();
}

bool TreemapView::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const auto *help = static_cast<QHelpEvent *>(event);
        for (qsizetype i = 0; i < m_tiles.size(); ++i) {
            if (!m_tiles[i].contains(help->pos())) continue;
            const FolderShare &share = m_folders[i];
            const QString where = share.folder.isEmpty() ? tr("Other folders") : displayPath(share.folder);
            QToolTip::showText(help->globalPos(),
                               tr("%1\n%Ln duplicate(s), %2 reclaimable", nullptr, int(share.copies))
                                   .arg(where, formatByteCount(share.reclaimable)),
                               this);
            return true;
        }
        QToolTip::hideText();
        return true;
    }
    return QWidget::event(event);
}

void TreemapView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(rect(), palette().color(QPalette::Base));
    if (m_tiles.isEmpty()) {
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(rect(), Qt::AlignCenter, tr("No duplicates left to free space from."));
        return;
    }
    const bool dark = palette().color(QPalette::Base).lightness() < 128;
    for (qsizetype i = 0; i < m_tiles.size(); ++i) {
        const QRectF tile = m_tiles[i].adjusted(1, 1, -1, -1);
        if (tile.isEmpty()) continue;
        const FolderShare &share = m_folders[i];
        // Neighbouring tiles differ in hue; the rest is grey.
        const QColor fill = share.folder.isEmpty()
                                ? palette().color(QPalette::Mid)
                                : QColor::fromHsv(int((i * 47) % 360), dark ? 110 : 70, dark ? 120 : 235);
        painter.fillRect(tile, fill);
        if (tile.width() < 40 || tile.height() < 18) continue;
        painter.setPen(dark ? Qt::white : Qt::black);
        const QString name = share.folder.isEmpty() ? tr("Other folders") : displayPath(lastComponent(share.folder));
        const QRectF inner = tile.adjusted(4, 2, -4, -2);
        const QFontMetrics metrics = painter.fontMetrics();
        QString text = metrics.elidedText(name, Qt::ElideMiddle, int(inner.width()));
        const QString size = formatByteCount(share.reclaimable);
        if (tile.height() >= 34 && metrics.horizontalAdvance(size) <= inner.width()) text += QLatin1Char('\n') + size;
        painter.drawText(inner, Qt::AlignLeft | Qt::AlignTop, text);
    }
}

void TreemapView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) return;
    const QString folder = folderAt(event->position());
    if (!folder.isEmpty()) Q_EMIT folderClicked(folder);
}

} // namespace selfsame
