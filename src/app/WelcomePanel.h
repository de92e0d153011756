#pragma once

#include <QDialog>

class QCheckBox;

namespace selfsame {

class Settings;

// What Selfsame does and how to begin; shown at start while "welcomeShowAtStartup" is on.
class WelcomePanel : public QDialog {
    Q_OBJECT
public:
    WelcomePanel(Settings &settings, QWidget *parent = nullptr);

    void showCentered();

protected:
    void done(int result) override;

private:
    Settings &m_settings;
    QCheckBox *m_welcomeShowAtStartupChk;
};

} // namespace selfsame
