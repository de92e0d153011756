#pragma once

#include "ThumbnailLoader.h"
#include "results/ResultItem.h"

#include <QCache>
#include <QHash>
#include <QMimeDatabase>
#include <QObject>
#include <QPixmap>
#include <QTimer>

namespace selfsame {

// The icons of the result lists: the file type's icon or the thumbnail of a picture (or of a
// video the desktop has a thumbnail of) at the list's size, with the badges of items that are read-only or belong to another user, and the
// state badge of items that an action trashed, deleted or replaced. Thumbnails arrive later;
// `iconsChanged` then asks the lists to draw their visible rows again.
class ItemIcons : public QObject {
    Q_OBJECT
public:
    explicit ItemIcons(QObject *parent = nullptr);

    int size() const { return m_size; }
    // Drops every icon built at the old size; state images stay.
    void setSize(int pixels);

    QPixmap icon(const ResultItem &item);

    // The state image names: "trashed", "deleted", "cloned", "hard linked", "aliased".
    void setStatusImage(const ResultItem *item, const QString &name);
    QString statusImage(const ResultItem *item) const { return m_statusImages.value(item); }

    void cancelPendingThumbnails() { m_loader.cancelAll(); }

Q_SIGNALS:
    void iconsChanged();

private:
    QPixmap typeIcon(const ResultItem &item);
    bool hasVideoName(const ResultItem &item) const;
    QPixmap decorated(QPixmap base, const ResultItem &item) const;
    void thumbnailLoaded(const QString &path, int size, const QImage &image);

    int m_size = 16;
    QMimeDatabase m_mimeDatabase;
    QHash<QString, QPixmap> m_typeIcons;           // by MIME type, at the current size
    QCache<const ResultItem *, QPixmap> m_icons;   // finished icons of recently shown rows
    QCache<QString, QPixmap> m_thumbnails;         // by path, cost in kilobytes
    QHash<QString, bool> m_requested;              // path: loading (true) or gave nothing (false)
    QHash<const ResultItem *, QString> m_statusImages;
    ThumbnailLoader m_loader;
    QTimer m_changed;
};

} // namespace selfsame
