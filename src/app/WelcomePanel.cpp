#include "WelcomePanel.h"

#include "AppName.h"
#include "SearchDefaults.h"
#include "Settings.h"

#include <QApplication>
#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QScreen>
#include <QStyle>
#include <QVBoxLayout>

namespace selfsame {

WelcomePanel::WelcomePanel(Settings &settings, QWidget *parent) : QDialog(parent), m_settings(settings)
{
    setWindowTitle(withAppName(tr("Welcome to [NSApp]")));
    auto *layout = new QVBoxLayout(this);
    auto *text = new QLabel(withAppName(
        tr("<h3>Welcome to [NSApp]</h3>"
           "<p>[NSApp] finds files with the same content in the folders and drives you choose, "
           "and helps you decide which copies to keep.</p>"
           "<ol>"
           "<li>Add folders to the list: drag them from your file manager, or click <b>Add…</b>.</li>"
           "<li>Tick the ones to search and choose what makes two files duplicates.</li>"
           "<li>Click <b>Search</b>. Each search opens its own window; several can run at once.</li>"
           "</ol>"
           "<p>Searching only reads your files. Nothing is changed until you say so in a results window.</p>"
           "<p>From a file manager, <i>Open With [NSApp]</i> on a file shows its duplicates, and "
           "<i>Find Duplicates Here</i> on a folder searches it at once.</p>")));
    text->setWordWrap(true);
    text->setTextFormat(Qt::RichText);
    text->setFixedWidth(text->fontMetrics().averageCharWidth() * 64);
    layout->addWidget(text);

    m_welcomeShowAtStartupChk = new QCheckBox(withAppName(tr("&Show this window when [NSApp] starts")));
    m_welcomeShowAtStartupChk->setChecked(m_settings.boolValue(key::welcomeShowAtStartup));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *bottom = new QHBoxLayout;
    bottom->addWidget(m_welcomeShowAtStartupChk, 1);
    bottom->addWidget(buttons);
    layout->addLayout(bottom);
    // Sized by the wrapped text, so that no line is cut off.
    layout->setSizeConstraint(QLayout::SetFixedSize);
}

void WelcomePanel::showCentered()
{
    m_welcomeShowAtStartupChk->setChecked(m_settings.boolValue(key::welcomeShowAtStartup));
    adjustSize();
    if (const QScreen *screen = parentWidget() ? parentWidget()->screen() : QApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    show();
    raise();
    activateWindow();
}

void WelcomePanel::done(int result)
{
    if (isVisible())
        m_settings.setValue(key::welcomeShowAtStartup, m_welcomeShowAtStartupChk->isChecked());
    QDialog::done(result);
}

} // namespace selfsame
