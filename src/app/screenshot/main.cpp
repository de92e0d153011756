// Draws the main window as the user sees it at start, then in each detection mode, and saves
// the pictures. Prints how long the process took from its start (given by the caller in ns
// since the epoch) until the main window was first drawn.
#include "AppDelegate.h"
#include "AttributeChooser.h"
#include "ResultPictures.h"
#include "SearchOptionsPanel.h"
#include "Settings.h"
#include "WelcomePanel.h"

#include "language/EnglishPlurals.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDir>
#include <QIcon>
#include <QTimer>
#include <chrono>
#include <cstdio>

namespace {

// Waits for the window's first paint.
class FirstPaint : public QObject {
public:
    explicit FirstPaint(std::function<void()> painted) : m_painted(std::move(painted)) {}

protected:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && m_painted) {
            auto painted = std::move(m_painted);
            m_painted = nullptr;
            // After this paint event has been handled, the window holds its first picture.
            QTimer::singleShot(0, watched, painted);
        }
        return false;
    }

private:
    std::function<void()> m_painted;
};

void settle()
{
    for (int i = 0; i < 5; ++i)
        QApplication::processEvents();
}

} // namespace

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Selfsame"));
    selfsame::EnglishPlurals plurals;
    QApplication::installTranslator(&plurals);
    QApplication::setApplicationVersion(QStringLiteral(SELFSAME_VERSION));
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/selfsame.svg")));
    const QStringList args = QApplication::arguments();
    if (args.size() != 3 && args.size() != 5) {
        std::fprintf(stderr, "usage: selfsame-screenshot OUTPUT_FOLDER STARTED_AT_NS [CORPUS SCRATCH_FOLDER]\n");
        return 2;
    }
    const QDir output(args[1]);
    const qint64 startedAtNs = args[2].toLongLong();

    selfsame::Settings settings;
    selfsame::AppDelegate window(settings);
    FirstPaint firstPaint([&] {
        const qint64 nowNs = std::chrono::duration_cast<std::chrono::nanoseconds>(
                                 std::chrono::system_clock::now().time_since_epoch())
                                 .count();
        std::printf("startup_ms %.1f\n", double(nowNs - startedAtNs) / 1e6);
        std::fflush(stdout);
        auto *modes = static_cast<QComboBox *>(window.optionsPanel()->modeSelector());
        const QStringList names{QStringLiteral("content"), QStringLiteral("duration"),
                                QStringLiteral("filename"), QStringLiteral("attribute"),
                                QStringLiteral("similar-images"), QStringLiteral("similar-audio")};
        for (int mode = 0; mode < names.size(); ++mode) {
            modes->setCurrentIndex(mode);
            Q_EMIT modes->activated(mode);
            settle();
            window.grab().save(output.filePath(QStringLiteral("main-window-%1.png").arg(names[mode])));
        }
        window.manageSpotlightAttributes();
        settle();
        if (auto *chooser = window.findChild<selfsame::AttributeChooser *>()) {
            chooser->grab().save(output.filePath(QStringLiteral("attribute-chooser.png")));
            chooser->reject();
        }
        selfsame::WelcomePanel welcome(settings, &window);
        welcome.showCentered();
        settle();
        welcome.grab().save(output.filePath(QStringLiteral("welcome.png")));
        welcome.close();
        if (args.size() == 5) selfsame::drawResultWindows(settings, args[3], args[4], output);
        QApplication::quit();
    });
    window.installEventFilter(&firstPaint);
    window.show();
    return QApplication::exec();
}
