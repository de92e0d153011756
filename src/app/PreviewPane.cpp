#include "PreviewPane.h"

#include "LocalFiles.h"
#include "ThumbnailLoader.h"
#include "format/ByteSize.h"
#include "format/Formatters.h"
#include "names/FileNames.h"
#include "results/ListColumns.h"
#include "results/ResultItem.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QLabel>
#include <QLocale>
#include <QMimeDatabase>
#include <QPlainTextEdit>
#include <QPointer>
#include <QThreadPool>
#include <QVBoxLayout>

#include <cmath>

namespace selfsame {

namespace {

constexpr int kPictureSize = 480;
constexpr qint64 kTextBytes = 64 * 1024;

QString infoRow(const QString &title, const QString &value)
{
    return value.isEmpty() ? QString()
                           : QStringLiteral("<tr><td style='color:gray; padding-right:8px'>%1</td><td>%2</td></tr>")
                                 .arg(title.toHtmlEscaped(), value.toHtmlEscaped());
}

QString dateText(qint64 seconds)
{
    return seconds == kNoDate ? QString()
                              : QLocale().toString(QDateTime::fromSecsSinceEpoch(seconds), QLocale::LongFormat);
}

} // namespace

PreviewPane::PreviewPane(QWidget *parent) : QWidget(parent)
{
    m_picture = new QLabel;
    m_picture->setAlignment(Qt::AlignCenter);
    m_picture->setMinimumSize(160, 120);
    m_picture->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Expanding);
    m_text = new QPlainTextEdit;
    m_text->setReadOnly(true);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_info = new QLabel;
    m_info->setWordWrap(true);
    m_info->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_info->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_picture, 1);
    layout->addWidget(m_text, 1);
    layout->addWidget(m_info);
    showItem(nullptr);
}

void PreviewPane::showItem(const ResultItem *item)
{
    ++m_request;
    m_picture->clear();
    m_image = QImage();
    m_text->clear();
    m_picture->hide();
    m_text->hide();
    if (!item) {
        m_info->setText(tr("Select one item to see it here."));
        return;
    }
    QString rows = infoRow(tr("Name"), displayPath(item->name())) +
                   infoRow(tr("Folder"), displayPath(item->folder())) +
                   infoRow(tr("Size"), formatByteCount(item->size)) +
                   infoRow(tr("On disk"), formatByteCount(item->physicalSize)) +
                   infoRow(tr("Modified"), dateText(item->modified)) + infoRow(tr("Created"), dateText(item->created)) +
                   infoRow(tr("Duration"), cellText(*item, QStringLiteral("duration"), {})) +
                   infoRow(tr("Pixel size"), item->pixelSize()) + infoRow(tr("Codecs"), item->codecs()) +
                   infoRow(tr("Bit rate"), bitrateText(item->bitrate())) +
                   infoRow(tr("Tags"), item->tagList().join(QStringLiteral(", ")));
    if (!std::isnan(item->latitude()) && !std::isnan(item->longitude()))
        rows += infoRow(tr("Location"), DegreeMinuteSecondFormatter::latitude().stringFromDoubleValue(item->latitude()) +
                                            QStringLiteral(", ") +
                                            DegreeMinuteSecondFormatter::longitude().stringFromDoubleValue(item->longitude()));
    m_info->setText(QStringLiteral("<table>%1</table>").arg(rows));

    const QString path = item->path;
    if (ThumbnailLoader::canMakeThumbnail(item->nameView())) {
        m_picture->setText(tr("Loading…"));
        m_picture->show();
        const quint64 request = m_request;
        QPointer<PreviewPane> pane(this);
        QThreadPool::globalInstance()->start([pane, request, path] {
            const QImage image = makeThumbnail(path, kPictureSize);
            // The pane is looked at on its own thread only: it may be gone by then.
            QMetaObject::invokeMethod(
                qApp, [pane, request, image] { if (pane) pane->showPicture(request, image); }, Qt::QueuedConnection);
        });
        return;
    }
    const std::unique_ptr<QFile> file = openForReading(path); // none for folders
    if (!file) return;
    const QMimeType type = QMimeDatabase().mimeTypeForFileNameAndData(item->name(), file.get());
    if (type.inherits(QStringLiteral("text/plain")) && file->seek(0)) {
        m_text->setPlainText(QString::fromUtf8(file->read(kTextBytes)));
        m_text->show();
    }
}

void PreviewPane::showPicture(quint64 request, const QImage &image)
{
    if (request != m_request) return;
    if (image.isNull()) {
        m_picture->setText(tr("No preview"));
        return;
    }
    m_image = image;
    fitPicture();
}

void PreviewPane::fitPicture()
{
    if (m_image.isNull()) return;
    // Shrunk to the room there is, never stretched, never distorted.
    const QSize room = m_picture->contentsRect().size().boundedTo(m_image.size());
    m_picture->setPixmap(QPixmap::fromImage(m_image.scaled(room, Qt::KeepAspectRatio, Qt::SmoothTransformation)));
}

void PreviewPane::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitPicture();
}

} // namespace selfsame
