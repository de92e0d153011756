#include "AppDelegate.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMenuBar>

namespace selfsame {

AppDelegate::AppDelegate(QWidget *parent) : QMainWindow(parent)
{
    setWindowTitle(QApplication::applicationName());
    auto *label = new QLabel(tr("<h2>Selfsame</h2><p>Finds duplicate files by content.</p>"
                                "<p>The search window is on its way; meanwhile run "
                                "<code>selfsame-cli FOLDER…</code> in a terminal.</p>"),
                             this);
    label->setAlignment(Qt::AlignCenter);
    label->setMargin(24);
    setCentralWidget(label);

    QMenu *fileMenu = menuBar()->addMenu(tr("&File"));
    QAction *quit = fileMenu->addAction(tr("&Quit"), qApp, &QApplication::quit);
    quit->setShortcut(QKeySequence::Quit);
    resize(560, 320);
}

} // namespace selfsame
