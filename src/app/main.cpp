#include "AppDelegate.h"
#include "InterruptedActions.h"
#include "LaunchRequest.h"
#include "Settings.h"
#include "SingleInstance.h"
#include "journal/Journal.h"
#include "language/Translations.h"
#include "search/ReadingThreads.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QTimer>

int main(int argc, char *argv[])
{
    selfsame::limitHeapsToCores();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Selfsame"));
    selfsame::installTranslations(&app);
    QApplication::setApplicationVersion(QStringLiteral(SELFSAME_VERSION));
    QApplication::setDesktopFileName(QStringLiteral("selfsame"));
    QApplication::setWindowIcon(
        QIcon::fromTheme(QStringLiteral("selfsame"), QIcon(QStringLiteral(":/selfsame.svg"))));

    QCommandLineParser parser;
    parser.setApplicationDescription(QApplication::translate("main", "Finds duplicate files."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption searchOption(
        QStringLiteral("search"),
        QApplication::translate("main", "Add the paths to the locations and search them at once."));
    parser.addOption(searchOption);
    parser.addPositionalArgument(QStringLiteral("paths"),
                                 QApplication::translate("main", "Files to look up, or folders to add."),
                                 QStringLiteral("[PATH…]"));
    // Not app.arguments(): it decodes them as UTF-8 and loses the bytes of other names.
    parser.process(selfsame::commandLineArguments(argc, argv));
    const selfsame::LaunchRequest launch{
        parser.isSet(searchOption),
        selfsame::absoluteLocalPaths(parser.positionalArguments(), selfsame::currentFolder())};

    selfsame::SingleInstance instance;
    if (instance.handOver(launch.toMessage()))
        return 0;
    instance.listen();
    // The first instance finishes what an earlier one was stopped in the middle of.
    selfsame::Journal journal;
    selfsame::recoverInterruptedActions(journal, nullptr);

    selfsame::Settings settings;
    selfsame::AppDelegate window(settings);
    QObject::connect(&instance, &selfsame::SingleInstance::received, &window,
                     [&window](const QStringList &message) {
                         window.handleLaunch(selfsame::LaunchRequest::fromMessage(message));
                     });
    window.show();
    // Results asked for from outside come first; the welcome panel waits for a plain start.
    if (!launch.search) window.showWelcomeAtStartup();
    if (!launch.paths.isEmpty())
        QTimer::singleShot(0, &window, [&window, launch] { window.handleLaunch(launch); });
    return QApplication::exec();
}
