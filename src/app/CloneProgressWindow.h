#pragma once

#include <QDialog>
#include <QElapsedTimer>

class QLabel;
class QProgressBar;
class QPushButton;

namespace selfsame {

// The progress of a pass over the duplicates to clone. It appears, modal, only once a pass
// has lasted longer than a second; its button (Cancel while planning, Abort while cloning)
// stops the pass at its next step.
class CloneProgressWindow : public QDialog {
    Q_OBJECT
public:
    explicit CloneProgressWindow(QWidget *parent);

    void beginPass(bool perform);
    // Called before each step; false once the user pressed the button.
    bool step(int index, int count);
    void endPass();

    // How long a pass runs before the window shows up.
    void setShowDelay(int milliseconds) { m_showDelay = milliseconds; }
    QPushButton *stopButton() const { return m_button; }

protected:
    void reject() override { m_stopped = true; } // closing the window stops too

private:
    QLabel *m_text;
    QProgressBar *m_progress;
    QPushButton *m_button;
    QElapsedTimer m_started;
    int m_showDelay = 1000;
    bool m_stopped = false;
};

} // namespace selfsame
