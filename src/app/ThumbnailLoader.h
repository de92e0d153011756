#pragma once

#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <deque>
#include <memory>
#include <mutex>

namespace selfsame {

// Makes thumbnails of files on worker threads, never on the caller's: from the desktop's
// thumbnail cache when it holds a current one, else by decoding an image at the requested size. The newest requests are served first (they are the rows on screen) and old
// ones are dropped when many pile up, so scrolling through a long list never builds a backlog.
class ThumbnailLoader : public QObject {
    Q_OBJECT
public:
    explicit ThumbnailLoader(QObject *parent = nullptr);
    ~ThumbnailLoader() override; // drops what is pending and waits for the running loads

    static bool canMakeThumbnail(QStringView fileName);

    void request(const QString &path, int size);
    void cancelAll();

Q_SIGNALS:
    // A null image when the file gave none.
    void loaded(const QString &path, int size, const QImage &image);

private:
    struct Request {
        QString path;
        int size;
    };
    struct Queue {
        std::mutex mutex;
        std::deque<Request> pending;
        int workers = 0;
    };
    void work();

    std::shared_ptr<Queue> m_queue = std::make_shared<Queue>();
    QThreadPool m_pool;
};

// The picture of one file at `size` pixels (its longer side); null when it has none.
QImage makeThumbnail(const QString &path, int size);

// The file's URI as the desktop's thumbnail cache names it (by its MD5): the exact bytes of the path.
QByteArray thumbnailUri(const QString &path);

} // namespace selfsame
