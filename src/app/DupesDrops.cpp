// Files dropped on a results window: the one file dropped is looked up in the top list.
#include "Dupes.h"

#include "LocalFiles.h"
#include "ResultListView.h"

#include <QDragEnterEvent>
#include <QMimeData>

namespace selfsame {

bool Dupes::draggingEntered(const QMimeData *data, const QObject *source)
{
    const bool ownList = source && (source == m_mainList || source == m_cloneList ||
                                    source == m_mainList->viewport() || source == m_cloneList->viewport());
    if (ownList || !data->hasUrls()) return false;
    if (!m_dropIndicatorView) {
        m_dropIndicatorView = new QWidget(centralWidget());
        m_dropIndicatorView->setObjectName(QStringLiteral("dropIndicator"));
        m_dropIndicatorView->setAttribute(Qt::WA_TransparentForMouseEvents);
        QColor colour = palette().color(QPalette::Highlight);
        colour.setAlphaF(0.5);
        m_dropIndicatorView->setStyleSheet(QStringLiteral("background-color: %1").arg(colour.name(QColor::HexArgb)));
        m_dropIndicatorView->setGeometry(centralWidget()->rect());
        m_dropIndicatorView->show();
        m_dropIndicatorView->raise();
    }
    return true;
}

bool Dupes::performDragOperation(const QMimeData *data)
{
    removeDropIndicator();
    const QStringList files = localPaths(data->urls());
    if (files.size() != 1) return false;
    selectAndRevealInTopList(files.first());
    return true;
}

void Dupes::dragEnterEvent(QDragEnterEvent *event)
{
    if (draggingEntered(event->mimeData(), event->source()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void Dupes::dragLeaveEvent(QDragLeaveEvent *event)
{
    removeDropIndicator();
    event->accept();
}

void Dupes::dropEvent(QDropEvent *event)
{
    if (performDragOperation(event->mimeData()))
        event->acceptProposedAction();
    else
        event->ignore();
}

void Dupes::removeDropIndicator()
{
    delete m_dropIndicatorView;
    m_dropIndicatorView = nullptr;
}

} // namespace selfsame
