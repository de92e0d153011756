#pragma once

#include <QObject>
#include <QStringList>

class QWidget;

namespace selfsame {

// Files opened from the trash go back where they came from: one question per file (or one
// for all), and on failure an offer to choose the destination folder and try once more.
class PutBackDialogue : public QObject {
    Q_OBJECT
public:
    // The files among `paths` that remember a former place other than where they are.
    static QStringList trashedFiles(const QStringList &paths);

    // `openedCount` is the number of items opened together, which decides whether
    // "Put Back All" is offered. The dialogue deletes itself when done.
    PutBackDialogue(QWidget *window, const QStringList &trashedFiles, int openedCount);
    void start() { next(); }

Q_SIGNALS:
    void finished();

private:
    void next();
    void ask();
    void attempt(bool firstAttempt);
    void skip();
    void grantAccess();

    QWidget *m_window;
    QStringList m_files;
    int m_openedCount;
    qsizetype m_index = 0;
    bool m_putBackAll = false;
};

} // namespace selfsame
