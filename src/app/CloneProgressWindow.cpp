#include "CloneProgressWindow.h"

#include "fileops/CloneAlerts.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

namespace selfsame {

CloneProgressWindow::CloneProgressWindow(QWidget *parent) : QDialog(parent)
{
    setWindowModality(Qt::ApplicationModal);
    m_text = new QLabel;
    m_progress = new QProgressBar;
    m_progress->setTextVisible(false);
    m_button = new QPushButton;
    connect(m_button, &QPushButton::clicked, this, [this] { m_stopped = true; });
    auto *buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(m_button);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(m_progress);
    layout->addLayout(buttons);
    setMinimumWidth(380);
}

void CloneProgressWindow::beginPass(bool perform)
{
    setWindowTitle(cloneProgressText(perform));
    m_text->setText(cloneProgressText(perform));
    m_button->setText(cloneProgressButtonTitle(perform));
    m_progress->setValue(0);
    m_stopped = false;
    m_started.start();
}

bool CloneProgressWindow::step(int index, int count)
{
    m_progress->setMaximum(count);
    m_progress->setValue(index);
    if (!isVisible() && m_started.elapsed() >= m_showDelay) {
        // Centred on the results window, like a sheet.
        if (parentWidget())
            move(parentWidget()->window()->geometry().center() - rect().center());
        show();
    }
    if (isVisible())
        QApplication::processEvents();
    return !m_stopped;
}

void CloneProgressWindow::endPass()
{
    hide();
}

} // namespace selfsame
