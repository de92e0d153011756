#include "ItemIcons.h"

#include <QApplication>
#include <QFileIconProvider>
#include <QIcon>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

namespace selfsame {

namespace {

QPixmap squareCanvas(const QPixmap &image)
{
    const int side = std::max(image.width(), image.height());
    QPixmap canvas(side, side);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.drawPixmap((side - image.width()) / 2, (side - image.height()) / 2, image);
    return canvas;
}

// A round badge in one quarter of the icon, with a glyph that tells what it means.
void drawBadge(QPainter &painter, const QRectF &quarter, const QColor &colour, const QString &glyph)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(Qt::white, std::max(1.0, quarter.width() / 10)));
    painter.setBrush(colour);
    painter.drawEllipse(quarter.adjusted(0.5, 0.5, -0.5, -0.5));
    QFont font = painter.font();
    font.setBold(true);
    font.setPixelSize(std::max(6, int(quarter.height() * 0.7)));
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(quarter, Qt::AlignCenter, glyph);
}

struct StateBadge {
    QColor colour;
    QString glyph;
};
StateBadge stateBadge(const QString &name)
{
    if (name == QLatin1String("trashed")) return {QColor(0x6e, 0x6e, 0x73), QStringLiteral("T")};
    if (name == QLatin1String("deleted")) return {QColor(0xd7, 0x3a, 0x31), QStringLiteral("×")};
    if (name == QLatin1String("cloned")) return {QColor(0x3b, 0x7d, 0xd8), QStringLiteral("C")};
    if (name == QLatin1String("hard linked")) return {QColor(0x2f, 0x9e, 0x44), QStringLiteral("H")};
    if (name == QLatin1String("aliased")) return {QColor(0x8e, 0x44, 0xad), QStringLiteral("→")};
    return {};
}

} // namespace

ItemIcons::ItemIcons(QObject *parent) : QObject(parent), m_icons(4096), m_thumbnails(64 * 1024)
{
    connect(&m_loader, &ThumbnailLoader::loaded, this, &ItemIcons::thumbnailLoaded);
    // Thumbnails arrive one by one; the lists redraw once for a burst of them.
    m_changed.setSingleShot(true);
    m_changed.setInterval(50);
    connect(&m_changed, &QTimer::timeout, this, &ItemIcons::iconsChanged);
}

void ItemIcons::setSize(int pixels)
{
    if (pixels == m_size) return;
    m_size = pixels;
    m_loader.cancelAll();
    m_typeIcons.clear();
    m_icons.clear();
    m_thumbnails.clear();
    m_requested.clear();
    Q_EMIT iconsChanged();
}

QPixmap ItemIcons::icon(const ResultItem &item)
{
    if (const QPixmap *finished = m_icons.object(&item)) return *finished;
    QPixmap base;
    if (const QPixmap *thumbnail = m_thumbnails.object(item.path)) {
        base = *thumbnail;
    } else {
        base = typeIcon(item);
        if (m_size >= 32 && !item.has(IsFolder) && !m_requested.contains(item.path) &&
            (ThumbnailLoader::canMakeThumbnail(item.nameView()) || hasVideoName(item))) {
            m_requested.insert(item.path, true);
            m_loader.request(item.path, m_size);
        }
    }
    QPixmap finished = decorated(base, item);
    // Not kept while a thumbnail is on its way, so that it replaces the type icon.
    if (!m_requested.value(item.path)) m_icons.insert(&item, new QPixmap(finished));
    return finished;
}

void ItemIcons::setStatusImage(const ResultItem *item, const QString &name)
{
    m_statusImages.insert(item, name);
    m_icons.remove(item);
    m_changed.start();
}

// Videos have pictures only where the desktop has made them before.
bool ItemIcons::hasVideoName(const ResultItem &item) const
{
    return m_mimeDatabase.mimeTypeForFile(item.name(), QMimeDatabase::MatchExtension)
        .name()
        .startsWith(QLatin1String("video/"));
}

QPixmap ItemIcons::typeIcon(const ResultItem &item)
{
    const bool folder = item.has(IsFolder) && !item.has(IsPackage);
    const QMimeType type = folder ? m_mimeDatabase.mimeTypeForName(QStringLiteral("inode/directory"))
                                  : m_mimeDatabase.mimeTypeForFile(item.name(), QMimeDatabase::MatchExtension);
    auto found = m_typeIcons.constFind(type.name());
    if (found != m_typeIcons.cend()) return *found;
    QIcon icon = QIcon::fromTheme(type.iconName(), QIcon::fromTheme(type.genericIconName()));
    if (icon.isNull())
        icon = QApplication::style()->standardIcon(folder ? QStyle::SP_DirIcon : QStyle::SP_FileIcon);
    const QPixmap pixmap = icon.pixmap(m_size, m_size);
    m_typeIcons.insert(type.name(), pixmap);
    return pixmap;
}

QPixmap ItemIcons::decorated(QPixmap base, const ResultItem &item) const
{
    const QString state = m_statusImages.value(&item);
    if (!item.has(ReadOnly) && !item.has(OtherOwner) && state.isEmpty()) return base;
    QPixmap canvas = squareCanvas(base);
    QPainter painter(&canvas);
    const qreal half = canvas.width() / qreal(canvas.devicePixelRatio()) / 2;
    if (item.has(ReadOnly)) drawBadge(painter, QRectF(0, half, half, half), QColor(0xe0, 0x8a, 0x00), QStringLiteral("R"));
    if (item.has(OtherOwner))
        drawBadge(painter, QRectF(half, half, half, half), QColor(0x55, 0x55, 0x99), QStringLiteral("U"));
    if (!state.isEmpty()) {
        const StateBadge badge = stateBadge(state);
        drawBadge(painter, QRectF(half, 0, half, half), badge.colour, badge.glyph);
    }
    return canvas;
}

void ItemIcons::thumbnailLoaded(const QString &path, int size, const QImage &image)
{
    if (size != m_size) return;
    if (image.isNull()) {
        m_requested.insert(path, false);
        return;
    }
    m_requested.remove(path);
    m_thumbnails.insert(path, new QPixmap(QPixmap::fromImage(image)),
                        std::max<qsizetype>(1, image.sizeInBytes() / 1024));
    m_changed.start();
}

} // namespace selfsame
