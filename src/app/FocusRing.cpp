#include "FocusRing.h"

#include <QEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace selfsame {

namespace {

constexpr int kRingWidth = 2;

} // namespace

FocusRing::FocusRing(QWidget *content, QWidget *parent) : QWidget(parent), m_content(content)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(kRingWidth, kRingWidth, kRingWidth, kRingWidth);
    layout->addWidget(content);
    content->installEventFilter(this);
}

bool FocusRing::isLit() const
{
    return m_content->hasFocus();
}

bool FocusRing::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == m_content && (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut))
        update();
    return QWidget::eventFilter(watched, event);
}

void FocusRing::paintEvent(QPaintEvent *)
{
    if (!isLit()) return;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(palette().color(QPalette::Active, QPalette::Highlight), kRingWidth);
    painter.setPen(pen);
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 3, 3);
}

} // namespace selfsame
