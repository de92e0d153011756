#include "ThumbnailLoader.h"

#include "LocalFiles.h"
#include "names/FileNames.h"

#include <QCryptographicHash>
#include <QImageReader>
#include <QSet>
#include <QStandardPaths>

namespace selfsame {

namespace {

constexpr std::size_t kMaxPending = 256;

// The desktop's shared cache (freedesktop thumbnail specification): valid while the file's
// modification time is the one recorded in the picture.
QImage cachedThumbnail(const QString &path, int size)
{
    const QString name =
        QString::fromLatin1(QCryptographicHash::hash(thumbnailUri(path), QCryptographicHash::Md5).toHex()) +
        QStringLiteral(".png");
    const QString cache = QStandardPaths::writableLocation(QStandardPaths::GenericCacheLocation) +
                          QStringLiteral("/thumbnails/");
    const QString folder = size <= 128 ? QStringLiteral("normal/") : QStringLiteral("large/");
    QImage image(cache + folder + name);
    if (image.isNull()) return {};
    const std::optional<qint64> mtime = modificationTime(path);
    if (!mtime || image.text(QStringLiteral("Thumb::MTime")).toLongLong() != *mtime) return {};
    return image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
}

} // namespace

QByteArray thumbnailUri(const QString &path)
{
    // Encoded as QUrl::fromLocalFile encodes a path, whose form names the pictures already
    // cached, but from the exact bytes: a byte that is not UTF-8 becomes %FF, not U+FFFD.
    return "file://" + pathBytes(path).toPercentEncoding("/!$&'()*+,;=:@[]");
}

QImage makeThumbnail(const QString &path, int size)
{
    QImage image = cachedThumbnail(path, size);
    if (!image.isNull()) return image;
    const std::unique_ptr<QFile> file = openForReading(path);
    if (!file) return {};
    // The suffix hints at the format, as it does when the reader opens a file by its name.
    const qsizetype dot = path.lastIndexOf(QLatin1Char('.'));
    const QString suffix = dot > path.lastIndexOf(QLatin1Char('/')) ? path.mid(dot + 1).toLower() : QString();
    QImageReader reader(file.get(), suffix.toLatin1());
    reader.setAutoTransform(true);
    const QSize full = reader.size();
    if (full.isValid()) reader.setScaledSize(full.scaled(size, size, Qt::KeepAspectRatio));
    image = reader.read();
    if (!image.isNull() && (image.width() > size || image.height() > size))
        image = image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation);
    return image;
}

ThumbnailLoader::ThumbnailLoader(QObject *parent) : QObject(parent)
{
    m_pool.setMaxThreadCount(2);
}

ThumbnailLoader::~ThumbnailLoader()
{
    cancelAll();
    m_pool.waitForDone();
}

bool ThumbnailLoader::canMakeThumbnail(QStringView fileName)
{
    static const QSet<QString> formats = [] {
        QSet<QString> set;
        for (const QByteArray &format : QImageReader::supportedImageFormats())
            set.insert(QString::fromLatin1(format));
        set.remove(QStringLiteral("svg")); // drawn as a file icon: scaling vector art costs more than it shows
        set.remove(QStringLiteral("svgz"));
        return set;
    }();
    const qsizetype dot = fileName.lastIndexOf(QLatin1Char('.'));
    return dot > 0 && formats.contains(fileName.mid(dot + 1).toString().toLower());
}

void ThumbnailLoader::request(const QString &path, int size)
{
    std::lock_guard lock(m_queue->mutex);
    m_queue->pending.push_front({path, size});
    if (m_queue->pending.size() > kMaxPending) m_queue->pending.pop_back();
    if (m_queue->workers < m_pool.maxThreadCount()) {
        ++m_queue->workers;
        m_pool.start([this] { work(); });
    }
}

void ThumbnailLoader::cancelAll()
{
    std::lock_guard lock(m_queue->mutex);
    m_queue->pending.clear();
}

void ThumbnailLoader::work()
{
    for (;;) {
        Request next;
        {
            std::lock_guard lock(m_queue->mutex);
            if (m_queue->pending.empty()) {
                --m_queue->workers;
                return;
            }
            next = std::move(m_queue->pending.front());
            m_queue->pending.pop_front();
        }
        const QImage image = makeThumbnail(next.path, next.size);
        // Queued to the loader's thread; the destructor waits for this worker, so `this` lives.
        QMetaObject::invokeMethod(
            this, [this, next, image] { Q_EMIT loaded(next.path, next.size, image); }, Qt::QueuedConnection);
    }
}

} // namespace selfsame
