// Widget tests need a QApplication; they run on the offscreen platform with a configuration
// folder of their own, so that nothing touches the user's settings.
#include "language/EnglishPlurals.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char **argv)
{
    QTemporaryDir config;
    qputenv("XDG_CONFIG_HOME", config.path().toLocal8Bit());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Selfsame"));
    selfsame::EnglishPlurals plurals;
    QApplication::installTranslator(&plurals);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
