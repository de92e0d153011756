#include "AppDelegate.h"

#include <QApplication>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Selfsame"));
    QApplication::setApplicationVersion(QStringLiteral(SELFSAME_VERSION));
    selfsame::AppDelegate window;
    window.show();
    return QApplication::exec();
}
