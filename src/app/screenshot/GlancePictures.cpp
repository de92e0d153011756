#include "GlancePictures.h"

#include "Alert.h"
#include "Dupes.h"
#include "DupesActions.h"
#include "OverviewWindow.h"
#include "ResultListView.h"
#include "SearchedWindow.h"
#include "Settings.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QPalette>
#include <QStyle>

namespace selfsame {

namespace {

QPalette darkPalette()
{
    QPalette dark;
    dark.setColor(QPalette::Window, QColor(0x2b, 0x2b, 0x2e));
    dark.setColor(QPalette::WindowText, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::Base, QColor(0x1f, 0x1f, 0x22));
    dark.setColor(QPalette::AlternateBase, QColor(0x2a, 0x2a, 0x2e));
    dark.setColor(QPalette::Text, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::Button, QColor(0x35, 0x35, 0x39));
    dark.setColor(QPalette::ButtonText, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::Highlight, QColor(0x3d, 0x7a, 0xd6));
    dark.setColor(QPalette::HighlightedText, Qt::white);
    dark.setColor(QPalette::ToolTipBase, QColor(0x35, 0x35, 0x39));
    dark.setColor(QPalette::ToolTipText, QColor(0xe6, 0xe6, 0xe6));
    dark.setColor(QPalette::Mid, QColor(0x55, 0x55, 0x5a));
    dark.setColor(QPalette::Link, QColor(0x7a, 0xb0, 0xf5));
    dark.setColor(QPalette::PlaceholderText, QColor(0x90, 0x90, 0x95));
    dark.setColor(QPalette::Disabled, QPalette::Text, QColor(0x78, 0x78, 0x7c));
    dark.setColor(QPalette::Disabled, QPalette::WindowText, QColor(0x78, 0x78, 0x7c));
    dark.setColor(QPalette::Disabled, QPalette::ButtonText, QColor(0x78, 0x78, 0x7c));
    return dark;
}

Dupes *searched(Settings &settings, const QStringList &locations)
{
    // The window's default size: what a user meets first.
    Dupes *dupes = searchedWindow(settings, DetectionMode::Content, locations);
    dupes->changeListSize(32);
    dupes->activateWindow();
    settle(200);
    return dupes;
}

// The first group in the top list, one of its copies chosen in the bottom list, which has the focus.
void chooseACopy(Dupes *dupes)
{
    ResultListView *top = dupes->mainList();
    top->setFocus();
    top->selectionModel()->select(top->model()->index(0, 0), QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    ResultListView *bottom = dupes->cloneList();
    bottom->setFocus(Qt::TabFocusReason);
    const int row = bottom->model()->rowCount() > 1 ? 1 : 0;
    bottom->selectionModel()->setCurrentIndex(bottom->model()->index(row, 0),
                                              QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void drawIn(const QString &paletteName, Settings &settings, const QStringList &locations, const QDir &output)
{
    Dupes *window = searched(settings, locations);
    chooseACopy(window);
    settle(500); // thumbnails
    window->grab().save(output.filePath(QStringLiteral("results-window-%1.png").arg(paletteName)));

    OverviewWindow *overview = window->showOverview();
    overview->resize(760, 480);
    settle(200);
    overview->grab().save(output.filePath(QStringLiteral("overview-%1.png").arg(paletteName)));
    overview->close();

    setAlertAnswerer([](const Alert &) { return AlertAnswer{kFirstButton}; });
    window->resultActions().files->moveToTrashAction()->trigger();
    setAlertAnswerer({});
    settle(300);
    window->grab().save(output.filePath(QStringLiteral("trash-summary-%1.png").arg(paletteName)));
    delete window;
}

} // namespace

void drawGlancePictures(Settings &settings, const QStringList &locations, const QString &scratch, const QDir &output)
{
    const QByteArray dataHome = qgetenv("XDG_DATA_HOME");
    qputenv("XDG_DATA_HOME", QFile::encodeName(scratch + QStringLiteral("/trash-home")));
    const QPalette light = QApplication::palette();
    drawIn(QStringLiteral("light"), settings, locations, output);
    QApplication::setPalette(darkPalette());
    drawIn(QStringLiteral("dark"), settings, locations, output);
    QApplication::setPalette(light);
    qputenv("XDG_DATA_HOME", dataHome);
}

} // namespace selfsame
